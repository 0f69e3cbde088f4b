#pragma once

#include "controls/ControlsFixture.h"

namespace tessarine::testing {

// While it lives, Qt's controls tell of themselves as they do when a screen reader runs.
class ScreenReaderRuns {
public:
    ScreenReaderRuns() { QAccessible::setActive(true); }
    ~ScreenReaderRuns() { QAccessible::setActive(false); }
    ScreenReaderRuns(const ScreenReaderRuns&) = delete;
    ScreenReaderRuns& operator=(const ScreenReaderRuns&) = delete;
};

// The scene with one of each panel, and a list that has the keyboard.
class PanelsTest : public ControlsFixture {
protected:
    void SetUp() override {
        load(QStringLiteral("panels"));
        item(QStringLiteral("list")).forceActiveFocus();
    }

    void open(const QString& panel) {
        QMetaObject::invokeMethod(&object(panel), "open");
        EXPECT_TRUE(becomes(panel, "opened", true));
    }

    ::testing::AssertionResult closes(const QString& panel) {
        return becomes(panel, "visible", false);
    }

    // Where the panel lies in the window.
    QRectF place(const QString& panel) {
        const auto* content = object(panel).property("background").value<QQuickItem*>();
        return content->mapRectToScene(content->boundingRect());
    }

    bool isInWindow(const QString& panel) {
        return QRectF(QPointF(), window->size()).contains(place(panel));
    }

    // The texts of the rows that are lit in the menu that is open.
    QStringList litRows() {
        QStringList texts;
        firstBelow(*window->contentItem(), [&](const QQuickItem& child) {
            const auto* face = child.property("background").value<QQuickItem*>();
            if (child.isVisible() && face && face->property("lit").toBool())
                texts << child.property("text").toString();
            return false;
        });
        return texts;
    }

    QAccessibleInterface* spokenInWindow(QAccessible::Role role, const QString& name = {}) {
        return spokenBelow(*QAccessible::queryAccessibleInterface(window.get()), role, name);
    }
};

} // namespace tessarine::testing
