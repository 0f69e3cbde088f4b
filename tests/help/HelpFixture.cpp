#include "help/HelpFixture.h"

#include "support/EventLoop.h"

#include <QQmlError>
#include <QTest>

namespace tessarine::testing {

HelpFixture::HelpFixture() {
    QObject::connect(engine.get(), &QQmlEngine::warnings, engine.get(),
                     [](const QList<QQmlError>& warnings) {
                         for (const QQmlError& warning : warnings)
                             ADD_FAILURE() << warning.toString().toStdString();
                     });
}

HelpFixture::~HelpFixture() {
    for (ViewWindow* open : ViewWindow::allVisible())
        open->window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

ViewWindow* HelpFixture::open() {
    window = makeHelpWindow(services, *engine);
    window->showAndMakeKey();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&quickWindow(), patienceMs));
    draw();
    return window;
}

QList<QQuickItem*> HelpFixture::itemsBelow(const QQuickItem& top, const Test& test) {
    QList<QQuickItem*> found;
    for (QQuickItem* child : top.childItems()) {
        if (!child->isVisible())
            continue;
        if (test(*child))
            found << child;
        found << itemsBelow(*child, test);
    }
    return found;
}

QList<QQuickItem*> HelpFixture::items(const Test& test) const {
    return itemsBelow(*quickWindow().contentItem(), test);
}

bool HelpFixture::isThere(const QString& name) const {
    return !items([&](const QQuickItem& item) { return item.objectName() == name; }).isEmpty();
}

QQuickItem& HelpFixture::item(const QString& name) const {
    const auto found = items([&](const QQuickItem& item) { return item.objectName() == name; });
    if (found.isEmpty())
        qFatal("nothing named %s is in the window", qPrintable(name));
    return *found.first();
}

bool HelpFixture::isA(const QQuickItem& item, const char* view) {
    return QByteArray(item.metaObject()->className()).startsWith(QByteArray(view) + "_QMLTYPE");
}

bool HelpFixture::isText(const QQuickItem& item) {
    return item.inherits("QQuickText") && !item.property("text").toString().isEmpty();
}

QStringList HelpFixture::texts() const {
    QStringList texts;
    for (const QQuickItem* text : items(&HelpFixture::isText))
        texts << text->property("text").toString();
    return texts;
}

void HelpFixture::bringIntoSight(QQuickItem& item) {
    item.forceActiveFocus(Qt::TabFocusReason);
    draw();
}

void HelpFixture::click(QQuickItem& item) {
    const QPointF middle(item.width() / 2, item.height() / 2);
    QTest::mouseClick(&quickWindow(), Qt::LeftButton, {}, item.mapToScene(middle).toPoint());
    draw();
}

void HelpFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&quickWindow(), key, modifiers);
    if (window)
        draw();
}

void HelpFixture::type(const QString& text) {
    for (const QChar character : text)
        QTest::keyClick(&quickWindow(), character.toLatin1());
    draw();
}

bool HelpFixture::isGone() const {
    return turnsUntil([this] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return window.isNull();
    });
}

QAccessibleInterface& HelpFixture::spoken(QObject& object) {
    QAccessibleInterface* const found = QAccessible::queryAccessibleInterface(&object);
    if (!found)
        qFatal("%s is silent", qPrintable(object.objectName()));
    return *found;
}

} // namespace tessarine::testing
