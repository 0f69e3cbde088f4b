#include "platform/linux/applications/LinuxSystemSettings.h"

#include "support/EventLoop.h"
#include "support/Printers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// Programs in a folder of the test's own, which is the only one that is searched.
class LinuxSystemSettingsTest : public ::testing::Test {
public:
    ~LinuxSystemSettingsTest() override { qputenv("PATH", path_); }

protected:
    LinuxSystemSettingsTest() { qputenv("PATH", QFile::encodeName(folder_.path())); }

    // One that writes its arguments into a file.
    void install(const QString& name) {
        QFile program(folder_.filePath(name));
        ASSERT_TRUE(program.open(QIODevice::WriteOnly));
        program.write("#!/bin/sh\necho \"$0 $*\" > " + QFile::encodeName(witness()) +
                      ".part && /bin/mv " + QFile::encodeName(witness()) + ".part " +
                      QFile::encodeName(witness()) + "\n");
        program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QString witness() const { return folder_.filePath(u"started"_qs); }
    QString started() const {
        QFile file(witness());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed()
                                              : QString();
    }

    QTemporaryDir folder_;

private:
    const QByteArray path_ = qgetenv("PATH");
};

TEST_F(LinuxSystemSettingsTest, OpensTheNotificationsPageOfTheDesktop) {
    install(u"gnome-control-center"_qs);
    LinuxSystemSettings settings({u"ubuntu"_qs, u"GNOME"_qs});
    EXPECT_TRUE(settings.offers(settingsPages::accessibility));
    EXPECT_TRUE(settings.open(settingsPages::accessibility));
    ASSERT_TRUE(testing::turnsUntil([&] { return QFile::exists(witness()); }));
    EXPECT_EQ(started(), folder_.filePath(u"gnome-control-center"_qs) + u" notifications"_qs);
}

TEST_F(LinuxSystemSettingsTest, OpensThePrivacyPageForFiles) {
    install(u"cinnamon-settings"_qs);
    LinuxSystemSettings settings({u"X-Cinnamon"_qs});
    EXPECT_TRUE(settings.open(settingsPages::fullDiskAccess));
    ASSERT_TRUE(testing::turnsUntil([&] { return QFile::exists(witness()); }));
    EXPECT_EQ(started(), folder_.filePath(u"cinnamon-settings"_qs) + u" privacy"_qs);
}

TEST_F(LinuxSystemSettingsTest, TakesTheVersionThatIsInstalled) {
    install(u"systemsettings5"_qs);
    LinuxSystemSettings settings({u"KDE"_qs});
    EXPECT_TRUE(settings.open(settingsPages::accessibility));
    ASSERT_TRUE(testing::turnsUntil([&] { return QFile::exists(witness()); }));
    EXPECT_EQ(started(), folder_.filePath(u"systemsettings5"_qs) + u" kcm_notifications"_qs);
}

TEST_F(LinuxSystemSettingsTest, HasNoPageWhereTheDesktopHasNone) {
    install(u"systemsettings"_qs);
    LinuxSystemSettings settings({u"KDE"_qs});
    EXPECT_FALSE(settings.offers(settingsPages::fullDiskAccess));
    EXPECT_FALSE(settings.open(settingsPages::fullDiskAccess));
}

TEST_F(LinuxSystemSettingsTest, HasNoPageWhereItsProgramIsNotInstalled) {
    LinuxSystemSettings settings({u"GNOME"_qs});
    EXPECT_FALSE(settings.offers(settingsPages::accessibility));
    EXPECT_FALSE(settings.open(settingsPages::accessibility));
}

TEST_F(LinuxSystemSettingsTest, LeavesTheSettingsOfAnotherDesktopAlone) {
    install(u"gnome-control-center"_qs);
    for (const QStringList& desktops : {QStringList(), QStringList(u"sway"_qs)})
        EXPECT_FALSE(LinuxSystemSettings(desktops).offers(settingsPages::accessibility));
}

TEST_F(LinuxSystemSettingsTest, HasNoPageAtAnotherAddress) {
    install(u"gnome-control-center"_qs);
    LinuxSystemSettings settings({u"GNOME"_qs});
    EXPECT_FALSE(settings.offers(u"https://example.com/"_qs));
    EXPECT_FALSE(settings.open(QString()));
}

} // namespace
} // namespace tessarine
