#include "diagnosticsview/DiagnosticsFixture.h"

#include "support/EventLoop.h"

#include <QQmlError>
#include <QTest>

namespace tessarine::testing {

DiagnosticsFixture::DiagnosticsFixture() {
    QObject::connect(views.engine.get(), &QQmlEngine::warnings, views.engine.get(),
                     [](const QList<QQmlError>& warnings) {
                         for (const QQmlError& warning : warnings)
                             ADD_FAILURE() << warning.toString().toStdString();
                     });
}

DiagnosticsFixture::~DiagnosticsFixture() {
    delete ViewWindow::titled(diagnosticsTitle());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void DiagnosticsFixture::show() {
    ViewWindow& shown = diagnosticsWindow(views.diagnostics(), *views.engine);
    shown.showAndMakeKey();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&shown.window(), patienceMs));
    settle();
}

void DiagnosticsFixture::settle() {
    system.scheduler.settle();
    if (isOpen())
        draw();
}

namespace {

QQuickItem* visibleBelow(QQuickItem& top, const QString& name) {
    if (!top.isVisible())
        return nullptr;
    if (top.objectName() == name)
        return &top;
    for (QQuickItem* child : top.childItems()) {
        if (QQuickItem* found = visibleBelow(*child, name))
            return found;
    }
    return nullptr;
}

} // namespace

QQuickItem* DiagnosticsFixture::findItem(const QString& name) const {
    return visibleBelow(*window().window().contentItem(), name);
}

QQuickItem& DiagnosticsFixture::item(const QString& name) const {
    QQuickItem* found = findItem(name);
    if (!found)
        qFatal("nothing named %s is in the window", qPrintable(name));
    return *found;
}

void DiagnosticsFixture::click(const QString& name) const {
    const QQuickItem& target = item(name);
    const QPointF middle(target.width() / 2, target.height() / 2);
    QTest::mouseClick(&window().window(), Qt::LeftButton, {}, target.mapToScene(middle).toPoint());
    draw();
}

void DiagnosticsFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(&window().window(), key, modifiers);
    if (isOpen())
        draw();
}

void DiagnosticsFixture::type(const QString& text) const {
    for (const QChar character : text)
        QTest::keyClick(&window().window(), character.toLatin1());
    draw();
}

QStringList DiagnosticsFixture::textsIn(const QQuickItem& item) {
    QStringList texts;
    for (const QQuickItem* child : item.childItems()) {
        if (!child->isVisible())
            continue;
        const QString text = child->property("text").toString();
        if (child->inherits("QQuickText") && !text.isEmpty())
            texts << text;
        texts << textsIn(*child);
    }
    return texts;
}

QStringList DiagnosticsFixture::messages() const {
    QStringList texts;
    for (const DiagnosticEntry& entry : diagnostics.entries())
        texts << entry.message;
    return texts;
}

CapturedNotification DiagnosticsFixture::capture(qint64 noteId) const {
    CapturedNotification made;
    made.noteId = noteId;
    made.appBundleId = QStringLiteral("org.example.mail");
    made.appName = QStringLiteral("Mail");
    made.title = QStringLiteral("Title %1").arg(noteId);
    made.body = QStringLiteral("Body");
    made.timestamp = ManualScheduler::startOfTime - double(noteId);
    return made;
}

} // namespace tessarine::testing
