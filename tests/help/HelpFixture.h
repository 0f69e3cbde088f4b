#pragma once

#include "help/HelpWindow.h"
#include "support/ManualScheduler.h"
#include "support/Printers.h"
#include "support/SimulatedDesktop.h"
#include "theme/Theme.h"
#include "windows/ViewEngine.h"
#include "windows/ViewWindow.h"

#include <QAccessible>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace tessarine::testing {

// The real window of the help. A warning of the QML engine fails the test.
class HelpFixture : public ::testing::Test {
public:
    ~HelpFixture() override;

protected:
    HelpFixture();

    // A window with the keyboard.
    ViewWindow* open();

    HelpView& view() const { return *window->findChild<HelpView*>(); }
    QQuickView& quickWindow() const { return window->window(); }

    // The items below another, in their order, for which the test holds; hidden ones are left out.
    using Test = std::function<bool(const QQuickItem&)>;
    static QList<QQuickItem*> itemsBelow(const QQuickItem& top, const Test& test);

    // The item of the window with this objectName. A test ends where there is none.
    QQuickItem& item(const QString& name) const;
    bool isThere(const QString& name) const;
    QList<QQuickItem*> items(const Test& test) const;

    // Made from the view in the file of this name.
    static bool isA(const QQuickItem& item, const char* view);
    static bool isText(const QQuickItem& item);
    QStringList texts() const; // all that are to be seen

    void bringIntoSight(QQuickItem& item); // as Tab does, when it comes there
    void click(QQuickItem& item);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString& text);
    void draw() const { quickWindow().grabWindow(); }

    // Waits until what was closed has gone, with its objects.
    bool isGone() const;

    static QAccessibleInterface& spoken(QObject& object);

    SimulatedAppearance appearance;
    std::unique_ptr<Symbols> symbols = makeSymbols();
    Theme theme{appearance};
    std::unique_ptr<QQmlEngine> engine = makeViewEngine(theme, *symbols);
    ManualScheduler scheduler;
    int noticesShown = 0;
    HelpView::Services services{scheduler, QStringLiteral("The first line.\n\nThe second one."),
                                [this] { ++noticesShown; }};
    QPointer<ViewWindow> window;
};

} // namespace tessarine::testing
