#include "controls/ControlsFixture.h"

#include <QCursor>
#include <QDir>
#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

// Pictures of all controls, for people to look at. The program runs twice, at both densities.
class GalleryTest : public ControlsFixture, public ::testing::WithParamInterface<bool> {
protected:
    GalleryTest() { theme.applyAppearance(GetParam() ? u"dark"_qs : u"light"_qs); }

    // Saves what the window shows; expects that the background is the appearance's own.
    void save(const QString& name) {
        const QImage shown = picture();
        const double density = window->effectiveDevicePixelRatio();
        EXPECT_EQ(shown.size(), window->size() * density);
        QDir().mkpath(QStringLiteral(PICTURES_FOLDER));
        const QString file = u"theme-%1-%2@%3x.png"_qs.arg(
            name, GetParam() ? u"dark"_qs : u"light"_qs, QString::number(density));
        EXPECT_TRUE(shown.save(QDir(QStringLiteral(PICTURES_FOLDER)).filePath(file)));
    }
};

TEST_P(GalleryTest, Resting) {
    load(u"gallery"_qs);
    EXPECT_EQ(picture().pixelColor(2, 2), theme.colours().windowBackground);
    save(u"controls"_qs);
}

TEST_P(GalleryTest, RightToLeft) {
    load(u"gallery"_qs);
    scene->setProperty("mirrored", true);
    save(u"controls-mirrored"_qs);
}

TEST_P(GalleryTest, HoveredPressedAndFocused) {
    load(u"gallery"_qs);
    hover(u"plain"_qs);
    save(u"hovered"_qs);
    QTest::mousePress(window.get(), Qt::LeftButton, {}, centre(u"first"_qs));
    save(u"pressed"_qs);
    QTest::mouseRelease(window.get(), Qt::LeftButton, {}, centre(u"first"_qs));
    for (const QString& name :
         {u"first"_qs, u"icon"_qs, u"picker"_qs, u"toggle"_qs, u"switchRow"_qs, u"choiceRow"_qs,
          u"textField"_qs, u"checkBox"_qs, u"link"_qs}) {
        item(name).forceActiveFocus(Qt::TabFocusReason);
        EXPECT_TRUE(showsFocusRing(name));
        save(u"focused-"_qs + name);
    }
}

TEST_P(GalleryTest, Panels) {
    load(u"panels"_qs);
    for (const QString& name : {u"popover"_qs, u"sheet"_qs, u"alert"_qs, u"notice"_qs}) {
        QMetaObject::invokeMethod(&object(name), "open");
        EXPECT_TRUE(becomes(name, "opened", true));
        save(name);
        QMetaObject::invokeMethod(&object(name), "close");
        EXPECT_TRUE(becomes(name, "visible", false));
    }
}

TEST_P(GalleryTest, Menu) {
    load(u"panels"_qs);
    QCursor::setPos(window->mapToGlobal(centre(u"list"_qs)));
    click(u"list"_qs, Qt::RightButton);
    EXPECT_TRUE(becomes(u"menu"_qs, "opened", true));
    hover(u"copy"_qs);
    save(u"menu"_qs);
}

TEST_P(GalleryTest, Pickers) {
    load(u"panels"_qs);
    for (const QString& name : {u"long"_qs, u"short"_qs}) {
        click(name);
        EXPECT_TRUE(becomes(name, "opened", true));
        save(u"picker-"_qs + name);
        press(Qt::Key_Escape);
        EXPECT_TRUE(becomes(name, "opened", false));
    }
}

TEST_P(GalleryTest, Symbols) {
    load(u"symbols"_qs);
    scene->setProperty("names", symbols->names());
    save(u"symbols"_qs);
}

INSTANTIATE_TEST_SUITE_P(Pictures, GalleryTest, ::testing::Bool(),
                         [](const auto& info) { return info.param ? "Dark" : "Light"; });

} // namespace
} // namespace tessarine::testing
