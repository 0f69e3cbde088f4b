// The copy of the hoard's file.

#include "platform/PrivateFile.h"
#include "store/HoardStore.h"
#include "store/SqliteMainFile.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>

namespace tessarine {

namespace {

// Another program that moves its log into a large hoard may take seconds.
constexpr auto patience = std::chrono::seconds(10);

// The hoard, SQLite's files beside it, and the lock that keeps a second copy of the program out.
constexpr std::array<const char*, 5> suffixes = {"", "-wal", "-shm", "-journal", ".lock"};

std::filesystem::path nativePath(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

// Whether both are the same file, whatever names and links lead there.
bool isSame(const std::filesystem::path& one, const std::filesystem::path& other) {
    std::error_code ignored; // what isn't there is nobody's
    return std::filesystem::equivalent(one, other, ignored);
}

// A side file that is missing now may be there a moment later, so that its name counts too.
bool wouldBe(const std::filesystem::path& file, const std::filesystem::path& place) {
    return file.filename() == place.filename() && isSame(file.parent_path(), place.parent_path());
}

bool isPartOfHoard(const QString& hoard, const QString& destination) {
    std::error_code ignored; // a place without a path is no place to write to either
    const auto place = std::filesystem::absolute(nativePath(destination), ignored);
    return std::any_of(suffixes.begin(), suffixes.end(), [&](const char* suffix) {
        const std::filesystem::path file = nativePath(hoard + QString::fromLatin1(suffix));
        return isSame(file, place) || wouldBe(file, place);
    });
}

} // namespace

std::optional<QString> HoardStore::copyTo(const QString& destination) {
    if (isPartOfHoard(dbPath_, destination))
        return QStringLiteral("The hoard can't be copied onto itself");
    const auto reader = connectionBeside(SqliteConnection::Mode::ownFileReadOnly);
    if (!reader->isOpen())
        return reader->errorText();
    SqliteMainFile file(*reader);
    if (!file.hold(patience))
        return QStringLiteral("The hoard is in use by another program");
    const std::error_code error = writeAnewPrivately(
        destination, [&file](std::error_code& failure) { return file.next(failure); });
    return error ? std::optional(QString::fromStdString(error.message())) : std::nullopt;
}

} // namespace tessarine
