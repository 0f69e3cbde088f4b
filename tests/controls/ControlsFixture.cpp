#include "controls/ControlsFixture.h"

#include <QDir>
#include <QQmlComponent>
#include <QQmlError>
#include <QTest>

namespace tessarine::testing {

namespace {

using namespace Qt::StringLiterals;

constexpr int patience = 20000; // milliseconds

} // namespace

ControlsFixture::ControlsFixture() {
    QObject::connect(engine.get(), &QQmlEngine::warnings, engine.get(),
                     [](const QList<QQmlError>& warnings) {
                         for (const QQmlError& warning : warnings)
                             ADD_FAILURE() << warning.toString().toStdString();
                     });
}

ControlsFixture::~ControlsFixture() = default;

void ControlsFixture::load(const QString& name) {
    const QDir scenes(QStringLiteral(SCENES_FOLDER));
    QQmlComponent component(engine.get(), QUrl::fromLocalFile(scenes.filePath(name + u".qml"_qs)));
    scene.reset(qobject_cast<QQuickItem*>(component.create()));
    ASSERT_NE(scene, nullptr) << component.errorString().toStdString();
    window = std::make_unique<QQuickWindow>();
    window->resize(scene->size().toSize());
    scene->setParentItem(window->contentItem());
    window->show();
    window->requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get(), patience));
}

QObject& ControlsFixture::object(const QString& name) const {
    auto* found = scene->findChild<QObject*>(name);
    if (!found) // what a repeater made hangs in no other tree than the visible one
        found =
            firstBelow(*scene, [&](const QQuickItem& child) { return child.objectName() == name; });
    if (!found)
        qFatal("The scene has no %s", qPrintable(name));
    return *found;
}

QQuickItem& ControlsFixture::item(const QString& name) const {
    return dynamic_cast<QQuickItem&>(object(name));
}

QQuickItem* ControlsFixture::firstBelow(const QQuickItem& top,
                                        const std::function<bool(const QQuickItem&)>& wanted) {
    for (QQuickItem* child : top.childItems()) {
        if (wanted(*child))
            return child;
        if (QQuickItem* deeper = firstBelow(*child, wanted))
            return deeper;
    }
    return nullptr;
}

QStringList ControlsFixture::log() const {
    return scene->property("log").toStringList();
}

QImage ControlsFixture::picture() {
    return window->grabWindow();
}

QPoint ControlsFixture::centre(const QString& name) const {
    const QQuickItem& shown = item(name);
    return shown.mapToScene(QPointF(shown.width() / 2, shown.height() / 2)).toPoint();
}

void ControlsFixture::hover(const QString& name) {
    // A move to where an earlier test has left the mouse would be none.
    QTest::mouseMove(window.get(), QPoint());
    QTest::mouseMove(window.get(), centre(name));
    picture(); // hovering is worked out when a frame is drawn
}

void ControlsFixture::click(const QString& name, Qt::MouseButton button) {
    QTest::mouseClick(window.get(), button, Qt::NoModifier, centre(name));
}

void ControlsFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(window.get(), key, modifiers);
}

::testing::AssertionResult ControlsFixture::becomes(const QString& name, const char* property,
                                                    const QVariant& value) {
    const QObject& thing = object(name);
    if (QTest::qWaitFor([&] { return thing.property(property) == value; }, patience))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << name.toStdString() << "." << property << " is still "
                                         << thing.property(property).toString().toStdString();
}

void ControlsFixture::focus(const QString& name) {
    item(name).forceActiveFocus(Qt::TabFocusReason);
}

QString ControlsFixture::focusName() const {
    const QQuickItem* focus = window->activeFocusItem();
    return focus ? focus->objectName() : QString();
}

bool ControlsFixture::showsFocusRing(const QString& name) const {
    return firstBelow(item(name), [](const QQuickItem& child) {
               return child.isVisible() &&
                      QByteArray(child.metaObject()->className()).startsWith("FocusRing");
           }) != nullptr;
}

QAccessibleInterface& ControlsFixture::spoken(QObject& object) {
    QAccessibleInterface* found = QAccessible::queryAccessibleInterface(&object);
    if (!found)
        qFatal("%s is silent", qPrintable(object.objectName()));
    return *found;
}

QAccessibleInterface* ControlsFixture::spokenBelow(QAccessibleInterface& top,
                                                   QAccessible::Role role, const QString& name) {
    for (int i = 0; i < top.childCount(); ++i) {
        QAccessibleInterface* child = top.child(i);
        if (child->role() == role && (name.isEmpty() || child->text(QAccessible::Name) == name))
            return child;
        if (QAccessibleInterface* deeper = spokenBelow(*child, role, name))
            return deeper;
    }
    return nullptr;
}

QAccessibleInterface& ControlsFixture::spokenItem(const QString& name) const {
    return spoken(item(name));
}

QString ControlsFixture::nameOf(const QString& name) const {
    return spokenItem(name).text(QAccessible::Name);
}

QString ControlsFixture::descriptionOf(const QString& name) const {
    return spokenItem(name).text(QAccessible::Description);
}

void ControlsFixture::pressFromOutside(const QString& name, const QString& action) const {
    spokenItem(name).actionInterface()->doAction(action);
}

QColor ControlsFixture::colourIn(const QString& name, const QPointF& place) {
    const QPointF point = item(name).mapToScene(place);
    return picture().pixelColor((point * window->effectiveDevicePixelRatio()).toPoint());
}

QStringList ControlsFixture::overflowing(const QString& name) const {
    const QQuickItem& top = item(name);
    const QRectF room = top.boundingRect().adjusted(-0.5, -0.5, 0.5, 0.5);
    QStringList texts;
    firstBelow(top, [&](const QQuickItem& child) {
        if (!child.isVisible() || child.property("paintedWidth").toDouble() == 0)
            return false; // no text, or an empty one
        const QSizeF painted(child.property("paintedWidth").toDouble(),
                             child.property("paintedHeight").toDouble());
        const bool tooLarge =
            painted.width() > child.width() + 0.5 || painted.height() > child.height() + 0.5;
        if (tooLarge || !room.contains(child.mapRectToItem(&top, child.boundingRect())))
            texts << child.property("text").toString();
        return false;
    });
    return texts;
}

} // namespace tessarine::testing
