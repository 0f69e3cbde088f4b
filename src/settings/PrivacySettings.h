#pragma once

#include "settings/PreferenceChoices.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

class PreferencesStore;

// The preferences' tab for masked content and for the deletion of one-time codes. Main thread.
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
    explicit PrivacySettings(PreferencesStore& preferences);

    bool globalPrivacyMode() const;
    void setGlobalPrivacyMode(bool enabled);

    // The choice stores the value; codes that are too old go at the next launch.
    static QStringList otpTexts() { return tessarine::otpTexts(); }
    int otpIndex() const; // -1 for a value that is not offered
    void chooseOtp(int index);
    QString otpText() const;
    PreferenceNote otpNote() const;

Q_SIGNALS:
    void changed();

private:
    PreferencesStore& preferences_;
};

} // namespace tessarine
