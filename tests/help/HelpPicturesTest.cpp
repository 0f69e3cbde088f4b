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

using Look = std::tuple<HelpSection, const char*, const char*>; // section, appearance, language

class HelpPicturesTest : public HelpFixture, public ::testing::WithParamInterface<Look> {
protected:
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
};

TEST_P(HelpPicturesTest, ShowsTheSectionWithoutCuttingIt) {
    const auto [section, look, languageName] = GetParam();
    const LanguageScope language{QLatin1StringView(languageName)};
    theme.applyAppearance(QLatin1StringView(look));
    appearance.setReducesMotion(true);
    open();
    view().setSelectedSection(section);
    draw();
    EXPECT_EQ(cutTexts(), QStringList());
    EXPECT_EQ(textsOutside(*quickWindow().contentItem(), QRectF(0, 0, 760, 560)), QStringList());
    EXPECT_EQ(textsOutside(item(u"pages"_qs), pageRoom()), QStringList());

    const QString density = QString::number(quickWindow().effectiveDevicePixelRatio());
    const QString name = u"help-%1-%2-%3@%4x.png"_qs.arg(
        rawValue(section), QLatin1StringView(languageName), QLatin1StringView(look), density);
    EXPECT_TRUE(savePicture(stillPicture(quickWindow()), QStringLiteral(PICTURES_FOLDER), name));
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

} // namespace
} // namespace tessarine::testing
