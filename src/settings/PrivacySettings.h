#pragma once

#include "settings/PreferenceChoices.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace tessarine {

class PreferencesStore;

// The windows in which the program explains itself.
struct ExplainingWindows {
    std::function<void()> showPrivacyNotice;
    std::function<void()> showWelcomeGuide;
};

// The preferences' tab for masked content, for the deletion of one-time codes, and with the way to
// what the program says of privacy. Main thread.
class PrivacySettings : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("PreferencesView brings it")
    Q_PROPERTY(
        bool globalPrivacyMode READ globalPrivacyMode WRITE setGlobalPrivacyMode NOTIFY changed)
    Q_PROPERTY(QList<QString> otpTexts READ otpTexts CONSTANT)
    Q_PROPERTY(int otpIndex READ otpIndex WRITE chooseOtp NOTIFY changed)
    Q_PROPERTY(QString otpText READ otpText NOTIFY changed)
    Q_PROPERTY(tessarine::PreferenceNote otpNote READ otpNote NOTIFY changed)

public:
    // The preferences outlive this.
    PrivacySettings(PreferencesStore& preferences, ExplainingWindows windows);

    bool globalPrivacyMode() const;
    void setGlobalPrivacyMode(bool enabled);

    // The choice stores the value; codes that are too old go at the next launch.
    static QStringList otpTexts() { return tessarine::otpTexts(); }
    int otpIndex() const; // -1 for a value that is not offered
    void chooseOtp(int index);
    QString otpText() const;
    PreferenceNote otpNote() const;

    Q_INVOKABLE void showPrivacyNotice() { windows_.showPrivacyNotice(); }
    Q_INVOKABLE void showWelcomeGuide() { windows_.showWelcomeGuide(); }

Q_SIGNALS:
    void changed();

private:
    PreferencesStore& preferences_;
    ExplainingWindows windows_;
};

} // namespace tessarine
