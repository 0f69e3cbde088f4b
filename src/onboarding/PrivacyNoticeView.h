#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <utility>

namespace tessarine {

// The statement of what is stored, where, and who can read it. Main thread.
class PrivacyNoticeView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The window of the notice brings it")
    Q_PROPERTY(bool isModal MEMBER isModal_ CONSTANT)

public:
    PrivacyNoticeView(bool isModal, std::function<void()> onContinue)
        : isModal_(isModal)
        , onContinue_(std::move(onContinue)) {}

    Q_INVOKABLE void continueOn() { onContinue_(); }

private:
    const bool isModal_;
    std::function<void()> onContinue_;
};

} // namespace tessarine
