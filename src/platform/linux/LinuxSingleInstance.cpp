#include "platform/linux/LinuxSingleInstance.h"

#include "platform/posix/Paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tessarine {

namespace {

std::string activationName(const FileIdentity& lock) {
    return "com.zorvek.Tessarine/" + std::to_string(lock.device) + '/' + std::to_string(lock.inode);
}

} // namespace

LinuxSingleInstance::LinuxSingleInstance(QString path)
    : path_(std::move(path)) {}

bool LinuxSingleInstance::claim() {
    const FileLockState state = takeLock();
    if (const std::optional<FileIdentity> identity = lock_.identity())
        socket_.emplace(activationName(*identity));
    if (state == FileLockState::taken && socket_)
        socket_->listen();
    return state != FileLockState::takenByAnother;
}

FileLockState LinuxSingleInstance::takeLock() {
    QDir().mkpath(QFileInfo(path_).path()); // where that fails, taking the lock fails too
    QByteArray file = QFile::encodeName(path_);
    if (followLinks(file))
        return FileLockState::unavailable;
    return lock_.take(QFile::decodeName(file + ".lock"));
}

void LinuxSingleInstance::activateFirst() {
    if (socket_)
        socket_->ask();
}

void LinuxSingleInstance::onActivation(std::function<void()> handler) {
    if (socket_)
        socket_->onRequest(std::move(handler));
}

} // namespace tessarine
