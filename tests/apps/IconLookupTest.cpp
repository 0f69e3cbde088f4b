#include "apps/IconLookup.h"

#include "support/Printers.h"
#include "support/SimulatedApplicationIcons.h"
#include "support/SimulatedPlatform.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::SimulatedApplicationIcons;
using testing::SimulatedPlatform;
using testing::SimulatedSymbols;
using testing::square;

class IconLookupTest : public ::testing::Test {
protected:
    // The colour of the icon tells where it is from.
    QColor colour(const QString& bundleId, const QString& appName) const {
        return lookUpIcon(sources, bundleId, appName).pixelColor(54, 54);
    }

    void install(const QString& bundleId, const QString& path, const QImage& icon) {
        system.workspace.installed[bundleId] = path;
        icons.files[path] = icon;
    }

    void layDown(const QString& path, const QImage& icon) {
        system.workspace.bundles.insert(path);
        icons.files[path] = icon;
    }

    void run(const QString& bundleId, qint32 pid, const QImage& icon) {
        system.workspace.running.push_back({pid, bundleId, std::nullopt});
        icons.running[pid] = icon;
    }

    SimulatedPlatform system{u"/home/anna"_qs};
    SimulatedApplicationIcons icons;
    SimulatedSymbols symbols;
    IconSources sources{system.workspace, system.fileSystem, icons, symbols};
};

TEST_F(IconLookupTest, FinishesAnIconTo36PointsAtTripleDensity) {
    install(u"com.example.foo"_qs, u"/Foo.app"_qs, square(512, Qt::red));
    const QImage icon = lookUpIcon(sources, u"com.example.foo"_qs, u"Foo"_qs);
    EXPECT_EQ(icon.deviceIndependentSize(), QSizeF(36, 36));
    EXPECT_EQ(icon.devicePixelRatio(), 3);
    EXPECT_EQ(icon.pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(IconLookupTest, GivesACopyOfItsOwn) {
    QImage own = square(108, Qt::red);
    install(u"com.example.foo"_qs, u"/Foo.app"_qs, own);
    const QImage icon = lookUpIcon(sources, u"com.example.foo"_qs, u"Foo"_qs);
    EXPECT_EQ(icons.files[u"/Foo.app"_qs].devicePixelRatio(), 1);
    EXPECT_EQ(icon.devicePixelRatio(), 3);
}

TEST_F(IconLookupTest, TakesAnIconWiderThanSixteenPoints) {
    install(u"com.example.foo"_qs, u"/Foo.app"_qs, square(17, Qt::red));
    EXPECT_EQ(colour(u"com.example.foo"_qs, u"Foo"_qs), QColor(Qt::red));
}

TEST_F(IconLookupTest, PassesOverAnIconOfSixteenPoints) {
    install(u"com.example.foo"_qs, u"/Foo.app"_qs, square(16, Qt::red));
    EXPECT_EQ(colour(u"com.example.foo"_qs, u"Foo"_qs), QColor(Qt::gray));
}

TEST_F(IconLookupTest, CountsPointsNotPixels) {
    QImage dense = square(32, Qt::red);
    dense.setDevicePixelRatio(2);
    install(u"com.example.foo"_qs, u"/Foo.app"_qs, dense);
    EXPECT_EQ(colour(u"com.example.foo"_qs, u"Foo"_qs), QColor(Qt::gray));
}

TEST_F(IconLookupTest, TakesEvenASmallIconOfARunningApplication) {
    run(u"com.example.foo"_qs, 7, square(12, Qt::green));
    EXPECT_EQ(colour(u"com.example.foo"_qs, u"Foo"_qs), QColor(Qt::green));
}

TEST_F(IconLookupTest, PrefersTheInstalledApplicationToTheRunningOne) {
    install(u"com.example.foo"_qs, u"/Foo.app"_qs, square(32, Qt::red));
    run(u"com.example.foo"_qs, 7, square(32, Qt::green));
    EXPECT_EQ(colour(u"com.example.foo"_qs, u"Foo"_qs), QColor(Qt::red));
}

TEST_F(IconLookupTest, AsksTheRunningOneWhereTheInstalledHasASubstitute) {
    install(u"com.example.foo"_qs, u"/Foo.app"_qs, square(16, Qt::red));
    run(u"com.example.foo"_qs, 7, square(16, Qt::green));
    EXPECT_EQ(colour(u"com.example.foo"_qs, u"Foo"_qs), QColor(Qt::green));
}

TEST_F(IconLookupTest, AsksTheFirstRunningOneAlone) {
    system.workspace.running.push_back({6, u"com.example.foo"_qs, std::nullopt});
    run(u"com.example.foo"_qs, 7, square(32, Qt::green));
    EXPECT_EQ(colour(u"com.example.foo"_qs, u"Foo"_qs), QColor(Qt::gray));
}

TEST_F(IconLookupTest, SkipsAnUnresolvedIdAndFindsTheNameInAFolder) {
    install(u"app_id_42"_qs, u"/Wrong.app"_qs, square(32, Qt::red));
    run(u"app_id_42"_qs, 7, square(32, Qt::green));
    layDown(u"/Applications/Foo.app"_qs, square(32, Qt::blue));
    EXPECT_EQ(colour(u"app_id_42"_qs, u"Foo"_qs), QColor(Qt::blue));
}

TEST_F(IconLookupTest, SkipsAnEmptyIdToo) {
    install({}, u"/Wrong.app"_qs, square(32, Qt::red));
    EXPECT_EQ(colour({}, u"Foo"_qs), QColor(Qt::gray));
}

TEST_F(IconLookupTest, LooksThroughFiveFoldersInTheirOrder) {
    lookUpIcon(sources, {}, u" Foo"_qs);
    EXPECT_EQ(system.workspace.askedPaths,
              QStringList({u"/Applications/ Foo.app"_qs, u"/System/Applications/ Foo.app"_qs,
                           u"/System/Applications/Utilities/ Foo.app"_qs,
                           u"/Applications/Utilities/ Foo.app"_qs,
                           u"/home/anna/Applications/ Foo.app"_qs}));
}

TEST_F(IconLookupTest, GoesOnToTheNextFolderAfterASubstitute) {
    layDown(u"/Applications/Foo.app"_qs, square(16, Qt::red));
    layDown(u"/home/anna/Applications/Foo.app"_qs, square(32, Qt::blue));
    EXPECT_EQ(colour({}, u"Foo"_qs), QColor(Qt::blue));
}

TEST_F(IconLookupTest, EndsWithTheGenericIcon) {
    const QImage icon = lookUpIcon(sources, u"com.example.foo"_qs, u"Foo"_qs);
    EXPECT_EQ(icon.pixelColor(54, 54), QColor(Qt::gray));
    EXPECT_EQ(icon.deviceIndependentSize(), QSizeF(36, 36));
}

TEST_F(IconLookupTest, EndsWithNoneWhereTheSystemHasNoGenericIcon) {
    icons.generic = QImage();
    EXPECT_TRUE(lookUpIcon(sources, u"com.example.foo"_qs, u"Foo"_qs).isNull());
}

TEST_F(IconLookupTest, TakesTheGenericIconWhateverItsSize) {
    icons.generic = square(8, Qt::cyan);
    EXPECT_EQ(colour({}, u"Foo"_qs), QColor(Qt::cyan));
}

// The settings

const QString settings = u"/System/Applications/System Settings.app"_qs;
const QString preferences = u"/System/Applications/System Preferences.app"_qs;

TEST_F(IconLookupTest, GivesAnAgentOfTheSystemTheSettingsIcon) {
    layDown(settings, square(32, Qt::red));
    EXPECT_EQ(colour({}, u"  Background Items Added"_qs), QColor(Qt::red));
}

TEST_F(IconLookupTest, GivesItThePreferencesIconOnOlderSystems) {
    layDown(preferences, square(32, Qt::blue));
    EXPECT_EQ(colour({}, u"Login Items"_qs), QColor(Qt::blue));
    layDown(settings, square(16, Qt::red));
    EXPECT_EQ(colour({}, u"Login Items"_qs), QColor(Qt::blue));
}

TEST_F(IconLookupTest, PrefersTheSettingsToTheFolders) {
    layDown(settings, square(32, Qt::red));
    layDown(u"/Applications/Software Update.app"_qs, square(32, Qt::blue));
    EXPECT_EQ(colour({}, u"Software Update"_qs), QColor(Qt::red));
}

TEST_F(IconLookupTest, PrefersTheBundleToTheSettings) {
    layDown(settings, square(32, Qt::red));
    install(u"com.apple.systempreferences"_qs, u"/P.app"_qs, square(32, Qt::blue));
    EXPECT_EQ(colour(u"com.apple.systempreferences"_qs, {}), QColor(Qt::blue));
}

TEST_F(IconLookupTest, GivesItASymbolWhereThereAreNoSettings) {
    const auto icon = lookUpSystemSettingsIcon(sources, u"Login Items"_qs, {});
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->deviceIndependentSize(), QSizeF(36, 36));
    EXPECT_EQ(icon->pixelColor(54, 54), QColor(0x8e, 0x8e, 0x93));
    EXPECT_EQ(colour({}, u"Login Items"_qs), QColor(0x8e, 0x8e, 0x93));
}

TEST_F(IconLookupTest, GoesOnWhereThereIsNoSymbolEither) {
    symbols.known.clear();
    EXPECT_EQ(lookUpSystemSettingsIcon(sources, u"Login Items"_qs, {}), std::nullopt);
    EXPECT_EQ(colour({}, u"Login Items"_qs), QColor(Qt::gray));
}

TEST_F(IconLookupTest, GivesOthersNoSettingsIcon) {
    layDown(settings, square(32, Qt::red));
    EXPECT_EQ(lookUpSystemSettingsIcon(sources, u"Mail"_qs, u"com.apple.mail"_qs), std::nullopt);
}

class SettingsPartTest : public ::testing::TestWithParam<const char16_t*> {};
class SettingsNameTest : public ::testing::TestWithParam<const char16_t*> {};
class SettingsIdTest : public ::testing::TestWithParam<const char16_t*> {};
class OtherNameTest : public ::testing::TestWithParam<const char16_t*> {};

bool isAlias(const QString& name) {
    return isSystemSettingsAlias(name, u"com.example"_qs);
}

TEST_P(SettingsPartTest, StandsForTheSettingsWhereverItIsInAName) {
    const QString part = QString::fromUtf16(GetParam());
    EXPECT_TRUE(isAlias(part));
    EXPECT_TRUE(isAlias(u"x"_qs + part + u"y"_qs));
    EXPECT_TRUE(isAlias(u"My "_qs + part.toUpper() + u" …"_qs));
    EXPECT_FALSE(isAlias(part.chopped(1)));
}

TEST_P(SettingsNameTest, StandsForTheSettings) {
    const QString name = QString::fromUtf16(GetParam());
    EXPECT_TRUE(isAlias(name));
    EXPECT_TRUE(isAlias(u" \t"_qs + name.toUpper() + u"\n "_qs));
}

TEST_P(SettingsIdTest, StandsForTheSettingsAsAWhole) {
    const QString id = QString::fromUtf16(GetParam());
    EXPECT_TRUE(isSystemSettingsAlias(u"Name"_qs, id));
    EXPECT_TRUE(isSystemSettingsAlias(u"Name"_qs, id.toUpper()));
    EXPECT_FALSE(isSystemSettingsAlias(u"Name"_qs, id + u"x"_qs));
    EXPECT_FALSE(isSystemSettingsAlias(u"Name"_qs, u' ' + id));
}

TEST_P(OtherNameTest, DoesNotStandForTheSettings) {
    const QString text = QString::fromUtf16(GetParam());
    EXPECT_FALSE(isSystemSettingsAlias(text, text));
}

INSTANTIATE_TEST_SUITE_P(Parts, SettingsPartTest,
                         ::testing::Values(u"system settings", u"system preferences",
                                           u"background items", u"background activity",
                                           u"login items", u"software update",
                                           u"softwareupdatenotification", u"btmnotificationagent"));
// All of them but "preferences" hold one of the parts as well.
INSTANTIATE_TEST_SUITE_P(Names, SettingsNameTest,
                         ::testing::Values(u"app background activity", u"background items added",
                                           u"background items", u"system settings",
                                           u"system preferences", u"preferences", u"login items",
                                           u"software update", u"softwareupdatenotification",
                                           u"btmnotificationagent"));
INSTANTIATE_TEST_SUITE_P(Ids, SettingsIdTest,
                         ::testing::Values(u"com.apple.systempreferences",
                                           u"com.apple.systemsettings", u"login.items",
                                           u"software.update",
                                           u"com.apple.softwareupdatenotification",
                                           u"com.apple.btmnotificationagent"));
INSTANTIATE_TEST_SUITE_P(Others, OtherNameTest,
                         ::testing::Values(u"", u"Mail", u"My Preferences", u"preference",
                                           u"settings", u"system  settings",
                                           u"com.apple.systempreferences.x", u" login.items"));

// The key

TEST(IconCacheKeyTest, IsTheBundleIdWhereItIsReal) {
    EXPECT_EQ(iconCacheKey(u"com.example.foo"_qs, u"Foo"_qs), u"bundle:com.example.foo"_qs);
    EXPECT_EQ(iconCacheKey(u"com.example.foo"_qs, u"Bar"_qs), u"bundle:com.example.foo"_qs);
    EXPECT_EQ(iconCacheKey(u"App_id_42"_qs, u"Foo"_qs), u"bundle:App_id_42"_qs);
}

TEST(IconCacheKeyTest, IsTheNameWhereItIsNot) {
    EXPECT_EQ(iconCacheKey({}, u"Foo"_qs), u"name:Foo"_qs);
    EXPECT_EQ(iconCacheKey(u"app_id_42"_qs, u"Foo"_qs), u"name:Foo"_qs);
    EXPECT_EQ(iconCacheKey(u"app_id_"_qs, {}), u"name:"_qs);
}

} // namespace
} // namespace tessarine
