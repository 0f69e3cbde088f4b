// Every text of every window, in every language: whole, inside its window, in its own place.

#include "languages/Language.h"
#include "languages/TextLayout.h"
#include "languages/WindowScenes.h"
#include "support/WindowPicture.h"

#include <QGuiApplication>
#include <QMenu>

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <tuple>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;
using ::testing::IsEmpty;

constexpr qsizetype longestReadableLine = 95; // "some 90"

using Spoken = std::tuple<WindowScene, Language>;

std::string spokenName(const ::testing::TestParamInfo<Spoken>& info) {
    std::string name = std::get<0>(info.param).name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name + "_" + nameOf(std::get<1>(info.param));
}

// The language is there before the windows are.
class InLanguage {
protected:
    explicit InLanguage(Language language)
        : language_(language) {}

private:
    LanguageScope language_;
};

class EveryTextTest : public ::testing::WithParamInterface<Spoken>, InLanguage, public WindowStage {
protected:
    EveryTextTest()
        : InLanguage(std::get<Language>(GetParam())) {}

    // With a folder for pictures named in the environment, the window goes there, light and dark,
    // in normal and in high contrast.
    void savePictures(QQuickWindow& window) {
        const QString target = qEnvironmentVariable("TESSARINE_LANGUAGE_PICTURES");
        if (target.isEmpty())
            return;
        const auto [scene, language] = GetParam();
        const QString name =
            QLatin1StringView(scene.name) + u'-' + QLatin1StringView(nameOf(language));
        for (const bool highContrast : {false, true}) {
            desktop.appearance.setHighContrast(highContrast);
            for (const QString& mode : {u"light"_qs, u"dark"_qs}) {
                delegate->applyAppearance(mode);
                const QString contrast = highContrast ? u"-contrast"_qs : QString();
                EXPECT_TRUE(savePicture(stillPicture(window), target,
                                        name + u'-' + mode + contrast + u".png"_qs));
            }
        }
    }
};

TEST_P(EveryTextTest, IsWholeAndInItsPlace) {
    std::get<WindowScene>(GetParam()).bringAbout(*this);
    QQuickWindow& window = shown();
    const QList<ShownText> texts = shownTexts(window);
    EXPECT_FALSE(texts.isEmpty());
    EXPECT_EQ(faultsOf(texts), QStringList());
    savePictures(window);
}

// The menu of the status item, which Qt draws: each entry is as wide as its text.

class StatusMenuTest : public ::testing::WithParamInterface<Language>,
                       InLanguage,
                       public WindowStage {
protected:
    StatusMenuTest()
        : InLanguage(GetParam()) {}
};

TEST_P(StatusMenuTest, HasRoomForEachOfItsEntries) {
    QMenu menu;
    for (const StatusMenuItem& item : desktop.statusItem.menuBuilder())
        menu.addAction(item.title);
    menu.ensurePolished();
    const QSize size = menu.sizeHint();
    for (QAction* action : menu.actions()) {
        const QRect place = menu.actionGeometry(action);
        EXPECT_LE(menu.fontMetrics().horizontalAdvance(action->text()), place.width());
        EXPECT_LE(place.right(), size.width());
    }
    EXPECT_LT(size.width(), 480);
}

INSTANTIATE_TEST_SUITE_P(Languages, StatusMenuTest,
                         ::testing::Values(Language::english, Language::german, Language::italian,
                                           Language::french, Language::longer, Language::mirrored),
                         [](const auto& info) { return std::string(nameOf(info.param)); });

// Mirroring: the same texts in the order of the other direction, each at the place across.

class StageOfItsOwn : public WindowStage {
    void TestBody() override {}
};

QList<ShownText> textsOf(const WindowScene& scene, Qt::LayoutDirection direction) {
    const LanguageScope language(Language::english);
    QGuiApplication::setLayoutDirection(direction); // until the scope ends
    StageOfItsOwn stage;
    scene.bringAbout(stage);
    return shownTexts(stage.shown());
}

class MirroredTextTest : public ::testing::TestWithParam<WindowScene> {};

TEST_P(MirroredTextTest, StandsAcross) {
    const QList<ShownText> expected = textsOf(GetParam(), Qt::LeftToRight);
    const QList<ShownText> mirrored = textsOf(GetParam(), Qt::RightToLeft);
    ASSERT_EQ(expected.size(), mirrored.size());
    QStringList faults;
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const QRectF place = expected[i].place;
        const double across = expected[i].windowWidth - place.right();
        const QRectF found = mirrored[i].place;
        if (expected[i].goesItsOwnWay)
            continue;
        if (std::abs(found.left() - across) > 1.5 || std::abs(found.top() - place.top()) > 1.5)
            faults
                << u"%1: %2 instead of %3"_qs.arg(expected[i].text).arg(found.left()).arg(across);
    }
    EXPECT_EQ(faults, QStringList());
}

// However wide a window is, its lines of text are short enough to read.

QStringList tooLong(const QList<ShownText>& texts) {
    QStringList faults;
    for (const ShownText& text : texts) {
        if (text.longestLine > longestReadableLine)
            faults << u"%1: %2"_qs.arg(text.longestLine).arg(text.text);
    }
    return faults;
}

// One of each window, and all that hold running text.
std::vector<WindowScene> readingScenes() {
    const QStringList windows{u"preview"_qs,      u"exportCsv"_qs,   u"general"_qs,
                              u"storage"_qs,      u"privacy"_qs,     u"permissions"_qs,
                              u"excludedApps"_qs, u"diagnostics"_qs, u"privacyNotice"_qs};
    std::vector<WindowScene> chosen;
    std::ranges::copy_if(windowScenes(), std::back_inserter(chosen), [&](const WindowScene& scene) {
        const auto name = QString::fromLatin1(scene.name);
        return name.startsWith(u"help") || name.startsWith(u"guide") || windows.contains(name);
    });
    return chosen;
}

class LineLengthTest : public ::testing::WithParamInterface<WindowScene>, public WindowStage {};

TEST_P(LineLengthTest, IsReadableInAVeryWideWindow) {
    GetParam().bringAbout(*this);
    if (shown().maximumSize() != shown().minimumSize())
        resize(2400, 900);
    EXPECT_EQ(tooLong(shownTexts(shown())), QStringList());
}

class RowLineLengthTest : public WindowStage {};

TEST_F(RowLineLengthTest, IsReadableInAVeryWideWindow) {
    openBrowser();
    CapturedNotification row;
    row.appName = u"Mail"_qs;
    row.timestamp = ManualScheduler::startOfTime;
    row.title = u"A title of words of middling length that goes on. "_qs.repeated(8);
    row.body =
        u"Running text of words of middling length, as people write it to others. "_qs.repeated(9);
    services->listener->setNotifications({row});
    resize(2400, 900);
    const QList<ShownText> texts = shownTexts(shown());
    EXPECT_EQ(tooLong(texts), QStringList());
    const auto longest = std::ranges::max(texts, {}, &ShownText::longestLine);
    EXPECT_GT(longest.longestLine, 70);
    const auto time = std::ranges::find_if(
        texts, [](const ShownText& text) { return text.text.contains(u"2025"); });
    ASSERT_NE(time, texts.end());
    EXPECT_LT(time->place.right() - longest.place.right(), 160);
}

INSTANTIATE_TEST_SUITE_P(Scenes, LineLengthTest, ::testing::ValuesIn(readingScenes()),
                         [](const auto& info) {
                             std::string name = info.param.name;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

INSTANTIATE_TEST_SUITE_P(Scenes, MirroredTextTest, ::testing::ValuesIn(windowScenes()),
                         [](const auto& info) {
                             std::string name = info.param.name;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

INSTANTIATE_TEST_SUITE_P(
    Languages, EveryTextTest,
    ::testing::Combine(::testing::ValuesIn(windowScenes()),
                       ::testing::Values(Language::english, Language::german, Language::italian,
                                         Language::french, Language::longer, Language::mirrored)),
    spokenName);

} // namespace
} // namespace tessarine::testing
