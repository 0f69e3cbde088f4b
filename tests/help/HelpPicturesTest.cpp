#include "help/HelpFixture.h"
#include "support/EventLoop.h"
#include "support/WindowPicture.h"
#include "theme/Texts.h"

#include <QGuiApplication>
#include <QTest>

#include <string>
#include <tuple>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

// While it lives, the texts are those of a language.
class LanguageScope {
public:
    explicit LanguageScope(const QString& language) { installTexts({language}); }
    ~LanguageScope() { installTexts({u"en"_qs}); }
    LanguageScope(const LanguageScope&) = delete;
    LanguageScope& operator=(const LanguageScope&) = delete;
};

// While it lives, the language is one that is written from right to left.
class MirroredScope {
public:
    explicit MirroredScope(bool isMirrored) {
        if (isMirrored)
            QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    }
    ~MirroredScope() { QGuiApplication::setLayoutDirection(before_); }
    MirroredScope(const MirroredScope&) = delete;
    MirroredScope& operator=(const MirroredScope&) = delete;

private:
    const Qt::LayoutDirection before_ = QGuiApplication::layoutDirection();
};

class PictureFixture : public HelpFixture {
protected:
    // At double density the screen of the tests is smaller than the window would be.
    void openAtItsSize() {
        open();
        resizeTo(QSize(760, 560));
    }

    void resizeTo(const QSize& size) const {
        quickWindow().resize(size);
        EXPECT_TRUE(turnsUntil([&] { return quickWindow().rootObject()->size() == size; }));
        draw();
    }

    // Texts that are not whole to be seen, by their content.
    QStringList cutTexts() const {
        QStringList cut;
        for (const QQuickItem* text : items(&HelpFixture::isText)) {
            const bool tooHigh = text->property("paintedHeight").toDouble() > text->height() + 0.5;
            const bool tooWide = text->property("paintedWidth").toDouble() > text->width() + 0.5;
            if (text->property("truncated").toBool() || tooHigh || tooWide)
                cut << text->property("text").toString();
        }
        return cut;
    }

    // The part of the window in which the page may have texts.
    QRectF pageRoom() const {
        const QQuickItem& pages = item(u"pages"_qs);
        return pages.mapRectToScene(QRectF(0, 0, pages.width(), pages.height()));
    }

    void save(const QString& name) const {
        const QString density = QString::number(quickWindow().effectiveDevicePixelRatio());
        EXPECT_TRUE(savePicture(stillPicture(quickWindow()), QStringLiteral(PICTURES_FOLDER),
                                u"help-%1@%2x.png"_qs.arg(name, density)));
    }
};

using Look = std::tuple<HelpSection, const char*, const char*>; // section, appearance, language

class HelpPicturesTest : public PictureFixture, public ::testing::WithParamInterface<Look> {};

TEST_P(HelpPicturesTest, ShowsTheSectionWithoutCuttingIt) {
    const auto [section, look, languageName] = GetParam();
    const LanguageScope language{QLatin1StringView(languageName)};
    theme.applyAppearance(QLatin1StringView(look));
    appearance.setReducesMotion(true);
    openAtItsSize();
    view().setSelectedSection(section);
    draw();
    EXPECT_EQ(cutTexts(), QStringList());
    EXPECT_EQ(textsOutside(*quickWindow().contentItem(), QRectF(0, 0, 760, 560)), QStringList());
    EXPECT_EQ(textsOutside(item(u"pages"_qs), pageRoom()), QStringList());

    save(u"%1-%2-%3"_qs.arg(rawValue(section), QLatin1StringView(languageName),
                            QLatin1StringView(look)));
}

std::string helpLookName(const ::testing::TestParamInfo<Look>& info) {
    const auto [section, look, language] = info.param;
    return rawValue(section).toStdString() + "_" + language + "_" + look;
}

INSTANTIATE_TEST_SUITE_P(Pictures, HelpPicturesTest,
                         ::testing::Combine(::testing::ValuesIn(allHelpSections),
                                            ::testing::Values("light", "dark"),
                                            ::testing::Values("en")),
                         helpLookName);

INSTANTIATE_TEST_SUITE_P(LanguagePictures, HelpPicturesTest,
                         ::testing::Combine(::testing::ValuesIn(allHelpSections),
                                            ::testing::Values("light"),
                                            ::testing::Values("it", "de", "fr")),
                         helpLookName);

class WholePagePicturesTest : public PictureFixture,
                              public ::testing::WithParamInterface<HelpSection> {};

TEST_P(WholePagePicturesTest, ShowsTheSectionToItsEnd) {
    appearance.setReducesMotion(true);
    openAtItsSize();
    view().setSelectedSection(GetParam());
    draw();
    const int height = int(item(u"page"_qs).property("contentHeight").toDouble());
    resizeTo(QSize(760, height));
    EXPECT_EQ(cutTexts(), QStringList());
    save(u"whole-"_qs + rawValue(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Sections, WholePagePicturesTest, ::testing::ValuesIn(allHelpSections),
                         [](const auto& info) { return rawValue(info.param).toStdString(); });

// What else the window may look like

enum class Scene { Search, NothingFound, Agreement, Narrow, Mirrored };

using SceneLook = std::tuple<Scene, const char*>;

const char* helpSceneName(Scene scene) {
    switch (scene) {
    case Scene::Search:
        return "search";
    case Scene::NothingFound:
        return "nothingFound";
    case Scene::Agreement:
        return "agreement";
    case Scene::Narrow:
        return "narrow";
    case Scene::Mirrored:
        return "mirrored";
    }
    return "";
}

class HelpScenePicturesTest : public PictureFixture,
                              public ::testing::WithParamInterface<SceneLook> {
protected:
    void bringAbout(Scene scene) {
        switch (scene) {
        case Scene::Search:
            view().setSearchText(u"pinned"_qs);
            break;
        case Scene::NothingFound:
            view().setSearchText(u"xyzzy"_qs);
            break;
        case Scene::Agreement:
            view().setSelectedSection(HelpSection::about);
            draw();
            click(item(u"reviewAgreement"_qs));
            break;
        case Scene::Narrow:
            view().setSelectedSection(HelpSection::limitations);
            resizeTo(QSize(420, 300));
            break;
        case Scene::Mirrored:
            view().setSelectedSection(HelpSection::iphone);
            draw();
            bringIntoSight(item(u"nextStep"_qs));
            break;
        }
    }
};

TEST_P(HelpScenePicturesTest, ShowsTheSceneWithoutCuttingIt) {
    const auto [scene, look] = GetParam();
    const MirroredScope mirrored(scene == Scene::Mirrored);
    services.agreementText =
        u"A sentence of an agreement, of which there are many. "_qs.repeated(80);
    theme.applyAppearance(QLatin1StringView(look));
    appearance.setReducesMotion(true);
    openAtItsSize();
    bringAbout(scene);
    draw();
    EXPECT_EQ(cutTexts(), QStringList());
    EXPECT_EQ(textsOutside(*quickWindow().contentItem(), QRectF(QPointF(), quickWindow().size())),
              QStringList());
    save(u"%1-%2"_qs.arg(QLatin1StringView(helpSceneName(scene)), QLatin1StringView(look)));
}

INSTANTIATE_TEST_SUITE_P(ScenePictures, HelpScenePicturesTest,
                         ::testing::Combine(::testing::Values(Scene::Search, Scene::NothingFound,
                                                              Scene::Agreement, Scene::Narrow,
                                                              Scene::Mirrored),
                                            ::testing::Values("light", "dark")),
                         [](const auto& info) {
                             return std::string(helpSceneName(std::get<0>(info.param))) + "_" +
                                    std::get<1>(info.param);
                         });

} // namespace
} // namespace tessarine::testing
