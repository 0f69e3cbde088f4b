#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <functional>
#include <system_error>

namespace tessarine {

// Files with what nobody but their owner may read, at no moment of the writing either: a new file
// is private before its first byte, one that was there is narrowed before it is filled. A file that
// can't be narrowed, as on a disk without modes, is written all the same. Any thread.

// Writes into the file that is there, or a new one. A failure half-way leaves half a file. A pipe
// or a device takes the bytes at its own speed; a pipe that nobody reads is an error at once.
std::error_code writePrivately(const QString& path, const QByteArray& bytes);

// Puts a file in the place of the one that is there, all at once: whatever fails, the old one is
// untouched and nothing else left behind. A symbolic link stays; what it points to is replaced. One
// that a stranger put into a folder that anyone can write to is refused, and so is what can't be
// replaced by a file: a pipe, a socket, a device.
std::error_code replacePrivately(const QString& path, const QByteArray& bytes);

// The next bytes of a file to be written, valid until the next call; none at its end. An error that
// it sets ends the writing.
using ByteSource = std::function<QByteArrayView(std::error_code& error)>;

// Removes the file or the link that is there and writes a new file of what the source gives. What a
// link led to is untouched. A folder, a pipe, a socket or a device is refused. A failure half-way
// leaves no file, and what was removed stays removed.
std::error_code writeAnewPrivately(const QString& path, const ByteSource& next);

} // namespace tessarine
