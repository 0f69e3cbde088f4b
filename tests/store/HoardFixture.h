#pragma once

#include "store/HoardStore.h"
#include "support/HoardFile.h"
#include "support/Printers.h"
#include "support/SimulatedPlatform.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace tessarine::testing {

// A hoard in a folder of the test's own, and an outsider's look at its file.
class HoardFixture : public ::testing::Test {
protected:
    HoardStore& start() {
        store = std::make_unique<HoardStore>(fileSystem, defaults, scheduler);
        store->open();
        return *store;
    }

    QString folder() const {
        return home.path() + QStringLiteral("/Library/Application Support/Tessarine");
    }
    QString hoardPath() const { return folder() + QStringLiteral("/hoard.db"); }
    DatabaseFile file() const { return DatabaseFile(hoardPath()); }

    static CapturedNotification capture(qint64 noteId, double timestamp = 700000000.0) {
        CapturedNotification notification;
        notification.noteId = noteId;
        notification.appBundleId = QStringLiteral("org.example.mail");
        notification.appName = QStringLiteral("Mail");
        notification.title = QStringLiteral("Title");
        notification.body = QStringLiteral("Body");
        notification.timestamp = timestamp;
        return notification;
    }

    static void writeFile(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    static QByteArray readFile(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir home;
    SimulatedDefaults defaults;
    SimulatedFileSystem fileSystem{home.path()};
    ManualScheduler scheduler;
    std::unique_ptr<HoardStore> store;
};

} // namespace tessarine::testing
