#include "browser/ContentView.h"

#include "capture/NotificationListener.h"
#include "support/SimulatedPlatform.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using Face = ContentView::Face;

class ContentViewTest : public ::testing::Test {
protected:
    QTemporaryDir folder_;
    testing::SimulatedPlatform system_{folder_.path()};
    HoardStore hoard_{system_.fileSystem, system_.defaults, system_.scheduler};
    PreferencesStore preferences_{system_.defaults};
    DiagnosticsStore diagnostics_{system_.scheduler, [this]() -> HoardStore& { return hoard_; }};
    std::shared_ptr<NotificationListener> listener_ = NotificationListener::create(
        {[this]() -> HoardStore& { return hoard_; }, preferences_, diagnostics_, system_.platform});
};

TEST_F(ContentViewTest, LoadsUntilTheFirstListCame) {
    const ContentView view(listener_);
    EXPECT_EQ(view.face(), Face::Loading);
}

TEST_F(ContentViewTest, ShowsAnEmptyHoardAsEmpty) {
    ContentView view(listener_);
    const QSignalSpy faces(&view, &ContentView::faceChanged);
    listener_->start();
    system_.scheduler.settle();
    EXPECT_EQ(view.face(), Face::Empty);
    EXPECT_EQ(faces.count(), 1);
}

TEST_F(ContentViewTest, ShowsWhatTheHoardHolds) {
    CapturedNotification notification;
    notification.noteId = 1;
    notification.title = QStringLiteral("Hello");
    notification.timestamp = system_.scheduler.now();
    hoard_.insert(notification);
    ContentView view(listener_);
    listener_->start();
    system_.scheduler.settle();
    EXPECT_EQ(view.face(), Face::List);
    ASSERT_EQ(view.notifications()->rowCount(), 1);
    EXPECT_EQ(view.notifications()->notifications()[0].title, QStringLiteral("Hello"));
}

TEST_F(ContentViewTest, TakesAListThatWasThereBefore) {
    listener_->setNotifications(NotificationList(3));
    ContentView view(listener_);
    EXPECT_EQ(view.face(), Face::List);
    EXPECT_EQ(view.notifications()->rowCount(), 3);
}

TEST_F(ContentViewTest, GoesBackToEmptyWhenTheLastRowGoes) {
    ContentView view(listener_);
    listener_->setNotifications(NotificationList(3));
    listener_->setNotifications({});
    EXPECT_EQ(view.face(), Face::Empty);
    EXPECT_EQ(view.notifications()->rowCount(), 0);
}

} // namespace
} // namespace tessarine
