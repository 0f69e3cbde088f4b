#include "platform/linux/desktop/LinuxSystemAppearance.h"

#include "platform/linux/bus/QtBus.h"
#include "support/EventLoop.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::turnsUntil;

TEST(LinuxAppearance, WithoutABusThePaletteDecides) {
    const QPalette before = QGuiApplication::palette();
    LinuxSystemAppearance appearance{QDBusConnection(u"none"_qs)};
    const QSignalSpy changes(&appearance, &SystemAppearance::changed);
    QPalette dark = before;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);

    QGuiApplication::setPalette(dark);
    EXPECT_TRUE(appearance.prefersDark());
    EXPECT_EQ(changes.count(), 1);
    QGuiApplication::setPalette(before);
    EXPECT_FALSE(appearance.prefersDark());
    EXPECT_EQ(changes.count(), 2);
}

TEST(LinuxAppearance, WhatTheProgramAsksForComesBeforeTheDesktop) {
    LinuxSystemAppearance appearance{QDBusConnection(u"none"_qs)};
    const QSignalSpy changes(&appearance, &SystemAppearance::changed);
    appearance.setAppearance(Appearance::dark);
    EXPECT_TRUE(appearance.prefersDark());
    appearance.setAppearance(Appearance::dark);
    EXPECT_EQ(changes.count(), 1);
    appearance.setAppearance(Appearance::system);
    EXPECT_FALSE(appearance.prefersDark());
    EXPECT_EQ(changes.count(), 2);
}

// A settings portal as desktops run it, on a bus of its own.
class FakePortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakePortal(QDBusConnection bus)
        : bus_(std::move(bus)) {
        bus_.registerObject(path_, this, QDBusConnection::ExportAllSlots);
        bus_.registerService(u"org.freedesktop.portal.Desktop"_qs);
    }

    void change(const QString& group, uint value) { change(group, u"color-scheme"_qs, value); }

    void change(const QString& group, const QString& key, const QVariant& value) {
        QDBusMessage signal = QDBusMessage::createSignal(
            path_, u"org.freedesktop.portal.Settings"_qs, u"SettingChanged"_qs);
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        bus_.send(signal);
    }

    // As the portal sends a colour: three numbers for red, green and blue.
    static QVariant colour(double red, double green, double blue) {
        QDBusArgument parts;
        parts.beginStructure();
        parts << red << green << blue;
        parts.endStructure();
        return QVariant::fromValue(parts);
    }

    uint scheme = 0;
    QMap<QString, QVariant> others; // by group and key in one

    uint contrast = 0;
    QVariant accent; // none: the portal is older than this setting

public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key) const {
        const bool known = group == u"org.freedesktop.appearance";
        QVariant value = others.value(group + key, 99U);
        if (known && key == u"color-scheme")
            value = scheme;
        else if (known && key == u"contrast")
            value = contrast;
        else if (known && key == u"accent-color" && accent.isValid())
            value = accent;
        return QDBusVariant(QVariant::fromValue(QDBusVariant(value)));
    }

private:
    const QString path_ = u"/org/freedesktop/portal/desktop"_qs;
    QDBusConnection bus_;
};

class PortalTest : public ::testing::Test {
protected:
    bool becomesDark(const SystemAppearance& appearance, bool dark) {
        return turnsUntil([&] { return appearance.prefersDark() == dark; });
    }

    testing::QtBus bus_;
    const QString group_ = u"org.freedesktop.appearance"_qs;
};

TEST_F(PortalTest, TheSettingOfTheDesktopIsReadAndFollowed) {
    FakePortal portal(bus_.connection(u"portal"_qs));
    portal.scheme = 1;
    LinuxSystemAppearance appearance(bus_.connection(u"program"_qs));
    EXPECT_FALSE(appearance.prefersDark()); // nobody has waited for the answer
    EXPECT_TRUE(becomesDark(appearance, true));
    portal.change(group_, 2);
    EXPECT_TRUE(becomesDark(appearance, false));
    portal.change(group_, 1);
    EXPECT_TRUE(becomesDark(appearance, true));
    portal.change(group_, 0); // no preference: the palette, which is light
    EXPECT_TRUE(becomesDark(appearance, false));
}

TEST_F(PortalTest, TheAccentColourIsReadAndFollowed) {
    FakePortal portal(bus_.connection(u"portal"_qs));
    portal.accent = FakePortal::colour(0, 0.5, 1);
    LinuxSystemAppearance appearance(bus_.connection(u"program"_qs));
    const QSignalSpy changes(&appearance, &SystemAppearance::changed);
    EXPECT_EQ(appearance.accentColour(), std::nullopt);
    const auto becomes = [&](std::optional<QColor> wanted) {
        return turnsUntil([&] {
            const std::optional<QColor> accent = appearance.accentColour();
            return accent.has_value() == wanted.has_value() &&
                   (!accent || accent->name() == wanted->name());
        });
    };
    EXPECT_TRUE(becomes(QColor(0, 128, 255)));
    EXPECT_EQ(changes.count(), 1);
    portal.change(group_, u"accent-color"_qs, FakePortal::colour(1, 0, 0));
    EXPECT_TRUE(becomes(QColor(255, 0, 0)));
    portal.change(group_, u"accent-color"_qs, FakePortal::colour(-1, -1, -1)); // no preference
    EXPECT_TRUE(becomes(std::nullopt));
    portal.change(group_, u"accent-color"_qs, FakePortal::colour(0, 1, 0));
    EXPECT_TRUE(becomes(QColor(0, 255, 0)));
    portal.change(group_, u"accent-color"_qs, u"green"_qs); // not a colour
    EXPECT_TRUE(becomes(std::nullopt));
}

TEST_F(PortalTest, TheWishForContrastIsReadAndFollowed) {
    FakePortal portal(bus_.connection(u"portal"_qs));
    portal.contrast = 1;
    LinuxSystemAppearance appearance(bus_.connection(u"program"_qs));
    const QSignalSpy changes(&appearance, &SystemAppearance::changed);
    EXPECT_FALSE(appearance.prefersHighContrast());
    EXPECT_TRUE(turnsUntil([&] { return appearance.prefersHighContrast(); }));
    EXPECT_EQ(changes.count(), 1);
    portal.change(group_, u"contrast"_qs, 0U);
    EXPECT_TRUE(turnsUntil([&] { return !appearance.prefersHighContrast(); }));
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(PortalTest, APortalThatComesLaterIsAsked) {
    LinuxSystemAppearance appearance(bus_.connection(u"program"_qs));
    FakePortal portal(bus_.connection(u"portal"_qs));
    portal.scheme = 1;
    EXPECT_TRUE(becomesDark(appearance, true));
}

TEST_F(PortalTest, OtherSettingsAreNoneOfOurs) {
    LinuxSystemAppearance appearance(bus_.connection(u"program"_qs));
    FakePortal portal(bus_.connection(u"portal"_qs));
    portal.change(u"org.gnome.desktop.interface"_qs, 1);
    portal.scheme = 0;
    portal.change(u"com.example"_qs, 1);
    EXPECT_FALSE(turnsUntil([&] { return appearance.prefersDark(); }, 300));
}

// Motion

struct MotionCase {
    const char* group;
    const char* key;
    QVariant none;
    QVariant some;
};

class MotionTest : public PortalTest, public ::testing::WithParamInterface<MotionCase> {};

TEST_P(MotionTest, TheSettingOfTheDesktopIsReadAndFollowed) {
    FakePortal portal(bus_.connection(u"portal"_qs));
    const QString group = QString::fromLatin1(GetParam().group);
    const QString key = QString::fromLatin1(GetParam().key);
    portal.others[group + key] = GetParam().none;
    LinuxSystemAppearance appearance(bus_.connection(u"program"_qs));
    const QSignalSpy changes(&appearance, &SystemAppearance::changed);
    EXPECT_TRUE(turnsUntil([&] { return appearance.reducesMotion(); }));
    EXPECT_EQ(changes.count(), 1);
    portal.change(group, key, GetParam().some);
    EXPECT_TRUE(turnsUntil([&] { return !appearance.reducesMotion(); }));
    portal.change(group, key, GetParam().none);
    EXPECT_TRUE(turnsUntil([&] { return appearance.reducesMotion(); }));
}

INSTANTIATE_TEST_SUITE_P(
    Desktops, MotionTest,
    ::testing::Values(MotionCase{"org.freedesktop.appearance", "reduced-motion", 1U, 0U},
                      MotionCase{"org.gnome.desktop.interface", "enable-animations", false, true},
                      MotionCase{"org.kde.kdeglobals.KDE", "AnimationDurationFactor", u"0"_qs,
                                 u"0.5"_qs}));

TEST(LinuxAppearance, WithoutAPortalThereIsMotion) {
    const LinuxSystemAppearance appearance{QDBusConnection(u"none"_qs)};
    EXPECT_FALSE(appearance.reducesMotion());
}

} // namespace
} // namespace tessarine

#include "LinuxSystemAppearanceTest.moc"
