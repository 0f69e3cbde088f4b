#pragma once

#include "export/ExportManager.h"
#include "support/DateLocaleScope.h"
#include "support/Printers.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"
#include "support/TimeZoneScope.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarine::testing {

// A moment of 3 March 2026, universal time, in seconds since the reference date: 794188800 is
// midnight, by date(1).
constexpr double march3(int hour, int minute = 0, int second = 0) {
    return 794188800.0 + hour * 3600.0 + minute * 60.0 + second;
}

inline CapturedNotification notification(const QString& app, const QString& title,
                                         const QString& body, double timestamp = march3(9)) {
    CapturedNotification made;
    made.appName = app;
    made.appBundleId = QStringLiteral("com.example.") + app.toLower();
    made.title = title;
    made.body = body;
    made.timestamp = timestamp;
    return made;
}

inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

// The export manager over settings of the test's own, at 09:15:02 on 3 March 2026, in universal
// time and American dates.
class ExportTest : public ::testing::Test {
protected:
    ExportTest() { system.scheduler.setWallClock(march3(9, 15, 2)); }

    QString path(const QString& name) const { return folder.filePath(name); }

    DateLocaleScope locale{"en_US.UTF-8"};
    TimeZoneScope zone{"UTC"};
    QTemporaryDir folder;
    SimulatedPlatform system{folder.path()};
    PreferencesStore preferences{system.defaults};
    SimulatedSavePanel panel;
    ExportManager manager{{preferences, system.scheduler, panel}};
};

} // namespace tessarine::testing
