#pragma once

#include "platform/Accessibility.h"
#include "platform/Scheduler.h"
#include "platform/SystemSettings.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>

namespace tessarine {

class PreferencesStore;

// The guide that explains the program page by page. At the first start it is also the gate: the
// agreement stands among its pages, and nothing goes on before that is accepted. Later it leaves
// the agreement out. Main thread.
class OnboardingView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The window of the guide brings it")
    Q_PROPERTY(bool isModal READ isModal CONSTANT)
    Q_PROPERTY(int currentStep READ currentStep NOTIFY changed)
    Q_PROPERTY(int stepCount READ stepCount CONSTANT)
    Q_PROPERTY(Page page READ page NOTIFY changed)
    Q_PROPERTY(bool eulaScrolledToBottom READ eulaScrolledToBottom NOTIFY changed)
    Q_PROPERTY(bool eulaAgreed READ eulaAgreed WRITE setEulaAgreed NOTIFY changed)
    Q_PROPERTY(bool axGranted READ axGranted NOTIFY changed)
    Q_PROPERTY(bool offersBack READ offersBack NOTIFY changed)
    Q_PROPERTY(bool canGoForward READ canGoForward NOTIFY changed)
    Q_PROPERTY(QString forwardText READ forwardText NOTIFY changed)
    Q_PROPERTY(bool offersSettings READ offersSettings CONSTANT)
    Q_PROPERTY(QString agreementText MEMBER agreementText_ CONSTANT)

public:
    enum class Page { welcome, agreement, accessibility, privacy };
    Q_ENUM(Page)

    // How often the access to banners is asked for while its page stands, in seconds.
    static constexpr double pollInterval = 1.0;

    struct Services {
        const Accessibility& accessibility;
        PreferencesStore& preferences;
        Scheduler& scheduler;
        SystemSettings& settings;
        QString agreementText;
        std::function<void()> runPermissionChecks; // at each tick of the page once access is there
    };

    // Opens at a step, where there is one with this number, else at the first. The services outlive
    // the view.
    OnboardingView(bool isModal, int startAtStep, Services services,
                   std::function<void()> onComplete);

    bool isModal() const { return isModal_; }
    int currentStep() const { return currentStep_; }
    int stepCount() const;
    Page page() const;
    bool eulaScrolledToBottom() const { return eulaScrolledToBottom_; }
    bool eulaAgreed() const { return eulaAgreed_; }
    void setEulaAgreed(bool agreed); // nothing before the end of the agreement was seen
    bool axGranted() const { return axGranted_; }
    bool offersBack() const;
    bool canGoForward() const;
    QString forwardText() const;
    bool offersSettings() const;

    // The end of the agreement has come into sight.
    Q_INVOKABLE void noteEndOfAgreement();

    Q_INVOKABLE void back();
    Q_INVOKABLE void forward(); // accepts the agreement on its page, ends the guide on the last
    Q_INVOKABLE void openSettings();

Q_SIGNALS:
    void changed();

private:
    void goTo(int step);
    void poll();

    const bool isModal_;
    Services services_;
    QString agreementText_;
    std::function<void()> onComplete_;
    int currentStep_ = 0;
    bool eulaScrolledToBottom_ = false;
    bool eulaAgreed_ = false;
    bool axGranted_;
    std::unique_ptr<RepeatingTimer> axTimer_;
};

} // namespace tessarine
