#pragma once

#include "platform/UserDefaults.h"

#include <QObject>
#include <QString>

#include <mutex>
#include <set>

namespace tessarine {

// The user's settings, in memory and written through: a setter tells observers, publishes the
// value and has it on disk before it returns, also when the value is the one that was there.
// Values are taken as they come, without clamping. Main thread, apart from isPrivate; other threads
// read the defaults.
class PreferencesStore : public QObject {
    Q_OBJECT

public:
    explicit PreferencesStore(UserDefaults& defaults);

    qint64 retentionDays() const { return retentionDays_; } // below 1: keep for ever
    bool globalPrivacyMode() const { return globalPrivacyMode_; }
    const std::set<QString>& privacyApps() const { return privacyApps_; } // bundle identifiers
    bool launchLoginPromptSuppressed() const { return launchLoginPromptSuppressed_; }
    bool hasSeenPrivacyNotice() const { return hasSeenPrivacyNotice_; }
    bool hasAcceptedEULA() const { return hasAcceptedEULA_; }
    bool hasSeenOnboarding() const { return hasSeenOnboarding_; }
    qint64 otpRetentionHours() const { return otpRetentionHours_; } // below 1: no purge
    const std::set<QString>& excludedBundleIds() const { return excludedBundleIds_; }
    const QString& appearanceMode() const { return appearanceMode_; } // "auto", "light", "dark"

    void setRetentionDays(qint64 value);
    void setGlobalPrivacyMode(bool value);
    void setPrivacyApps(const std::set<QString>& value);
    void setLaunchLoginPromptSuppressed(bool value);
    void setHasSeenPrivacyNotice(bool value);
    void setHasAcceptedEULA(bool value);
    void setHasSeenOnboarding(bool value);
    void setOtpRetentionHours(qint64 value);
    void setExcludedBundleIds(const std::set<QString>& value);
    void setAppearanceMode(const QString& value);

    // Whether the content of this application's notifications is masked, by what is set at this
    // moment. Exact comparison. Any thread.
    bool isPrivate(const QString& bundleId) const;

    // Whether each assignment so far is on disk. One that isn't holds for this run, and becomes so
    // with a later one that can be written.
    bool isSaved() const { return !defaults_.hasUnsavedValues(); }

Q_SIGNALS:
    void objectWillChange(); // just before each assignment, while the old value still stands
    void changed();          // just after it

private:
    template <typename Field, typename Value, typename Write>
    void assign(Field& field, const Value& value, const Write& write);

    UserDefaults& defaults_;
    mutable std::mutex mutex_; // guards what isPrivate reads; only the main thread writes
    qint64 retentionDays_ = 0;
    bool globalPrivacyMode_ = false;
    std::set<QString> privacyApps_;
    bool launchLoginPromptSuppressed_ = false;
    bool hasSeenPrivacyNotice_ = false;
    bool hasAcceptedEULA_ = false;
    bool hasSeenOnboarding_ = false;
    qint64 otpRetentionHours_ = 0;
    std::set<QString> excludedBundleIds_;
    QString appearanceMode_;
};

} // namespace tessarine
