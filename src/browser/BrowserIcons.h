#pragma once

#include <QObject>

#include <memory>

namespace tessarine {

class AppIconResolver;
class BrowserList;
class NotificationListener;

// Sees to it that the icons of the browser's rows are known before the rows are drawn. While the
// window is hidden, those of each list that is published are looked up on a worker. What is still
// missing when the window opens is looked up at once for the lines that it has room for, and for no
// others: the main thread waits for nothing that isn't seen. While the window is shown, its views
// ask for themselves. Main thread.
class BrowserIcons {
public:
    // The list outlives this. Without a resolver nothing happens.
    BrowserIcons(std::shared_ptr<NotificationListener> listener, BrowserList& list,
                 std::shared_ptr<AppIconResolver> resolver);
    BrowserIcons(const BrowserIcons&) = delete;
    BrowserIcons& operator=(const BrowserIcons&) = delete;

    // To be called once the list has taken its rows and before they are drawn, with the height of
    // the window in points; and when the window is hidden.
    void appear(int height);
    void disappear() { isShown_ = false; }

private:
    void prepare();

    std::shared_ptr<NotificationListener> listener_;
    BrowserList& list_;
    std::shared_ptr<AppIconResolver> resolver_;
    bool isShown_ = false;
    QObject connections_; // ends them
};

} // namespace tessarine
