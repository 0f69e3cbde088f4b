#include "support/EventLoop.h"
#include "support/WindowPicture.h"
#include "ui/UiFixture.h"

#include <QGuiApplication>
#include <QTest>

#include <cctype>
#include <string>
#include <tuple>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

enum class Scene {
    Loading,
    Empty,
    Five,
    FiveHundred,
    LongWords,
    RightToLeft,
    Emoji,
    LongTexts,
    NoResults,
    GroupedByApp,
    GroupedByDate,
    ScrolledGroups,
    LoadOlder,
    Focused,
    Selection,
    DatePopover,
    DeleteSelected,
    DeleteAll,
    Masked,
    Preview,
    EmptyPreview,
    InfoBanner,
    WarningBanner,
    RowMenu,
    AppMenu,
    Export,
};

constexpr const char* nameOf(Scene scene) {
    switch (scene) {
    case Scene::Loading:
        return "loading";
    case Scene::Empty:
        return "empty";
    case Scene::Five:
        return "five";
    case Scene::FiveHundred:
        return "fiveHundred";
    case Scene::LongWords:
        return "longWords";
    case Scene::RightToLeft:
        return "rightToLeft";
    case Scene::Emoji:
        return "emoji";
    case Scene::LongTexts:
        return "longTexts";
    case Scene::NoResults:
        return "noResults";
    case Scene::GroupedByApp:
        return "groupedByApp";
    case Scene::GroupedByDate:
        return "groupedByDate";
    case Scene::ScrolledGroups:
        return "scrolledGroups";
    case Scene::LoadOlder:
        return "loadOlder";
    case Scene::Focused:
        return "focused";
    case Scene::Selection:
        return "selection";
    case Scene::DatePopover:
        return "datePopover";
    case Scene::DeleteSelected:
        return "deleteSelected";
    case Scene::DeleteAll:
        return "deleteAll";
    case Scene::Masked:
        return "masked";
    case Scene::Preview:
        return "preview";
    case Scene::EmptyPreview:
        return "emptyPreview";
    case Scene::InfoBanner:
        return "infoBanner";
    case Scene::WarningBanner:
        return "warningBanner";
    case Scene::RowMenu:
        return "rowMenu";
    case Scene::AppMenu:
        return "appMenu";
    case Scene::Export:
        return "export";
    }
    return "";
}

CapturedNotification notification(const QString& app, const QString& title, const QString& body) {
    static qint64 dbId = 0;
    CapturedNotification result;
    result.dbId = ++dbId;
    result.appName = app;
    result.title = title;
    result.body = body;
    result.timestamp = ManualScheduler::startOfTime - 1111.0 * double(dbId);
    return result;
}

NotificationList five() {
    return {
        notification(u"Mail"_qs, u"Anna Lindqvist"_qs,
                     u"The minutes of Tuesday's meeting are attached. Could you look at the second "
                     u"point before Friday?"_qs),
        notification(u"Calendar"_qs, u"Dentist"_qs, u"Tomorrow at 9:30, Harbour Street 12"_qs),
        notification(u"Messages"_qs, u"Tom"_qs, u"On my way"_qs),
        notification(u"Software Update"_qs, u"Updates are ready to install"_qs, {}),
        notification(u"Terminal"_qs, {}, u"The build has finished without errors."_qs),
    };
}

NotificationList fiveHundred() {
    NotificationList list;
    for (int i = 0; i < 100; ++i) {
        const NotificationList more = five();
        list.insert(list.end(), more.begin(), more.end());
    }
    return list;
}

NotificationList longWords() {
    const QString word = u"Donaudampfschifffahrtselektrizitätenhauptbetriebswerkbauunterbeamten"_qs;
    return {
        notification(word.repeated(3), word.repeated(8), word.repeated(12)),
        notification(u"Downloads"_qs,
                     u"https://example.com/"_qs + u"a/very/long/path/"_qs.repeated(30),
                     u"x"_qs.repeated(5000)),
        notification(u"An Application Whose Makers Could Not Stop Writing Its Name"_qs.repeated(4),
                     u"Short"_qs, u"Short"_qs),
    };
}

NotificationList rightToLeft() {
    return {
        notification(u"البريد"_qs, u"اجتماع الفريق يوم الثلاثاء"_qs,
                     u"يرجى مراجعة محضر الاجتماع المرفق قبل يوم الجمعة وإبلاغنا بأي تعديلات ترونها "
                     u"ضرورية على النقطة الثانية من جدول الأعمال، شكرا جزيلا لتعاونكم معنا."_qs),
        notification(u"הודעות"_qs, u"תזכורת: פגישה עם רופא השיניים"_qs,
                     u"מחר בשעה 9:30 ברחוב הנמל 12"_qs),
        notification(u"Mail"_qs, u"Mixed: שלום and مرحبا in one line"_qs,
                     u"Version 6.4 של התוכנה is ready"_qs),
    };
}

NotificationList emoji() {
    return {
        notification(u"Messages"_qs, u"🎉 Happy birthday! 🎂🎈"_qs,
                     u"👨‍👩‍👧‍👦 from all of us 🇮🇹🇯🇵 👍🏽"_qs),
        notification(u"🦊 Fox"_qs, u"只有一个标题的通知"_qs, u"日本語の本文と한국어 텍스트"_qs),
        notification(u"Weather"_qs, u"☀️ 24° ⛅️ 19°"_qs,
                     u"Line one\nLine two\nLine three\nLine four"_qs),
    };
}

NotificationList longTexts() {
    const QString sentence =
        u"A sentence of middling length that goes on for a while and then comes to its end. "_qs;
    return {
        notification(u"News"_qs, sentence.repeated(6), sentence.repeated(12)),
        notification(u"News"_qs, sentence.repeated(2), sentence.repeated(2)),
        notification(u"Notes"_qs, {}, {}),
        notification({}, u"From an application without a name"_qs, sentence),
    };
}

NotificationList contentOf(Scene scene) {
    switch (scene) {
    case Scene::Loading:
    case Scene::Empty:
        return {};
    case Scene::Five:
        return five();
    case Scene::FiveHundred:
        return fiveHundred();
    case Scene::LongWords:
        return longWords();
    case Scene::RightToLeft:
        return rightToLeft();
    case Scene::Emoji:
        return emoji();
    case Scene::LongTexts:
        return longTexts();
    case Scene::GroupedByApp:
    case Scene::GroupedByDate:
    case Scene::ScrolledGroups:
        return fiveHundred();
    case Scene::EmptyPreview:
        return longTexts();
    default:
        break;
    }
    NotificationList list = five();
    list[1].pinned = true;
    list[2].appBundleId = QStringLiteral("com.example.messages");
    return list;
}

// How the desktop looks while the picture is taken.
enum class Desk { Light, Dark, ContrastLight, ContrastDark, Green, RightToLeft };

bool isDark(Desk desk) {
    return desk == Desk::Dark || desk == Desk::ContrastDark;
}

bool hasContrast(Desk desk) {
    return desk == Desk::ContrastLight || desk == Desk::ContrastDark;
}

const char* nameOf(Desk desk) {
    switch (desk) {
    case Desk::Light:
        return "light";
    case Desk::Dark:
        return "dark";
    case Desk::ContrastLight:
        return "contrastLight";
    case Desk::ContrastDark:
        return "contrastDark";
    case Desk::Green:
        return "green";
    case Desk::RightToLeft:
        return "mirrored";
    }
    return "";
}

// While it lives, the language is one that is written from right to left.
class MirroredLayout {
public:
    explicit MirroredLayout(Desk desk)
        : before_(QGuiApplication::layoutDirection()) {
        if (desk == Desk::RightToLeft)
            QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    }
    ~MirroredLayout() { QGuiApplication::setLayoutDirection(before_); }
    MirroredLayout(const MirroredLayout&) = delete;
    MirroredLayout& operator=(const MirroredLayout&) = delete;

private:
    Qt::LayoutDirection before_;
};

using Look = std::tuple<Scene, Desk, int>; // scene, desk, width

class PicturesTest : public UiTest, public ::testing::WithParamInterface<Look> {
protected:
    PicturesTest() { system.accessibility.trusted = true; }

    const QUuid& idAt(std::size_t line) const { return listener->notifications()[line].id; }

    // What a user does to bring the window into the state of the scene.
    void bringAbout(Scene scene) {
        ContentView& browser = view();
        switch (scene) {
        case Scene::NoResults:
            browser.list()->setSearchText(u"nowhere to be found"_qs);
            break;
        case Scene::GroupedByApp:
            browser.list()->setGroupMode(GroupMode::app);
            browser.list()->toggleGroup(u"Mail"_qs);
            system.scheduler.advance(1);
            break;
        case Scene::GroupedByDate:
            browser.list()->setGroupMode(GroupMode::date);
            break;
        case Scene::ScrolledGroups:
            browser.list()->setGroupMode(GroupMode::app);
            draw();
            list().setProperty("contentY", 700.0);
            break;
        case Scene::LoadOlder:
            for (int i = 1; i <= 9; ++i)
                storeOld(i);
            browser.appear();
            break;
        case Scene::Focused:
            browser.actions()->onSingleTap(idAt(1));
            break;
        case Scene::Selection:
        case Scene::DatePopover:
        case Scene::DeleteSelected:
        case Scene::DeleteAll:
            browser.selection()->enterSelectionMode();
            browser.selection()->toggleSelection(idAt(0));
            browser.selection()->toggleSelection(idAt(2));
            browser.selection()->dates()->setShowDatePickerPopover(scene == Scene::DatePopover);
            browser.selection()->setShowDeleteSelectedConfirm(scene == Scene::DeleteSelected);
            browser.selection()->setShowDeleteAllConfirm(scene == Scene::DeleteAll);
            break;
        case Scene::Masked:
            preferences.setGlobalPrivacyMode(true);
            break;
        case Scene::Preview:
        case Scene::EmptyPreview:
            browser.actions()->onSingleTap(idAt(scene == Scene::Preview ? 0 : 2));
            browser.actions()->setShowPreview(true);
            break;
        case Scene::InfoBanner:
            browser.overlays()->showBanner(deepLinkBanner(u"Calendar"_qs));
            break;
        case Scene::WarningBanner:
            browser.actions()->openInApp(idAt(0));
            break;
        case Scene::RowMenu:
            click(*row(u"Dentist"_qs), Qt::RightButton);
            break;
        case Scene::AppMenu:
            click(item(u"appPicker"_qs));
            break;
        case Scene::Export:
            browser.overlays()->setShowExportSheet(true);
            break;
        default:
            break;
        }
    }

    void storeOld(int number) {
        CapturedNotification row;
        row.noteId = number;
        row.title = u"old"_qs;
        ASSERT_TRUE(hoard.insert(row));
    }
};

TEST_P(PicturesTest, ShowsTheSceneWithoutCuttingIt) {
    const auto [scene, desk, width] = GetParam();
    const MirroredLayout layout(desk);
    theme.applyAppearance(isDark(desk) ? u"dark"_qs : u"light"_qs);
    appearance.setHighContrast(hasContrast(desk));
    if (desk == Desk::Green)
        appearance.setAccent(QColor(0x3a, 0x94, 0x4a));
    makeWindow();
    if (scene != Scene::Loading)
        publish(contentOf(scene));
    window->window()->resize(width, 520);
    show();
    draw();
    bringAbout(scene);

    const QImage picture = stillPicture(*window->window());
    const double density = window->window()->effectiveDevicePixelRatio();
    EXPECT_EQ(picture.size(), QSize(width, 520) * density);
    EXPECT_EQ(textsOutside(*window->window()->contentItem(), QRectF(0, 0, width, 520)),
              QStringList());

    const QString name =
        u"%1-%2-%3@%4x.png"_qs.arg(QLatin1String(nameOf(scene)), QLatin1String(nameOf(desk)))
            .arg(width)
            .arg(density);
    EXPECT_TRUE(savePicture(picture, QStringLiteral(PICTURES_FOLDER), name));
}

std::string lookName(const ::testing::TestParamInfo<Look>& info) {
    const auto [scene, desk, width] = info.param;
    std::string deskName = nameOf(desk);
    deskName.front() = char(std::toupper(deskName.front()));
    return nameOf(scene) + deskName + std::to_string(width);
}

INSTANTIATE_TEST_SUITE_P(
    Pictures, PicturesTest,
    ::testing::Combine(
        ::testing::Values(Scene::Loading, Scene::Empty, Scene::Five, Scene::FiveHundred,
                          Scene::LongWords, Scene::RightToLeft, Scene::Emoji, Scene::LongTexts,
                          Scene::NoResults, Scene::GroupedByApp, Scene::GroupedByDate,
                          Scene::ScrolledGroups, Scene::LoadOlder, Scene::Focused, Scene::Selection,
                          Scene::DatePopover, Scene::DeleteSelected, Scene::DeleteAll,
                          Scene::Masked, Scene::Preview, Scene::EmptyPreview, Scene::InfoBanner,
                          Scene::WarningBanner, Scene::RowMenu, Scene::AppMenu, Scene::Export),
        ::testing::Values(Desk::Light, Desk::Dark), ::testing::Values(720)),
    lookName);

INSTANTIATE_TEST_SUITE_P(WidePictures, PicturesTest,
                         ::testing::Combine(::testing::Values(Scene::FiveHundred, Scene::LongWords,
                                                              Scene::GroupedByApp,
                                                              Scene::Selection),
                                            ::testing::Values(Desk::Light, Desk::Dark),
                                            ::testing::Values(1100)),
                         lookName);

INSTANTIATE_TEST_SUITE_P(
    ContrastPictures, PicturesTest,
    ::testing::Combine(::testing::Values(Scene::Five, Scene::ScrolledGroups, Scene::Focused,
                                         Scene::Selection, Scene::Masked, Scene::Preview,
                                         Scene::RowMenu, Scene::Export),
                       ::testing::Values(Desk::ContrastLight, Desk::ContrastDark),
                       ::testing::Values(720)),
    lookName);

INSTANTIATE_TEST_SUITE_P(AccentPictures, PicturesTest,
                         ::testing::Combine(::testing::Values(Scene::Focused, Scene::Export),
                                            ::testing::Values(Desk::Green), ::testing::Values(720)),
                         lookName);

INSTANTIATE_TEST_SUITE_P(MirroredPictures, PicturesTest,
                         ::testing::Combine(::testing::Values(Scene::Five, Scene::RightToLeft,
                                                              Scene::GroupedByApp, Scene::Masked,
                                                              Scene::Selection, Scene::RowMenu),
                                            ::testing::Values(Desk::RightToLeft),
                                            ::testing::Values(720)),
                         lookName);

} // namespace
} // namespace tessarine::testing
