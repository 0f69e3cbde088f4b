#pragma once

#include "platform/SystemAppearance.h"
#include "platform/linux/desktop/LinuxMotionSetting.h"

#include <QVariant>

#include <optional>

class QDBusConnection;
class QDBusMessage;

namespace tessarine {

// The desktop's colour scheme, as the settings portal tells it; where there is no portal, or it
// has no preference, the lightness of the palette that the platform gave. The portal is asked
// without waiting: until it answers the palette counts.
class LinuxSystemAppearance : public SystemAppearance {
    Q_OBJECT

public:
    // The connection may be a broken one.
    explicit LinuxSystemAppearance(const QDBusConnection& bus);

    bool prefersDark() const override { return dark_; }
    bool reducesMotion() const override { return motion_.isReduced(); }
    void setAppearance(Appearance appearance) override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void onSettingChanged(const QDBusMessage& change);

private:
    void askPortal(const QDBusConnection& bus);
    void setColourScheme(const QVariant& value);
    bool desktopPrefersDark() const;
    void update();

    Appearance appearance_ = Appearance::system;
    std::optional<bool> portalPrefersDark_;
    bool dark_ = false;
    LinuxMotionSetting motion_;
};

} // namespace tessarine
