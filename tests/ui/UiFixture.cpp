#include "ui/UiFixture.h"

#include "support/EventLoop.h"

#include <QQmlError>
#include <QTest>

namespace tessarine::testing {

UiTest::UiTest() {
    installAppIcons(*engine, resolver);
    QObject::connect(engine.get(), &QQmlEngine::warnings, engine.get(),
                     [](const QList<QQmlError>& warnings) {
                         for (const QQmlError& warning : warnings)
                             ADD_FAILURE() << warning.toString().toStdString();
                     });
}

UiTest::~UiTest() = default;

NotificationList UiTest::numbered(int count, int firstRow) {
    NotificationList list;
    for (int i = 0; i < count; ++i) {
        CapturedNotification notification;
        notification.dbId = firstRow + count - 1 - i;
        notification.appName = QStringLiteral("Mail");
        notification.title = QStringLiteral("Title %1").arg(notification.dbId);
        notification.body = QStringLiteral("Body %1").arg(notification.dbId);
        notification.timestamp = ManualScheduler::startOfTime + double(notification.dbId);
        list.push_back(notification);
    }
    return list;
}

void UiTest::makeWindow() {
    window = std::make_unique<MainWindow>(listener, system.defaults, *engine);
}

void UiTest::show() {
    window->showAndMakeKey();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window->window(), patienceMs));
}

QQuickItem* UiTest::row(const QString& title) const {
    QQuickItem* content = list().property("contentItem").value<QQuickItem*>();
    const QRectF room(0, 0, list().width(), list().height());
    for (QQuickItem* item : content->childItems()) {
        const QRectF place = item->mapRectToItem(&list(), item->boundingRect());
        if (item->property("title").toString() == title && place.intersects(room))
            return item;
    }
    return nullptr;
}

void UiTest::resizeTo(int width, int height) {
    window->window()->resize(width, height);
    ASSERT_TRUE(turnsUntil([&] { return root().size() == QSizeF(width, height); }));
}

} // namespace tessarine::testing
