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

LinuxSingleInstance::LinuxSingleInstance(QString path, Bus bus)
    : path_(std::move(path))
    , bus_(std::move(bus)) {}

bool LinuxSingleInstance::claim() {
    token_ = tokenOfOwnStart();
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
        socket_->ask(token_);
}

// The own start asks as well: whoever started the program waits for it to show something, and is
// to be told that it runs although it starts silent.
void LinuxSingleInstance::onRequests(Requests requests) {
    if (!token_.isEmpty())
        requests.activate(token_);
    if (socket_)
        socket_->onRequest(requests.activate);
    if (bus_)
        service_ = std::make_unique<ReturningService>(bus_, std::move(requests));
}

} // namespace tessarine
