#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace tessarine {

// The question whether to start at login, with its three answers. Main thread.
class LaunchAtLoginPromptView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Who asks makes it")

public:
    using Action = std::function<void()>;

    // What each answer does. The first one that is given counts: a second press on a window that
    // is about to go does nothing.
    LaunchAtLoginPromptView(Action onEnable, Action onNotNow, Action onSuppressed);

    Q_INVOKABLE void enable();
    Q_INVOKABLE void notNow();
    Q_INVOKABLE void suppress();

private:
    void answer(const Action& action);

    Action onEnable_;
    Action onNotNow_;
    Action onSuppressed_;
    bool isAnswered_ = false;
};

} // namespace tessarine
