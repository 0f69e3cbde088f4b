#pragma once

#include "settings/PreferencesView.h"
#include "windows/ViewWindow.h"

class QQmlEngine;
class QQuickWindow;

namespace tessarine {

// The window of the preferences. It is built hidden, and closing hides it: it comes back with the
// tab that it had. Its height is that of the chosen tab. Main thread.
class PreferencesWindow {
public:
    // The engine and what the services name outlive the window.
    PreferencesWindow(const PreferencesView::Services& services, QQmlEngine& engine);
    PreferencesWindow(const PreferencesWindow&) = delete;
    PreferencesWindow& operator=(const PreferencesWindow&) = delete;

    // Shows the window in front of the program's others and asks for the keyboard.
    void showAndMakeKey() { window_.showAndMakeKey(); }

    bool isVisible() const { return window_.isVisible(); }
    QQuickWindow* window() const;
    PreferencesView& view() { return view_; }

private:
    void takeHeightOfTab();

    QQmlEngine& engine_;
    PreferencesView view_;
    ViewWindow window_;
};

} // namespace tessarine
