#pragma once

#include <QByteArray>

#include <system_error>

namespace tessarine {

// What a path says of the folder, with the slash behind it; empty where it says nothing.
QByteArray folderOf(const QByteArray& path);

// Replaces a path by the one that it leads to if its last component is a symbolic link, also when
// nothing is there yet. Refuses what a system refuses that protects its users from each other: in
// a folder that anyone can write to, a link that neither this process's user nor the folder's owner
// has put there fails with EACCES. One that leads to itself fails with ELOOP. Any thread.
std::error_code followLinks(QByteArray& path);

} // namespace tessarine
