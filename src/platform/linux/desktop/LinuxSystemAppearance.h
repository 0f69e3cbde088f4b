#pragma once

#include "platform/SystemAppearance.h"
#include "platform/linux/desktop/LinuxMotionSetting.h"

#include <QVariant>

#include <optional>

class QDBusConnection;
class QDBusMessage;

namespace tessarine {

// The desktop's colour scheme, accent colour and contrast, as the settings portal tells them and
// follows them. Where there is no portal, or it has no preference, the lightness of the palette
// that the platform gave counts, with no accent and usual contrast. The portal is asked without
// waiting.
class LinuxSystemAppearance : public SystemAppearance {
    Q_OBJECT

public:
    // The connection may be a broken one.
    explicit LinuxSystemAppearance(const QDBusConnection& bus);

    bool prefersDark() const override { return dark_; }
    bool reducesMotion() const override { return motion_.isReduced(); }
    std::optional<QColor> accentColour() const override { return accent_; }
    bool prefersHighContrast() const override { return highContrast_; }
    void setAppearance(Appearance appearance) override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void onSettingChanged(const QDBusMessage& change);

private:
    void askPortal(const QDBusConnection& bus);
    void askFor(const QString& key, const QDBusConnection& bus);
    void take(const QString& key, const QVariant& value);
    void setColourScheme(uint scheme);
    bool desktopPrefersDark() const;
    void update();

    Appearance appearance_ = Appearance::system;
    std::optional<bool> portalPrefersDark_;
    bool dark_ = false;
    LinuxMotionSetting motion_;
    std::optional<QColor> accent_;
    bool highContrast_ = false;
};

} // namespace tessarine
