#pragma once

#include "browser/ContentView.h"

#include <QObject>
#include <QTimer>

#include <memory>

class QQmlEngine;
class QQuickView;
class QQuickWindow;

namespace tessarine {

class KeyMonitor;
class UserDefaults;

// The browser's window. It is built hidden and lives as long as the program: closing hides it, and
// it comes back as it was. Its size survives the process, its place does not: each process finds
// it in the middle of the screen. Main thread.
class MainWindow : public QObject {
    Q_OBJECT

public:
    // The defaults and the engine outlive the window.
    MainWindow(ContentView::Services services, UserDefaults& defaults, QQmlEngine& engine);
    ~MainWindow() override; // hides the window

    // Shows the window in front of the program's others and asks for the keyboard.
    void showAndMakeKey();

    bool isVisible() const;
    QQuickWindow* window() const;
    ContentView& content() const { return *content_; }

private:
    void load();
    void place();
    void watchFrame();
    void saveFrame();
    void onVisibleChanged(bool visible);

    UserDefaults& defaults_;
    QTimer saveTimer_;
    std::unique_ptr<ContentView> content_;
    std::unique_ptr<QQuickView> window_;
    std::unique_ptr<KeyMonitor> keyMonitor_;
};

} // namespace tessarine
