#include "apps/AppIconView.h"

#include "ui/UiFixture.h"

#include <QDir>
#include <QQmlComponent>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

class AppIconViewTest : public UiTest {
protected:
    AppIconViewTest() {
        system.workspace.installed[u"com.example.foo"_qs] = u"/Foo.app"_qs;
        icons.files[u"/Foo.app"_qs] = square(256, Qt::red);
        window_.resize(400, 100);
        window_.setColor(Qt::white);
        window_.show();
    }

    AppIconView* add(const QString& bundleId, const QString& appName, double x = 0) {
        QQmlComponent component(views.engine.get());
        component.setData("import Tessarine.Apps\nAppIconTile { width: 36; height: 36; "
                          "cornerRadius: 8 }",
                          QUrl());
        EXPECT_TRUE(component.isReady()) << component.errorString().toStdString();
        auto* const view = qobject_cast<AppIconView*>(component.createWithInitialProperties(
            {{u"bundleId"_qs, bundleId}, {u"appName"_qs, appName}, {u"x"_qs, x}}));
        EXPECT_NE(view, nullptr);
        view->setParentItem(window_.contentItem());
        view->setParent(&window_);
        return view;
    }

    // Draws what is there; then come the lookups, and the drawing of what they gave.
    QImage frame() {
        window_.grabWindow();
        system.scheduler.settle();
        return window_.grabWindow();
    }

    static bool shows(const AppIconView* view, const QString& part) {
        return view->findChild<QQuickItem*>(part)->isVisible();
    }

    QQuickWindow window_;
};

TEST_F(AppIconViewTest, ShowsAPlaceholderFirst) {
    const AppIconView* view = add(u"com.example.foo"_qs, u"Foo Bar"_qs);
    const QImage picture = window_.grabWindow();
    EXPECT_TRUE(shows(view, u"placeholder"_qs));
    EXPECT_FALSE(shows(view, u"icon"_qs));
    EXPECT_EQ(view->initials(), u"FB"_qs);
    EXPECT_EQ(picture.pixelColor(18, 3), view->placeholderColour());
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::white)); // its corners are round
}

TEST_F(AppIconViewTest, ShowsTheIconWhenItHasCome) {
    const AppIconView* view = add(u"com.example.foo"_qs, u"Foo"_qs);
    const QImage picture = frame();
    EXPECT_TRUE(shows(view, u"icon"_qs));
    EXPECT_FALSE(shows(view, u"placeholder"_qs));
    EXPECT_EQ(picture.pixelColor(18, 18), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::white));
}

TEST_F(AppIconViewTest, KeepsItsPlaceholderWhereThereIsNoIcon) {
    icons.generic = QImage();
    AppIconView* view = add(u"com.example.bar"_qs, u"Bar"_qs);
    for (int i = 0; i < 2; ++i) { // when it is looked up, and when that is known
        EXPECT_EQ(frame().pixelColor(18, 3), view->placeholderColour());
        EXPECT_TRUE(shows(view, u"placeholder"_qs));
        EXPECT_FALSE(view->hasIcon());
        view->rebuild();
    }
}

TEST_F(AppIconViewTest, ShowsAKnownIconFromTheFirstMoment) {
    add(u"com.example.foo"_qs, u"Foo"_qs);
    frame();
    const AppIconView* later = add(u"com.example.foo"_qs, u"Foo"_qs, 40);
    EXPECT_TRUE(later->hasIcon());
    EXPECT_EQ(window_.grabWindow().pixelColor(58, 18), QColor(Qt::red));
    EXPECT_EQ(system.scheduler.waitingGlobalTasks(), 0U);
}

TEST_F(AppIconViewTest, AsksForNothingBeforeItIsShown) {
    window_.hide();
    add(u"com.example.foo"_qs, u"Foo"_qs);
    system.scheduler.settle();
    EXPECT_TRUE(views.icons->cache().isEmpty());
}

TEST_F(AppIconViewTest, AsksForNothingWhileItIsHiddenItself) {
    AppIconView* view = add(u"com.example.foo"_qs, u"Foo"_qs);
    view->setVisible(false);
    frame();
    EXPECT_TRUE(views.icons->cache().isEmpty());
    view->setVisible(true);
    frame();
    EXPECT_TRUE(view->hasIcon());
}

TEST_F(AppIconViewTest, HasATileOfRadius7WithTextOf12Points) {
    AppIconView* view = add(u"com.example.foo"_qs, u"Foo"_qs);
    view->setProperty("cornerRadius", 0);
    const QQuickItem* tile = view->findChild<QQuickItem*>(u"placeholder"_qs);
    EXPECT_EQ(tile->size(), QSizeF(36, 36));
    EXPECT_EQ(tile->property("radius").toDouble(), 7);
    EXPECT_EQ(tile->property("color").value<QColor>(), view->placeholderColour());
    const QQuickItem* initials = tile->findChild<QQuickItem*>(u"initials"_qs);
    EXPECT_EQ(initials->property("font").value<QFont>().pixelSize(), 12);
    EXPECT_EQ(initials->property("font").value<QFont>().weight(), QFont::DemiBold);
    EXPECT_EQ(initials->property("color").value<QColor>(), QColor(Qt::white));

    // A corner of radius 7 leaves free what lies more than 7 from its centre: on the diagonal the
    // first two pixels and a little of the third.
    const QImage picture = window_.grabWindow();
    EXPECT_EQ(picture.pixelColor(1, 1), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(3, 3), view->placeholderColour());
    EXPECT_EQ(picture.pixelColor(0, 9), view->placeholderColour());
}

TEST_F(AppIconViewTest, FitsItsInitialsIntoATileOfAnySize) {
    icons.generic = QImage();
    AppIconView* view = add({}, u"🎉 🎂"_qs);
    const QQuickItem* initials = view->findChild<QQuickItem*>(u"initials"_qs);
    const auto pixels = [&](double side) {
        view->setSize({side, side});
        const QRectF place = initials->mapRectToItem(view, initials->boundingRect());
        EXPECT_LE(place.width(), side) << side;
        return initials->property("font").value<QFont>().pixelSize();
    };
    EXPECT_EQ(pixels(18), 8); // of a header: 0.45 of it are 8.1
    EXPECT_EQ(pixels(24), 10);
    EXPECT_EQ(pixels(36), 12);
    EXPECT_EQ(pixels(44), 12);
}

TEST_F(AppIconViewTest, CutsTheTileToARounderPlace) {
    AppIconView* view = add(u"com.example.foo"_qs, u"Foo"_qs);
    const QQuickItem* tile = view->findChild<QQuickItem*>(u"placeholder"_qs);
    EXPECT_EQ(tile->property("radius").toDouble(), 8); // of a row
    view->setProperty("cornerRadius", 10);
    EXPECT_EQ(tile->property("radius").toDouble(), 10); // of the preview
    view->setProperty("cornerRadius", 4);
    EXPECT_EQ(tile->property("radius").toDouble(), 7); // of a header
}

TEST_F(AppIconViewTest, LeavesTheSecondOfTwoNewRowsWithItsPlaceholderUntilItIsRebuilt) {
    const AppIconView* first = add(u"com.example.foo"_qs, u"Foo"_qs);
    AppIconView* second = add(u"com.example.foo"_qs, u"Foo"_qs, 40);
    frame();
    frame();
    EXPECT_NE(first->hasIcon(), second->hasIcon()); // whichever was drawn first
    AppIconView* without = const_cast<AppIconView*>(first->hasIcon() ? second : first);
    EXPECT_TRUE(shows(without, u"placeholder"_qs));
    without->rebuild();
    EXPECT_TRUE(shows(without, u"icon"_qs));
}

TEST_F(AppIconViewTest, AsksAnewWhenItsApplicationChanges) {
    AppIconView* view = add(u"com.example.bar"_qs, u"Bar"_qs);
    frame();
    EXPECT_TRUE(view->hasIcon()); // the generic one
    view->setBundleId(u"com.example.foo"_qs);
    view->setAppName(u"Foo"_qs);
    EXPECT_FALSE(view->hasIcon());
    EXPECT_EQ(frame().pixelColor(18, 18), QColor(Qt::red));
}

TEST_F(AppIconViewTest, LooksUpNoMixtureOfTwoApplications) {
    AppIconView* view = add(u"com.example.foo"_qs, u"Foo"_qs);
    frame();
    view->setBundleId(u"com.example.bar"_qs); // the name follows in the same turn
    view->setAppName(u"Bar"_qs);
    frame();
    EXPECT_TRUE(system.workspace.askedPaths.contains(u"/Applications/Bar.app"_qs));
    EXPECT_FALSE(system.workspace.askedPaths.contains(u"/Applications/Foo.app"_qs));
}

TEST_F(AppIconViewTest, IgnoresAnAnswerThatComesTooLate) {
    AppIconView* view = add(u"com.example.foo"_qs, u"Foo"_qs);
    window_.grabWindow();
    view->setBundleId(u"com.example.bar"_qs);
    system.scheduler.settle();
    EXPECT_FALSE(view->hasIcon());
}

TEST_F(AppIconViewTest, SurvivesItsOwnEndDuringALookup) {
    const AppIconView* view = add(u"com.example.foo"_qs, u"Foo"_qs);
    window_.grabWindow();
    delete view;
    system.scheduler.settle();
    EXPECT_TRUE(views.icons->cache().contains(u"bundle:com.example.foo"_qs));
}

TEST_F(AppIconViewTest, ShowsAnUnresolvedSourceUnderItsName) {
    system.workspace.bundles.insert(u"/Applications/Foo.app"_qs);
    icons.files[u"/Applications/Foo.app"_qs] = square(64, Qt::blue);
    add(u"app_id_42"_qs, u"Foo"_qs);
    EXPECT_EQ(frame().pixelColor(18, 18), QColor(Qt::blue));
    EXPECT_TRUE(add(u"app_id_43"_qs, u"Foo"_qs, 40)->hasIcon());
}

TEST_F(AppIconViewTest, TakesNamesThatNoAddressCouldHold) {
    add({}, u"50% / Größe? #1 😀"_qs);
    EXPECT_EQ(frame().pixelColor(18, 18), QColor(Qt::gray));
}

// Notifications of as many applications, each with a red icon.
class FirstSightTest : public UiTest {
protected:
    NotificationList apps(int count) {
        NotificationList list = numbered(count);
        for (CapturedNotification& row : list) {
            row.appName = u"App %1"_qs.arg(row.dbId);
            row.appBundleId = u"com.example.app%1"_qs.arg(row.dbId);
            system.workspace.installed[row.appBundleId] = u"/%1.app"_qs.arg(row.dbId);
            icons.files[u"/%1.app"_qs.arg(row.dbId)] = square(64, Qt::red);
        }
        return list;
    }

    static QStringList withInitials(const QQuickItem& item) {
        QStringList found;
        if (item.objectName() == u"placeholder" && item.isVisible())
            found << item.parentItem()->property("appName").toString();
        for (const QQuickItem* child : item.childItems())
            found << withInitials(*child);
        return found;
    }
};

TEST_F(FirstSightTest, LooksUpEveryApplicationOfThePublishedListBeforeTheWindowShows) {
    makeWindow();
    publish(apps(40));
    EXPECT_TRUE(icons.askedPaths.empty()); // not on the main thread
    system.scheduler.settle();
    EXPECT_EQ(views.icons->cache().size(), 40);
    show();
    draw();
    EXPECT_EQ(withInitials(list()), QStringList());
    EXPECT_EQ(icons.askedPaths.size(), 40U);
}

TEST_F(FirstSightTest, WaitsAtOpeningForTheIconsInSightAlone) {
    makeWindow();
    publish(apps(400));
    window->window()->resize(720, 520);
    show();
    EXPECT_LE(icons.askedPaths.size(), 10U); // 520 points have room for ten rows of 52
    draw();
    for (int i = 400; i > 390; --i) {
        const QQuickItem* const inSight = row(u"Title %1"_qs.arg(i));
        EXPECT_TRUE(!inSight || withInitials(*inSight).isEmpty()) << i;
    }
    EXPECT_NE(row(u"Title 400"_qs), nullptr);
}

TEST_F(FirstSightTest, ShowsTheIconOfAnApplicationThatIsNewToTheOpenWindow) {
    makeWindow();
    publish(apps(2));
    show();
    publish(apps(3));
    draw();
    system.scheduler.settle();
    draw();
    EXPECT_EQ(withInitials(list()), QStringList());
}

TEST_F(FirstSightTest, HasTheIconsOfHeadersToo) {
    makeWindow();
    view().list()->setGroupMode(GroupMode::app);
    publish(apps(6));
    show();
    draw();
    EXPECT_EQ(withInitials(list()), QStringList());
}

TEST_F(AppIconViewTest, ShowsIconsInTheList) {
    const auto reading = [] { // as a reload gives it: the same rows under other ids
        NotificationList list = numbered(3);
        for (CapturedNotification& notification : list)
            notification.appBundleId = u"com.example.foo"_qs;
        return list;
    };
    makeWindow();
    publish(reading());
    window->window()->resize(720, 520);
    show();
    window->window()->grabWindow();
    system.scheduler.settle();
    publish(reading());
    const QImage picture = window->window()->grabWindow();
    for (const QString& title : {u"Title 1"_qs, u"Title 2"_qs, u"Title 3"_qs}) {
        const QPoint middle = row(title)->mapToScene(QPointF(36, 24)).toPoint();
        EXPECT_EQ(picture.pixelColor(middle), QColor(Qt::red)) << title.toStdString();
    }
}

} // namespace
} // namespace tessarine::testing
