#pragma once

#include "support/Printers.h"
#include "support/SimulatedDesktop.h"
#include "theme/Theme.h"
#include "windows/ViewEngine.h"

#include <QAccessible>
#include <QColor>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace tessarine::testing {

// A window that shows one of the scenes in the folder beside this file. A warning of the QML engine
// fails the test.
class ControlsFixture : public ::testing::Test {
public:
    ~ControlsFixture() override;

protected:
    ControlsFixture();
    // Shows the scene, as large as it asks to be, and gives its window the keyboard.
    void load(const QString& name);

    // The thing of the scene with this objectName.
    QQuickItem& item(const QString& name) const;
    QObject& object(const QString& name) const;

    // The first thing below another that is as asked for; null if there is none.
    static QQuickItem* firstBelow(const QQuickItem& top,
                                  const std::function<bool(const QQuickItem&)>& wanted);

    // What the scene has noted down: each handler appends a line.
    QStringList log() const;

    // All that is to be seen in the window, after waiting for it to be drawn.
    QImage picture();

    QPoint centre(const QString& name) const;
    void hover(const QString& name);
    void click(const QString& name, Qt::MouseButton button = Qt::LeftButton);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    // Waits until the property of the thing has the value.
    ::testing::AssertionResult becomes(const QString& name, const char* property,
                                       const QVariant& value);

    // Gives the thing the keyboard as the Tab key would.
    void focus(const QString& name);
    QString focusName() const;
    bool showsFocusRing(const QString& name) const;

    static QAccessibleInterface& spoken(QObject& object);
    // The first interface with the role below another; null if there is none.
    static QAccessibleInterface* spokenBelow(QAccessibleInterface& top, QAccessible::Role role,
                                             const QString& name = {});
    QAccessibleInterface& spokenItem(const QString& name) const;
    QString nameOf(const QString& name) const;
    QString descriptionOf(const QString& name) const;
    // What a screen reader, or a test from outside, does with the thing.
    void pressFromOutside(const QString& name, const QString& action) const;

    // The colour of one point of the thing, as the window shows it.
    QColor colourIn(const QString& name, const QPointF& place);

    // The texts below the thing that need more room than they have, or reach beyond the thing.
    QStringList overflowing(const QString& name) const;

    SimulatedAppearance appearance;
    std::unique_ptr<Symbols> symbols = makeSymbols();
    Theme theme{appearance};
    std::unique_ptr<QQmlEngine> engine = makeViewEngine(theme, *symbols);
    std::unique_ptr<QQuickWindow> window;
    std::unique_ptr<QQuickItem> scene;
};

} // namespace tessarine::testing
