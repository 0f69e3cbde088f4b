#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <random>
#include <string>
#include <vector>

struct sqlite3_vfs;

namespace tessarine::testing {

// What is in a folder's files, by their names.
using DiskImage = std::map<QString, QByteArray>;

// Stands between SQLite and the files of a folder as long as it lives, as SQLite's default file
// system, and remembers what was written since each file's last sync. From that it makes what a
// disk could hold after a power cut: of all that wasn't synced any part may be there, sector by
// sector. The memory that processes share beside a write-ahead log is lost. One at a time; any
// thread.
class CuttableDisk {
public:
    enum class Syncs { kept, ignored }; // ignored: a disk that says "done" and does nothing

    CuttableDisk(const QString& folder, Syncs syncs);
    ~CuttableDisk();
    CuttableDisk(const CuttableDisk&) = delete;
    CuttableDisk& operator=(const CuttableDisk&) = delete;

    // Called after each change of a file and after each sync, on the thread that made it.
    void onEvent(std::function<void()> handler) { handler_ = std::move(handler); }

    // A power cut now; the generator says which of the possible ones.
    DiskImage imageAfterCut(std::mt19937& random) const;

private:
    friend struct CuttableDiskCalls; // from SQLite

    struct Change {
        qint64 offset;    // of what was written, or the size that a file was cut to
        QByteArray bytes; // empty: it was cut
    };

    struct File {
        QByteArray synced;
        std::vector<Change> pending;
        std::optional<QByteArray> replaced = {}; // what was under the name before it was made
        bool isCreationSynced = false;
        bool isRemoved = false; // without a sync of the folder
    };

    bool isWatched(const char* path) const;
    void opened(const std::string& path);
    void changed(const std::string& path, Change change);
    void wasSynced(const std::string& path);
    void syncFolder(); // under the mutex
    void removed(const char* path, bool isFolderSynced);
    void tell() const;
    static void apply(const Change& change, QByteArray& content);

    const std::string folder_;
    const Syncs syncs_;
    std::function<void()> handler_;
    mutable std::mutex mutex_;
    std::map<std::string, File> files_; // guarded by the mutex
    sqlite3_vfs* const real_;
    std::unique_ptr<sqlite3_vfs> vfs_;
};

} // namespace tessarine::testing
