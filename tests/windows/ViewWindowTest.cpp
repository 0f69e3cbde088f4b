#include "windows/ViewWindow.h"

#include "support/EventLoop.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"
#include "theme/Theme.h"
#include "windows/ViewEngine.h"
#include "windows/WindowFrame.h"

#include <QGuiApplication>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

const WindowFeatures everyFeature =
    WindowFeature::closable | WindowFeature::miniaturizable | WindowFeature::resizable;

class ViewWindowTest : public ::testing::Test {
protected:
    static ViewWindow::Description description(WindowFeatures features = everyFeature,
                                               const QString& title = u"A window"_qs) {
        return {title,
                u"Tessarine/Testing/Plain"_qs,
                {{u"text"_qs, u"given"_qs}},
                features,
                {200, 100}};
    }

    static QPoint middleOfScreen() {
        return QGuiApplication::primaryScreen()->availableGeometry().center();
    }

    testing::SimulatedAppearance appearance;
    testing::SimulatedSymbols symbols;
    Theme theme{appearance};
    std::unique_ptr<QQmlEngine> engine = makeViewEngine(theme, symbols);
    testing::SimulatedDefaults defaults;
};

TEST_F(ViewWindowTest, IsBuiltHiddenWithItsTitleAndWhatItsRootWasGiven) {
    const ViewWindow window(description(), *engine);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(window.window().title(), u"A window"_qs);
    EXPECT_EQ(window.root().property("text").toString(), u"given"_qs);
}

TEST_F(ViewWindowTest, KeepsNothingThatDrawingTookWhileItIsHidden) {
    const ViewWindow window(description(), *engine);
    EXPECT_FALSE(window.window().isPersistentSceneGraph());
    EXPECT_FALSE(window.window().isPersistentGraphics());
}

TEST_F(ViewWindowTest, StandsInTheMiddleOfTheScreen) {
    ViewWindow window(description(), *engine);
    window.centre({300, 200});
    EXPECT_EQ(window.window().size(), QSize(300, 200));
    EXPECT_LE((window.window().geometry().center() - middleOfScreen()).manhattanLength(), 2);
}

TEST_F(ViewWindowTest, IsNeverSmallerThanItsMinimum) {
    ViewWindow window(description(), *engine);
    window.centre({20, 20});
    EXPECT_EQ(window.window().size(), QSize(200, 100));
    EXPECT_EQ(window.window().minimumSize(), QSize(200, 100));
}

TEST_F(ViewWindowTest, KeepsItsSizeWhereItIsNotResizable) {
    ViewWindow window(description(WindowFeature::closable), *engine);
    window.centre({300, 200});
    EXPECT_EQ(window.window().minimumSize(), QSize(300, 200));
    EXPECT_EQ(window.window().maximumSize(), QSize(300, 200));
    EXPECT_FALSE(window.window().flags().testFlag(Qt::WindowMaximizeButtonHint));
}

TEST_F(ViewWindowTest, TakesAnotherFixedSizeWhenItIsCentredAgain) {
    ViewWindow window(description(WindowFeature::closable), *engine);
    window.centre({300, 200});
    window.centre({400, 300});
    EXPECT_EQ(window.window().size(), QSize(400, 300));
}

TEST_F(ViewWindowTest, ChangesItsHeightBelowAnEdgeThatStays) {
    ViewWindow window(description(WindowFeature::closable), *engine);
    window.centre({300, 200});
    const QPoint corner = window.window().position();
    window.showAndMakeKey();
    window.changeHeight(350, 20);
    EXPECT_EQ(window.window().height(), 200);
    ASSERT_TRUE(testing::turnsUntil([&] { return window.window().height() == 350; }));
    EXPECT_EQ(window.window().size(), QSize(300, 350));
    EXPECT_EQ(window.window().position(), corner);
    EXPECT_EQ(window.window().minimumSize(), QSize(300, 350));
    EXPECT_EQ(window.window().maximumSize(), QSize(300, 350));
}

TEST_F(ViewWindowTest, ChangesItsHeightAtOnceWithoutTimeAndWhileItIsHidden) {
    ViewWindow window(description(), *engine);
    window.centre({300, 200});
    window.changeHeight(350, 1000);
    EXPECT_EQ(window.window().height(), 350);
    window.showAndMakeKey();
    window.changeHeight(250, 0);
    EXPECT_EQ(window.window().height(), 250);
    EXPECT_EQ(window.window().minimumSize(), QSize(200, 100));
}

TEST_F(ViewWindowTest, BecomesNoHigherThanTheScreen) {
    ViewWindow window(description(), *engine);
    window.centre({300, 200});
    window.changeHeight(100000, 0);
    EXPECT_EQ(window.window().height(), QGuiApplication::primaryScreen()->availableSize().height());
}

TEST_F(ViewWindowTest, HasTheButtonsThatItWasGiven) {
    const ViewWindow closable(description(WindowFeature::closable), *engine);
    EXPECT_TRUE(closable.window().flags().testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(closable.window().flags().testFlag(Qt::WindowMinimizeButtonHint));
    const ViewWindow resizable(description(WindowFeature::resizable), *engine);
    EXPECT_FALSE(resizable.window().flags().testFlag(Qt::WindowCloseButtonHint));
    EXPECT_TRUE(resizable.window().flags().testFlag(Qt::WindowTitleHint));
}

TEST_F(ViewWindowTest, ComesBackAfterItWasClosed) {
    ViewWindow window(description(), *engine);
    window.showAndMakeKey();
    EXPECT_TRUE(window.isVisible());
    window.window().close();
    EXPECT_FALSE(window.isVisible());
    window.showAndMakeKey();
    EXPECT_TRUE(window.isVisible());
}

TEST_F(ViewWindowTest, TellsWhenItIsShownAndHidden) {
    ViewWindow window(description(), *engine);
    const QSignalSpy shown(&window, &ViewWindow::shown);
    const QSignalSpy hidden(&window, &ViewWindow::hidden);
    window.showAndMakeKey();
    window.showAndMakeKey();
    EXPECT_EQ(shown.count(), 1);
    EXPECT_EQ(hidden.count(), 0);
    window.window().close();
    EXPECT_EQ(hidden.count(), 1);
}

TEST_F(ViewWindowTest, RemembersItsSizeAndNotItsPlace) {
    {
        ViewWindow window(description(), *engine);
        window.restoreSize(u"Plain"_qs, defaults, {300, 200});
        EXPECT_EQ(window.window().size(), QSize(300, 200));
        window.showAndMakeKey();
        window.window().setGeometry(5, 6, 350, 250);
        window.window().close();
    }
    EXPECT_EQ(defaults.text(u"NSWindow Frame Plain"_qs), frameToText({5, 6, 350, 250}));
    ViewWindow window(description(), *engine);
    window.restoreSize(u"Plain"_qs, defaults, {300, 200});
    EXPECT_EQ(window.window().size(), QSize(350, 250));
    EXPECT_LE((window.window().geometry().center() - middleOfScreen()).manhattanLength(), 2);
}

TEST_F(ViewWindowTest, KeepsNoFrameWhenItWasNotAskedTo) {
    ViewWindow window(description(), *engine);
    window.centre({300, 200});
    window.showAndMakeKey();
    window.window().resize(320, 220);
    window.window().close();
    EXPECT_TRUE(defaults.values.empty());
}

TEST_F(ViewWindowTest, IsKeptWhenItIsClosed) {
    const QPointer<ViewWindow> window = new ViewWindow(description(), *engine);
    window->showAndMakeKey();
    window->window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(window);
    delete window;
}

TEST_F(ViewWindowTest, IsReleasedWhenItIsClosedIfThatWasAskedFor) {
    const QPointer<ViewWindow> window = new ViewWindow(description(), *engine);
    window->releaseWhenClosed();
    window->showAndMakeKey();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(window);
    window->window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(window);
    EXPECT_EQ(ViewWindow::titled(u"A window"_qs), nullptr);
}

TEST_F(ViewWindowTest, IsFoundByItsExactTitle) {
    const ViewWindow other(description(everyFeature, u"Another"_qs), *engine);
    EXPECT_EQ(ViewWindow::titled(u"A window"_qs), nullptr);
    const ViewWindow window(description(), *engine);
    EXPECT_EQ(ViewWindow::titled(u"A window"_qs), &window);
    EXPECT_EQ(ViewWindow::titled(u"A windo"_qs), nullptr);
    EXPECT_EQ(ViewWindow::titled(u"a window"_qs), nullptr);
}

} // namespace
} // namespace tessarine
