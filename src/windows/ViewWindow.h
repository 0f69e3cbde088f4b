#pragma once

#include <QFlags>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QTimer>
#include <QVariantAnimation>
#include <QVariantMap>

#include <memory>
#include <vector>

class QKeyEvent;
class QQmlEngine;
class QQuickItem;
class QQuickView;

namespace tessarine {

class UserDefaults;

// What the frame of a window offers beside its title.
enum class WindowFeature { closable = 1, miniaturizable = 2, resizable = 4 };
Q_DECLARE_FLAGS(WindowFeatures, WindowFeature)
Q_DECLARE_OPERATORS_FOR_FLAGS(WindowFeatures)

// A window of the program: one component of a QML module, under a title. It is built hidden, in the
// middle of the screen, and closing hides it, by its frame or by the key for that. Main thread.
class ViewWindow : public QObject {
    Q_OBJECT

public:
    struct Description {
        QString title;
        QString component;          // module and type, as in "Tessarine/Browser/ContentView"
        QVariantMap properties;     // of the component's root
        WindowFeatures features;    // without resizable, the size is fixed
        QSize minimumSize = {1, 1}; // in points
    };

    // The engine outlives the window. A component that can't be made ends the process: the program
    // was built without it.
    ViewWindow(const Description& description, QQmlEngine& engine);
    ~ViewWindow() override; // hides the window

    // Gives the content this size, as far as the screen has room, in the middle of the screen.
    void centre(const QSize& size);

    // The same with the size of the last process, where there is one; from now on the defaults hold
    // the window's frame under this name. They outlive the window.
    void restoreSize(const QString& frameName, UserDefaults& defaults, const QSize& firstSize);

    // Gives the content another height, as far as the screen has room, in this many milliseconds:
    // slowly at both ends, and at once with none or while the window is hidden. The top edge and
    // the width stay. Another change begins where the one before has come to.
    void changeHeight(int height, int milliseconds);

    // Destroys the window, with this object, once it is closed. For one that is made with new.
    void releaseWhenClosed();

    // Hides the window, tells nobody of it, and destroys it a moment later, so that what stands in
    // it may ask for that. The pointer is null then; a null one is fine. For a window made with
    // new.
    static void dismiss(QPointer<ViewWindow>& window);

    // Shows the window in front of the program's others and asks for the keyboard.
    void showAndMakeKey();

    bool isVisible() const;
    QQuickView& window() const { return *window_; }
    QQuickItem& root() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

    // The program's window with exactly this title, hidden ones too; null if there is none.
    static ViewWindow* titled(const QString& title);

    // Those that are on the screen, minimised ones too.
    static std::vector<ViewWindow*> allVisible();

Q_SIGNALS:
    void shown();
    void hidden();
    void closing(); // by its frame or by the key for that

private:
    bool press(const QKeyEvent& key); // true: the key was for the window itself
    void setHeight(int height);
    void watchFrame();
    void saveFrame();
    void onVisibleChanged(bool visible);

    std::unique_ptr<QQuickView> window_;
    QSize minimumSize_;
    bool isResizable_;
    bool isClosable_;
    bool isReleasedWhenClosed_ = false;
    UserDefaults* defaults_ = nullptr; // null: the frame is not kept
    QString frameKey_;
    QTimer saveTimer_;
    QVariantAnimation heightChange_;
};

} // namespace tessarine
