#pragma once

#include "browser/BrowserIcons.h"
#include "browser/ContentView.h"
#include "windows/ViewWindow.h"

#include <memory>

class QQuickWindow;

namespace tessarine {

class KeyMonitor;

// The browser's window. It is built hidden and lives as long as the program: closing hides it, and
// it comes back as it was. Its size survives the process, its place does not: each process finds
// it in the middle of the screen. Main thread.
class MainWindow {
public:
    // The defaults and the engine outlive the window.
    MainWindow(ContentView::Services services, UserDefaults& defaults, QQmlEngine& engine);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow(); // hides the window

    // Shows the window in front of the program's others and asks for the keyboard.
    void showAndMakeKey() { window_.showAndMakeKey(); }

    bool isVisible() const { return window_.isVisible(); }
    QQuickWindow* window() const;
    ContentView& content() { return content_; }

private:
    void appear();

    ContentView content_;
    BrowserIcons icons_;
    ViewWindow window_;
    std::unique_ptr<KeyMonitor> keyMonitor_;
};

} // namespace tessarine
