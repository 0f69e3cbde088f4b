#include "store/CuttableDisk.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <new>

namespace tessarine::testing {

namespace {

// A file as SQLite holds it. The real one lies behind it in the same memory.
struct CuttableFile {
    sqlite3_file base;
    CuttableDisk* disk;
    std::string* path; // null: not watched

    sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

CuttableFile& cuttable(sqlite3_file* file) {
    return *reinterpret_cast<CuttableFile*>(file);
}

sqlite3_file* realOf(sqlite3_file* file) {
    return cuttable(file).real();
}

// With the first sync of such a file that is new SQLite syncs its folder too.
bool isJournalOrLog(const std::string& path) {
    return path.ends_with("-journal") || path.ends_with("-wal");
}

bool keeps(double share, std::mt19937& random) {
    return std::uniform_real_distribution(0.0, 1.0)(random) < share;
}

template <typename Value, std::size_t count>
Value oneOf(const std::array<Value, count>& values, std::mt19937& random) {
    return values[std::uniform_int_distribution<std::size_t>(0, count - 1)(random)];
}

} // namespace

// What SQLite calls.
struct CuttableDiskCalls {
    static CuttableDisk& diskOf(sqlite3_vfs* vfs) {
        return *static_cast<CuttableDisk*>(vfs->pAppData);
    }

    static int open(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags,
                    int* flagsOut) {
        CuttableDisk& disk = diskOf(vfs);
        CuttableFile& ours = cuttable(file);
        ours.base.pMethods = nullptr;
        ours.disk = &disk;
        ours.path = nullptr;
        const int result = disk.real_->xOpen(disk.real_, name, ours.real(), flags, flagsOut);
        if (result != SQLITE_OK)
            return result;
        ours.base.pMethods = &methods;
        if (name && disk.isWatched(name)) {
            ours.path = new std::string(name);
            disk.opened(*ours.path);
        }
        return SQLITE_OK;
    }

    static int remove(sqlite3_vfs* vfs, const char* name, int syncsFolder) {
        CuttableDisk& disk = diskOf(vfs);
        const int result = disk.real_->xDelete(disk.real_, name, syncsFolder);
        if (result == SQLITE_OK && disk.isWatched(name))
            disk.removed(name, syncsFolder != 0);
        return result;
    }

    static int close(sqlite3_file* file) {
        delete cuttable(file).path;
        return realOf(file)->pMethods->xClose(realOf(file));
    }

    static int read(sqlite3_file* file, void* to, int length, sqlite3_int64 offset) {
        return realOf(file)->pMethods->xRead(realOf(file), to, length, offset);
    }

    static int write(sqlite3_file* file, const void* bytes, int length, sqlite3_int64 offset) {
        const int result = realOf(file)->pMethods->xWrite(realOf(file), bytes, length, offset);
        if (result == SQLITE_OK)
            report(file, {offset, QByteArray(static_cast<const char*>(bytes), length)});
        return result;
    }

    static int truncate(sqlite3_file* file, sqlite3_int64 size) {
        const int result = realOf(file)->pMethods->xTruncate(realOf(file), size);
        if (result == SQLITE_OK)
            report(file, {size, {}});
        return result;
    }

    static void report(sqlite3_file* file, CuttableDisk::Change change) {
        if (cuttable(file).path)
            cuttable(file).disk->changed(*cuttable(file).path, std::move(change));
    }

    // The real file isn't synced: no power is cut in earnest.
    static int sync(sqlite3_file* file, int) {
        if (cuttable(file).path)
            cuttable(file).disk->wasSynced(*cuttable(file).path);
        return SQLITE_OK;
    }

    static int fileSize(sqlite3_file* file, sqlite3_int64* size) {
        return realOf(file)->pMethods->xFileSize(realOf(file), size);
    }
    static int lock(sqlite3_file* file, int level) {
        return realOf(file)->pMethods->xLock(realOf(file), level);
    }
    static int unlock(sqlite3_file* file, int level) {
        return realOf(file)->pMethods->xUnlock(realOf(file), level);
    }
    static int checkReservedLock(sqlite3_file* file, int* result) {
        return realOf(file)->pMethods->xCheckReservedLock(realOf(file), result);
    }
    static int fileControl(sqlite3_file* file, int operation, void* argument) {
        return realOf(file)->pMethods->xFileControl(realOf(file), operation, argument);
    }
    static int sectorSize(sqlite3_file* file) {
        return realOf(file)->pMethods->xSectorSize(realOf(file));
    }
    static int characteristics(sqlite3_file* file) {
        return realOf(file)->pMethods->xDeviceCharacteristics(realOf(file));
    }
    static int shmMap(sqlite3_file* file, int region, int size, int extend, void volatile** at) {
        return realOf(file)->pMethods->xShmMap(realOf(file), region, size, extend, at);
    }
    static int shmLock(sqlite3_file* file, int offset, int count, int flags) {
        return realOf(file)->pMethods->xShmLock(realOf(file), offset, count, flags);
    }
    static void shmBarrier(sqlite3_file* file) {
        realOf(file)->pMethods->xShmBarrier(realOf(file));
    }
    static int shmUnmap(sqlite3_file* file, int isDeleted) {
        return realOf(file)->pMethods->xShmUnmap(realOf(file), isDeleted);
    }

    // Version 2: no mapped reading, which would go past us.
    static constexpr sqlite3_io_methods methods{2,
                                                close,
                                                read,
                                                write,
                                                truncate,
                                                sync,
                                                fileSize,
                                                lock,
                                                unlock,
                                                checkReservedLock,
                                                fileControl,
                                                sectorSize,
                                                characteristics,
                                                shmMap,
                                                shmLock,
                                                shmBarrier,
                                                shmUnmap,
                                                nullptr,
                                                nullptr};
};

CuttableDisk::CuttableDisk(const QString& folder, Syncs syncs)
    : folder_(folder.toStdString() + '/')
    , syncs_(syncs)
    , real_(sqlite3_vfs_find(nullptr))
    , vfs_(std::make_unique<sqlite3_vfs>(*real_)) {
    // Calls that are not replaced get our structure, and use nothing of it.
    vfs_->szOsFile = static_cast<int>(sizeof(CuttableFile)) + real_->szOsFile;
    vfs_->pNext = nullptr;
    vfs_->zName = "cuttable";
    vfs_->pAppData = this;
    vfs_->xOpen = CuttableDiskCalls::open;
    vfs_->xDelete = CuttableDiskCalls::remove;
    sqlite3_vfs_register(vfs_.get(), 1);
}

CuttableDisk::~CuttableDisk() {
    sqlite3_vfs_unregister(vfs_.get());
    sqlite3_vfs_register(real_, 1);
}

bool CuttableDisk::isWatched(const char* path) const {
    return std::strncmp(path, folder_.c_str(), folder_.size()) == 0;
}

void CuttableDisk::opened(const std::string& path) {
    const std::lock_guard lock(mutex_);
    File& file = files_[path];
    if (file.isRemoved)
        file = File{{}, {}, file.synced};
}

void CuttableDisk::changed(const std::string& path, Change change) {
    {
        const std::lock_guard lock(mutex_);
        files_[path].pending.push_back(std::move(change));
    }
    tell();
}

void CuttableDisk::wasSynced(const std::string& path) {
    if (syncs_ == Syncs::kept) {
        const std::lock_guard lock(mutex_);
        File& file = files_[path];
        for (const Change& change : file.pending)
            apply(change, file.synced);
        file.pending.clear();
        if (!file.isCreationSynced && isJournalOrLog(path))
            syncFolder();
    }
    tell();
}

void CuttableDisk::syncFolder() {
    std::erase_if(files_, [](const auto& entry) { return entry.second.isRemoved; });
    for (auto& entry : files_) {
        entry.second.isCreationSynced = true;
        entry.second.replaced.reset();
    }
}

void CuttableDisk::removed(const char* path, bool isFolderSynced) {
    {
        const std::lock_guard lock(mutex_);
        files_[path].isRemoved = true;
        if (isFolderSynced && syncs_ == Syncs::kept)
            syncFolder();
    }
    tell();
}

void CuttableDisk::tell() const {
    if (handler_)
        handler_();
}

void CuttableDisk::apply(const Change& change, QByteArray& content) {
    const auto offset = static_cast<qsizetype>(change.offset);
    if (change.bytes.isEmpty())
        return content.truncate(offset);
    if (content.size() < offset + change.bytes.size())
        content.append(offset + change.bytes.size() - content.size(), '\0');
    std::copy(change.bytes.begin(), change.bytes.end(), content.begin() + offset);
}

DiskImage CuttableDisk::imageAfterCut(std::mt19937& random) const {
    const auto sector = oneOf(std::array<qsizetype, 2>{512, 4096}, random);
    const double share = oneOf(std::array{0.0, 0.1, 0.5, 0.9, 1.0}, random);
    const std::lock_guard lock(mutex_);
    DiskImage image;
    for (const auto& [path, file] : files_) {
        const QString name = QString::fromStdString(path).section(u'/', -1);
        if ((file.isRemoved || !file.isCreationSynced) && !keeps(0.5, random)) {
            if (file.replaced)
                image[name] = *file.replaced;
            continue;
        }
        QByteArray content = file.synced;
        for (const Change& change : file.pending) {
            qsizetype done = 0;
            do {
                const auto at = static_cast<qsizetype>(change.offset) + done;
                const QByteArray part = change.bytes.mid(done, sector - at % sector);
                if (keeps(share, random))
                    apply({at, part}, content);
                done += std::max<qsizetype>(part.size(), 1);
            } while (done < change.bytes.size());
        }
        image[name] = content;
    }
    return image;
}

} // namespace tessarine::testing
