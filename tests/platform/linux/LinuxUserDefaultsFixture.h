#pragma once

#include "platform/linux/LinuxUserDefaults.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarine::testing {

using namespace Qt::StringLiterals;

// A folder for a file of settings, and the file as a person sees it.
class LinuxUserDefaultsFixture : public ::testing::Test {
protected:
    QString path() const { return folder.filePath(u"com.zorvek.Tessarine.conf"_qs); }

    void writeByHand(const QByteArray& text) const {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    void writeValueByHand(const char* value) const {
        writeByHand(QByteArray("[General]\nkey=") + value + '\n');
    }

    // The file as the next run of the program finds it: under another name, since Qt keeps what a
    // process has read or written in its memory.
    QString pathOfNextRun() const {
        QString path = folder.filePath(u"next-run.conf"_qs);
        EXPECT_TRUE(QFile::copy(this->path(), path));
        return path;
    }

    QByteArrayList linesOnDisk() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QByteArrayList();
    }

    const QString key = u"key"_qs;
    QTemporaryDir folder;
};

} // namespace tessarine::testing
