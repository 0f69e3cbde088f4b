#include "ui/UiFixture.h"

#include "support/EventLoop.h"

#include <QQmlError>
#include <QTest>

namespace tessarine::testing {

UiTest::UiTest() {
    QObject::connect(views.engine.get(), &QQmlEngine::warnings, views.engine.get(),
                     [](const QList<QQmlError>& warnings) {
                         for (const QQmlError& warning : warnings)
                             ADD_FAILURE() << warning.toString().toStdString();
                     });
}

// Rows that the list has put by for deletion go before the engine that made them.
UiTest::~UiTest() {
    window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

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
    window = std::make_unique<MainWindow>(views.browser(), system.defaults, *views.engine);
}

void UiTest::showHoard(int count) {
    showHoard(numbered(count));
}

void UiTest::showHoard(NotificationList rows) {
    for (CapturedNotification& row : rows) {
        if (row.noteId == 0)
            row.noteId = row.dbId;
        ASSERT_TRUE(hoard.insert(row));
    }
    reload();
    makeWindow();
    window->window()->resize(720, 520);
    show();
    window->window()->requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window->window(), patienceMs));
    draw();
}

void UiTest::show() {
    window->showAndMakeKey();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window->window(), patienceMs));
}

QQuickItem* UiTest::row(const QString& title) const {
    const QRectF room(0, 0, list().width(), list().height());
    // Asked by number: items that fade away lie around too.
    for (int line = 0; line < list().property("count").toInt(); ++line) {
        QQuickItem* item = nullptr;
        QMetaObject::invokeMethod(&list(), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item),
                                  Q_ARG(int, line));
        if (!item || !item->property("notificationId").isValid() ||
            item->property("title").toString() != title)
            continue;
        if (item->mapRectToItem(&list(), item->boundingRect()).intersects(room))
            return item;
    }
    return nullptr;
}

namespace {

template <typename Test>
QQuickItem* firstBelow(QQuickItem& top, const Test& test) {
    if (!top.isVisible())
        return nullptr;
    if (test(top))
        return &top;
    for (QQuickItem* child : top.childItems()) {
        if (QQuickItem* found = firstBelow(*child, test))
            return found;
    }
    return nullptr;
}

} // namespace

QQuickItem* UiTest::findItem(const QString& name) const {
    return firstBelow(*window->window()->contentItem(),
                      [&](const QQuickItem& item) { return item.objectName() == name; });
}

QQuickItem& UiTest::item(const QString& name) const {
    QQuickItem* found = findItem(name);
    if (!found)
        qFatal("nothing named %s is in the window", qPrintable(name));
    return *found;
}

bool UiTest::isShown(const QString& name) const {
    if (findItem(name))
        return true;
    const QObject* popup = root().findChild<QObject*>(name);
    return popup && popup->property("opened").toBool();
}

bool UiTest::isGone(const QString& name) const {
    const QObject* popup = root().findChild<QObject*>(name);
    return !popup || !popup->property("visible").toBool();
}

QQuickItem* UiTest::entry(const QString& text) const {
    return firstBelow(*window->window()->contentItem(), [&](const QQuickItem& item) {
        return item.inherits("QQuickAbstractButton") && item.property("text").toString() == text;
    });
}

void UiTest::clickAt(QQuickItem& item, QPointF place, Qt::MouseButton button) {
    QTest::mouseClick(window->window(), button, {}, item.mapToScene(place).toPoint());
    draw();
}

void UiTest::click(QQuickItem& item, Qt::MouseButton button) {
    clickAt(item, {item.width() / 2, item.height() / 2}, button);
}

void UiTest::doubleClick(QQuickItem& item) {
    const QPoint place = item.mapToScene({item.width() / 2, item.height() / 2}).toPoint();
    QTest::mouseDClick(window->window(), Qt::LeftButton, {}, place);
    draw();
}

void UiTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(window->window(), key, modifiers);
    draw();
}

void UiTest::type(const QString& text) {
    for (const QChar character : text)
        QTest::keyClick(window->window(), character.toLatin1());
    draw();
}

QStringList UiTest::textsIn(const QQuickItem& item) {
    QStringList texts;
    for (const QQuickItem* child : item.childItems()) {
        if (!child->isVisible())
            continue;
        if (child->inherits("QQuickText"))
            texts << child->property("text").toString();
        texts << textsIn(*child);
    }
    return texts;
}

QStringList UiTest::textsInWindow(const MainWindow& window) {
    return textsIn(*window.window()->contentItem());
}

void UiTest::resizeTo(int width, int height) {
    window->window()->resize(width, height);
    ASSERT_TRUE(turnsUntil([&] { return root().size() == QSizeF(width, height); }));
}

} // namespace tessarine::testing
