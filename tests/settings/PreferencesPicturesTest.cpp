#include "settings/SettingsFixture.h"
#include "support/EventLoop.h"

#include <QDir>
#include <QGuiApplication>

#include <string>
#include <tuple>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

enum class SettingsScene {
    General,
    GeneralEnabled,
    Storage,
    StorageShort,
    StorageOther,
    StorageMenu,
    Privacy,
    PrivacyOn,
    Permissions,
    PermissionsWithout,
    SavingProblem,
    ExcludedApps,
    ExcludedNone,
    ExcludedLong,
    Confirmation,
    LongConfirmation,
    BackupWarning,
    BackupError,
};

constexpr const char* nameOf(SettingsScene scene) {
    constexpr const char* names[] = {
        "general",          "generalEnabled", "storage",      "storageShort", "storageOther",
        "storageMenu",      "privacy",        "privacyOn",    "permissions",  "permissionsWithout",
        "savingProblem",    "excludedApps",   "excludedNone", "excludedLong", "confirmation",
        "longConfirmation", "backupWarning",  "backupError"};
    return names[int(scene)];
}

enum class SettingsDesk { Light, Dark, Mirrored, ContrastDark };

constexpr const char* nameOf(SettingsDesk desk) {
    constexpr const char* names[] = {"Light", "Dark", "Mirrored", "ContrastDark"};
    return names[int(desk)];
}

class LayoutScope {
public:
    explicit LayoutScope(Qt::LayoutDirection direction) {
        QGuiApplication::setLayoutDirection(direction);
    }
    ~LayoutScope() { QGuiApplication::setLayoutDirection(before_); }
    LayoutScope(const LayoutScope&) = delete;
    LayoutScope& operator=(const LayoutScope&) = delete;

private:
    const Qt::LayoutDirection before_ = QGuiApplication::layoutDirection();
};

using SettingsLook = std::tuple<SettingsScene, SettingsDesk>;

class PreferencesPicturesTest : public SettingsTest,
                                public ::testing::WithParamInterface<SettingsLook> {
protected:
    void storeApps() {
        const QStringList names{u"Calendar"_qs, u"Mail"_qs,  u"Messages"_qs, u"Music"_qs,
                                u"News"_qs,     u"Notes"_qs, u"Photos"_qs,   u"Weather"_qs};
        qint64 id = 0;
        for (const QString& name : names)
            store(name, u"com.example."_qs + name.toLower(), ++id);
    }

    void storeLongNames() {
        const QString word = u"Donaudampfschifffahrtsgesellschaft"_qs;
        store(word.repeated(100), u"com.example."_qs + word.repeated(100), 1);
        store(u"A\nname\nof\nlines"_qs, u"com.example.lines"_qs, 2);
        store(QString(), u"com.example.nameless"_qs, 3);
        store(u"البريد"_qs, u"com.example.mail"_qs, 4);
    }

    void showSheet() {
        show();
        view().general()->setShowExcludedAppsSheet(true);
        system.scheduler.settle();
        ASSERT_TRUE(opens(u"excludedAppsSheet"_qs));
    }

    void showTab(PrefTab tab) {
        show();
        choose(tab);
    }

    // At double density the screen of the tests is too small for it.
    void takeFullSize() {
        const bool isFirst = view().selectedTab() == PrefTab::general;
        const QSize size(480, isFirst ? 500 : windowHeight(view().selectedTab()));
        window->window()->setMaximumSize(size);
        window->window()->setMinimumSize(size);
        window->window()->resize(size);
    }

    void bringAbout(SettingsScene scene) {
        switch (scene) {
        case SettingsScene::General:
            showTab(PrefTab::storage);
            return choose(PrefTab::general);
        case SettingsScene::GeneralEnabled:
            system.loginItem.current = LoginItemStatus::enabled;
            preferences.setExcludedBundleIds({u"com.example.mail"_qs});
            return show();
        case SettingsScene::Storage:
            hoard.open();
            return showTab(PrefTab::storage);
        case SettingsScene::StorageShort:
            preferences.setRetentionDays(14);
            return showTab(PrefTab::storage);
        case SettingsScene::StorageOther:
            preferences.setRetentionDays(15);
            return showTab(PrefTab::storage);
        case SettingsScene::StorageMenu:
            preferences.setRetentionDays(30);
            showTab(PrefTab::storage);
            return user().clickAt(item(u"keepFor"_qs),
                                  {qApp->isRightToLeft() ? 20 : item(u"keepFor"_qs).width() - 20,
                                   item(u"keepFor"_qs).height() / 2});
        case SettingsScene::Privacy:
            return showTab(PrefTab::privacy);
        case SettingsScene::PrivacyOn:
            preferences.setGlobalPrivacyMode(true);
            preferences.setOtpRetentionHours(24);
            return showTab(PrefTab::privacy);
        case SettingsScene::Permissions:
            system.accessibility.trusted = true;
            return showTab(PrefTab::permissions);
        case SettingsScene::PermissionsWithout:
            system.systemSettings.pages.clear();
            return showTab(PrefTab::permissions);
        case SettingsScene::SavingProblem:
            show();
            system.defaults.cannotBeWritten = true;
            return view().privacy()->setGlobalPrivacyMode(true);
        case SettingsScene::ExcludedApps:
            storeApps();
            preferences.setExcludedBundleIds({u"com.example.mail"_qs, u"com.example.news"_qs});
            return showSheet();
        case SettingsScene::ExcludedNone:
            return showSheet();
        case SettingsScene::ExcludedLong:
            storeLongNames();
            preferences.setExcludedBundleIds({u"com.example.lines"_qs});
            return showSheet();
        case SettingsScene::Confirmation:
            storeApps();
            showSheet();
            return view().general()->excludedApps()->toggleOn(1);
        case SettingsScene::LongConfirmation:
            storeLongNames();
            showSheet();
            return view().general()->excludedApps()->toggleOn(2);
        case SettingsScene::BackupWarning:
            showTab(PrefTab::storage);
            return view().storage()->backup()->request();
        case SettingsScene::BackupError:
            showTab(PrefTab::storage);
            savePanel.answer = folder.filePath(u"no/such/folder/backup.db"_qs);
            view().storage()->backup()->proceed();
            return system.scheduler.settle();
        }
    }
};

TEST_P(PreferencesPicturesTest, ShowsTheSceneWithoutCuttingIt) {
    const auto [scene, desk] = GetParam();
    const LayoutScope layout(desk == SettingsDesk::Mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    const bool dark = desk == SettingsDesk::Dark || desk == SettingsDesk::ContrastDark;
    views.theme.applyAppearance(dark ? u"dark"_qs : u"light"_qs);
    desktop.appearance.setHighContrast(desk == SettingsDesk::ContrastDark);
    bringAbout(scene);
    takeFullSize();
    const QImage picture = user().stillPicture();
    EXPECT_EQ(user().textsOutside(), QStringList());
    const QString name = u"settings-%1-%2@%3x.png"_qs.arg(
        QLatin1String(nameOf(scene)), QLatin1String(nameOf(desk)),
        QString::number(window->window()->effectiveDevicePixelRatio()));
    QDir().mkpath(QStringLiteral(PICTURES_FOLDER));
    EXPECT_TRUE(picture.save(QDir(QStringLiteral(PICTURES_FOLDER)).filePath(name)));
}

std::string settingsLookName(const ::testing::TestParamInfo<SettingsLook>& info) {
    return std::string(nameOf(std::get<0>(info.param))) + nameOf(std::get<1>(info.param));
}

const auto everyScene = ::testing::Values(
    SettingsScene::General, SettingsScene::GeneralEnabled, SettingsScene::Storage,
    SettingsScene::StorageShort, SettingsScene::StorageOther, SettingsScene::StorageMenu,
    SettingsScene::Privacy, SettingsScene::PrivacyOn, SettingsScene::Permissions,
    SettingsScene::PermissionsWithout, SettingsScene::SavingProblem, SettingsScene::ExcludedApps,
    SettingsScene::ExcludedNone, SettingsScene::ExcludedLong, SettingsScene::Confirmation,
    SettingsScene::LongConfirmation, SettingsScene::BackupWarning, SettingsScene::BackupError);

INSTANTIATE_TEST_SUITE_P(Pictures, PreferencesPicturesTest,
                         ::testing::Combine(everyScene, ::testing::Values(SettingsDesk::Light,
                                                                          SettingsDesk::Dark,
                                                                          SettingsDesk::Mirrored)),
                         settingsLookName);

INSTANTIATE_TEST_SUITE_P(ContrastPictures, PreferencesPicturesTest,
                         ::testing::Combine(::testing::Values(SettingsScene::General,
                                                              SettingsScene::ExcludedApps,
                                                              SettingsScene::Permissions),
                                            ::testing::Values(SettingsDesk::ContrastDark)),
                         settingsLookName);

} // namespace
} // namespace tessarine::testing
