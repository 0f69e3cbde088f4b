#include "platform/linux/desktop/LinuxDesktop.h"

#include "platform/contracts/SymbolNames.h"
#include "platform/linux/bus/QtBus.h"
#include "platform/linux/desktop/LinuxStatusItem.h"
#include "platform/linux/desktop/LinuxStatusPanel.h"
#include "platform/linux/desktop/LinuxSymbols.h"
#include "platform/linux/desktop/LinuxSystemAppearance.h"
#include "platform/linux/desktop/X11Windows.h"
#include "support/EventLoop.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"

#include <QAccessible>
#include <QApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::SimulatedAppearance;
using testing::turnsUntil;

// Startup notifications

TEST(StartupNotification, NamesTheTimeAtItsEnd) {
    EXPECT_EQ(timeOfStartup("host_panel/7-0-host_TIME123456"), 123456U);
    EXPECT_EQ(timeOfStartup("a_TIME1_TIME4294967295"), 4294967295U);
    EXPECT_EQ(timeOfStartup("a_TIME0"), 0U);
}

TEST(StartupNotification, NamesNoTimeInAnotherForm) {
    for (const char* odd : {"", "token", "a_TIME", "a_TIME-1", "a_TIME12x", "a_TIME4294967296"})
        EXPECT_EQ(timeOfStartup(odd), 0U) << odd;
}

// The answer to a request, elsewhere than on X11

TEST(LinuxApplicationControlTest, ATokenIsInTheEnvironmentWhileItsRequestIsAnswered) {
    LinuxApplicationControl control;
    QByteArray seen;
    control.answer(u"token-1"_qs, [&] { seen = qgetenv("XDG_ACTIVATION_TOKEN"); });
    EXPECT_EQ(seen, "token-1");
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

TEST(LinuxApplicationControlTest, TheTokenOfTheOwnStartIsKeptForAWindowToCome) {
    qputenv("XDG_ACTIVATION_TOKEN", "own");
    LinuxApplicationControl control;
    control.answer(u"own"_qs, [] {});
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "own");
    control.answer(u"other"_qs, [] { qunsetenv("XDG_ACTIVATION_TOKEN"); }); // a window took it
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

TEST(LinuxApplicationControlTest, ARequestWithoutATokenIsAnsweredToo) {
    LinuxApplicationControl control;
    bool isAnswered = false;
    control.answer({}, [&] { isAnswered = !qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"); });
    EXPECT_TRUE(isAnswered);
}

// Symbols

class SymbolTest : public ::testing::TestWithParam<std::string> {};

TEST_P(SymbolTest, IsDrawnInItsColourAtTheSizeAskedFor) {
    const QColor tint(10, 200, 30);
    const QImage image = LinuxSymbols().image(QString::fromStdString(GetParam()), 48, tint);
    ASSERT_EQ(image.size(), QSize(48, 48));
    int solid = 0;
    for (int y = 0; y < 48; ++y)
        for (int x = 0; x < 48; ++x)
            solid += image.pixelColor(x, y) == tint ? 1 : 0;
    EXPECT_GT(solid, 48 * 48 / 20);
    EXPECT_EQ(image.pixelColor(0, 47).alpha(), 0);
}

std::vector<std::string> allSymbols() {
    std::vector<std::string> names;
    for (const QString& name : LinuxSymbols().names())
        names.push_back(name.toStdString());
    return names;
}

std::string plainName(const ::testing::TestParamInfo<std::string>& info) {
    std::string name = info.param;
    std::erase(name, '.');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Table, SymbolTest, ::testing::ValuesIn(allSymbols()), plainName);

TEST(Symbols, AreThoseThatTheProgramShows) {
    EXPECT_EQ(LinuxSymbols().names(), testing::shownSymbols());
}

TEST(Symbols, AnUnknownNameHasNoPicture) {
    EXPECT_TRUE(LinuxSymbols().image(u"no.such.symbol"_qs, 16, Qt::black).isNull());
    EXPECT_TRUE(LinuxSymbols().image(u"bell.fill"_qs, 0, Qt::black).isNull());
    EXPECT_TRUE(LinuxSymbols().image(u"../bell.fill"_qs, 16, Qt::black).isNull());
}

// Appearance

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

// Tray

// The service with which tray hosts and items find each other.
class FakeWatcher : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER hasHost)

public:
    explicit FakeWatcher(QDBusConnection bus)
        : bus_(std::move(bus)) {
        bus_.registerObject(u"/StatusNotifierWatcher"_qs, this,
                            QDBusConnection::ExportAllProperties |
                                QDBusConnection::ExportAllSignals);
        bus_.registerService(u"org.kde.StatusNotifierWatcher"_qs);
    }
    ~FakeWatcher() override { bus_.unregisterService(u"org.kde.StatusNotifierWatcher"_qs); }

    bool hasHost = true;

Q_SIGNALS:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private:
    QDBusConnection bus_;
};

class TrayWatchTest : public ::testing::Test {
protected:
    bool becomesPresent(const LinuxTrayWatch& watch, bool present) {
        return turnsUntil([&] { return watch.isPresent() == present; });
    }

    testing::QtBus bus_;
};

TEST_F(TrayWatchTest, ATrayThatWasThereBeforeIsFound) {
    const FakeWatcher watcher(bus_.connection(u"tray"_qs));
    const LinuxTrayWatch watch(bus_.connection(u"program"_qs));
    EXPECT_FALSE(watch.isPresent()); // nobody has waited for the answer
    EXPECT_TRUE(becomesPresent(watch, true));
}

TEST_F(TrayWatchTest, ATrayMayComeAndGo) {
    const LinuxTrayWatch watch(bus_.connection(u"program"_qs));
    auto watcher = std::make_unique<FakeWatcher>(bus_.connection(u"tray"_qs));
    EXPECT_TRUE(becomesPresent(watch, true));
    watcher.reset();
    EXPECT_TRUE(becomesPresent(watch, false));
}

TEST_F(TrayWatchTest, AServiceWithoutAHostIsNoTrayUntilOneComes) {
    FakeWatcher watcher(bus_.connection(u"tray"_qs));
    watcher.hasHost = false;
    const LinuxTrayWatch watch(bus_.connection(u"program"_qs));
    EXPECT_FALSE(turnsUntil([&] { return watch.isPresent(); }, 300));
    watcher.hasHost = true;
    Q_EMIT watcher.StatusNotifierHostRegistered();
    EXPECT_TRUE(becomesPresent(watch, true));
    watcher.hasHost = false;
    Q_EMIT watcher.StatusNotifierHostUnregistered();
    EXPECT_TRUE(becomesPresent(watch, false));
}

TEST(TrayWatch, WithoutABusThereIsNone) {
    const LinuxTrayWatch watch{QDBusConnection(u"none"_qs)};
    EXPECT_FALSE(watch.isPresent());
}

// Panel

class PanelTest : public ::testing::Test {
protected:
    PanelTest() {
        panel_.setContent(u"bell.fill"_qs, u"Tessarine"_qs, u" 5"_qs);
        panel_.setTip(u"5 new notifications"_qs);
        panel_.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&panel_, testing::patienceMs));
    }

    LinuxSymbols symbols_;
    SimulatedAppearance appearance_;
    LinuxStatusPanel panel_{symbols_, appearance_};
    QSignalSpy requests_{&panel_, &LinuxStatusPanel::menuRequested};
};

// What the panel leaves free on the right and below, in points.
QPoint freeBeside(const LinuxStatusPanel& panel) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    return room.bottomRight() - panel.body().bottomRight();
}

TEST_F(PanelTest, StandsInTheLowerRightCornerAndKeepsItWhenItGrows) {
    EXPECT_EQ(freeBeside(panel_), QPoint(12, 12));
    const int width = panel_.width();
    panel_.setContent(u"bell.fill"_qs, u"Tessarine"_qs, u" 99+"_qs);
    EXPECT_GT(panel_.width(), width);
    EXPECT_EQ(freeBeside(panel_), QPoint(12, 12));
}

TEST_F(PanelTest, StaysOnTheScreenWhereverItIsPut) {
    panel_.setOffset(QPoint(100000, 100000));
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(panel_.body().topLeft(), room.topLeft());
}

TEST_F(PanelTest, ItsCornersAreRoundAndItsShadowIsSoft) {
    QImage picture(panel_.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    panel_.render(&picture, {}, {}, {});
    const QRect face = panel_.body().translated(-panel_.pos());
    EXPECT_EQ(picture.pixelColor(face.center() + QPoint(0, 12)).alpha(), 255);
    EXPECT_LT(picture.pixelColor(face.topLeft()).alpha(), 128);
    const int near = picture.pixelColor(face.center().x(), face.bottom() + 2).alpha();
    const int far = picture.pixelColor(face.center().x(), face.bottom() + 7).alpha();
    EXPECT_GT(near, far);
    EXPECT_GT(far, 0);
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0);
}

TEST_F(PanelTest, TellsAScreenReaderItsNameAndCount) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&panel_);
    EXPECT_EQ(spoken->role(), QAccessible::Button);
    EXPECT_EQ(spoken->text(QAccessible::Name), u"Tessarine, 5 new notifications"_qs);
    EXPECT_EQ(panel_.toolTip(), u"5 new notifications"_qs);
}

TEST_F(PanelTest, EitherMouseButtonAsksForTheMenu) {
    QTest::mouseClick(&panel_, Qt::LeftButton);
    EXPECT_EQ(requests_.count(), 1);
    QTest::mouseClick(&panel_, Qt::RightButton);
    EXPECT_EQ(requests_.count(), 2);
    QTest::mouseClick(&panel_, Qt::BackButton);
    EXPECT_EQ(requests_.count(), 2);
}

TEST_F(PanelTest, AltAndTheMiddleButtonAskForTheOther) {
    const QSignalSpy others(&panel_, &LinuxStatusPanel::alternateRequested);
    QTest::mouseClick(&panel_, Qt::MiddleButton);
    EXPECT_EQ(others.count(), 1);
    QTest::mouseClick(&panel_, Qt::LeftButton, Qt::AltModifier);
    EXPECT_EQ(others.count(), 2);
    QTest::mouseClick(&panel_, Qt::RightButton, Qt::AltModifier);
    EXPECT_EQ(others.count(), 3);
    QTest::keyClick(&panel_, Qt::Key_Return, Qt::AltModifier);
    EXPECT_EQ(others.count(), 4);
    EXPECT_EQ(requests_.count(), 0);
}

TEST_F(PanelTest, SpaceReturnAndTheMenuKeyAskForTheMenu) {
    int expected = 0;
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Menu}) {
        QTest::keyClick(&panel_, key);
        EXPECT_EQ(requests_.count(), ++expected);
    }
    QTest::keyClick(&panel_, Qt::Key_A);
    EXPECT_EQ(requests_.count(), expected);
}

TEST_F(PanelTest, AScreenReaderCanPressIt) {
    QAccessible::queryAccessibleInterface(&panel_)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(turnsUntil([this] { return requests_.count() == 1; }));
}

TEST_F(PanelTest, DraggingMovesItAndOpensNoMenu) {
    const QPoint before = panel_.pos();
    const auto drag = [this](QEvent::Type type, const QPoint& place, Qt::MouseButton button) {
        QMouseEvent event(type, panel_.mapFromGlobal(place), place, button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&panel_, &event);
    };
    const QSignalSpy placings(&panel_, &LinuxStatusPanel::placed);
    drag(QEvent::MouseButtonPress, before + QPoint(20, 20), Qt::LeftButton);
    drag(QEvent::MouseMove, before + QPoint(-180, -80), Qt::NoButton);
    EXPECT_EQ(placings.count(), 0);
    drag(QEvent::MouseButtonRelease, before + QPoint(-180, -80), Qt::LeftButton);
    EXPECT_EQ(placings.count(), 1);
    EXPECT_EQ(panel_.pos(), before + QPoint(-200, -100));
    EXPECT_EQ(requests_.count(), 0);

    const int right = panel_.geometry().right();
    panel_.setContent(u"bell.fill"_qs, u"Tessarine"_qs, {});
    EXPECT_EQ(panel_.geometry().right(), right);
    EXPECT_EQ(panel_.y(), before.y() - 100);
}

// Status item

class StatusItemTest : public ::testing::Test {
protected:
    StatusItemTest() {
        item_.setImage(u"bell.fill"_qs, u"Tessarine"_qs);
        item_.setTitle(u" 5"_qs);
        item_.setTip(u"5 new notifications"_qs);
        item_.setMenuBuilder([this] { return menu(); });
    }

    static LinuxStatusPanel* panel() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<LinuxStatusPanel*>(widget); found && found->isVisible())
                return found;
        return nullptr;
    }

    StatusMenu menu() {
        return {{u"Built %1 times"_qs.arg(++built_), [this] { ++triggered_; }, u"o"_qs}};
    }

    // The menu that a click on the panel opens.
    static QMenu* openedMenu() {
        QTest::mouseClick(panel(), Qt::LeftButton);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }

    LinuxSymbols symbols_;
    SimulatedAppearance appearance_;
    LinuxStatusItem item_{symbols_, appearance_};
    int built_ = 0;
    int triggered_ = 0;
};

TEST_F(StatusItemTest, WithoutATrayThePanelComesAfterTheGraceTime) {
    item_.show();
    EXPECT_EQ(panel(), nullptr);
    ASSERT_TRUE(turnsUntil([] { return panel() != nullptr; }));
    EXPECT_EQ(panel()->accessibleName(), u"Tessarine, 5 new notifications"_qs);
    item_.setTip({});
    EXPECT_EQ(panel()->accessibleName(), u"Tessarine"_qs);

    for (int click = 1; click <= 2; ++click) {
        QTest::mouseClick(panel(), Qt::LeftButton);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        ASSERT_EQ(menu->actions().size(), 1); // fresh, not added to
        EXPECT_EQ(menu->actions()[0]->text(), u"Built %1 times"_qs.arg(click));
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
        EXPECT_EQ(triggered_, click);
    }
}

TEST_F(StatusItemTest, AScreenReaderFindsTheOpenMenuInThePanelAndChooses) {
    item_.show();
    ASSERT_TRUE(turnsUntil([] { return panel() != nullptr; }));
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(panel());
    EXPECT_EQ(spoken->childCount(), 0);
    spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_EQ(spoken->childCount(), 1);
    QAccessibleInterface* entry = spoken->child(0)->child(0);
    EXPECT_EQ(spoken->indexOfChild(spoken->child(0)), 0);
    EXPECT_EQ(entry->text(QAccessible::Name), u"Built 1 times"_qs);
    entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(triggered_, 1);
    EXPECT_EQ(spoken->childCount(), 0); // the menu has closed
}

TEST_F(StatusItemTest, TheMenuShowsTheItemsAsTheyAre) {
    StatusMenuItem switchedOn{u"On"_qs, [] {}};
    switchedOn.isChecked = true;
    StatusMenuItem switchedOff{u"Off"_qs, [] {}};
    switchedOff.isChecked = false;
    item_.setMenuBuilder([=] {
        return StatusMenu{StatusMenuItem::caption(u"Name"_qs),
                          StatusMenuItem::separator(),
                          switchedOn,
                          switchedOff,
                          {u"Help"_qs, [] {}, u"?"_qs}};
    });
    item_.show();
    ASSERT_TRUE(turnsUntil([] { return panel() != nullptr; }));
    const QList<QAction*> shown = openedMenu()->actions();
    ASSERT_EQ(shown.size(), 5);
    EXPECT_FALSE(shown[0]->isEnabled());
    EXPECT_FALSE(shown[0]->isCheckable());
    EXPECT_TRUE(shown[1]->isSeparator());
    EXPECT_TRUE(shown[2]->isCheckable() && shown[2]->isChecked());
    EXPECT_TRUE(shown[3]->isCheckable() && !shown[3]->isChecked());
    EXPECT_EQ(shown[4]->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Question));
    EXPECT_TRUE(shown[4]->isEnabled());
}

TEST_F(StatusItemTest, TheOtherClickOpensNoMenuAndKeepsNone) {
    int others = 0;
    item_.show();
    ASSERT_TRUE(turnsUntil([] { return panel() != nullptr; }));
    QTest::mouseClick(panel(), Qt::MiddleButton); // before there is something for it to do
    item_.setAlternateActivation([&] { ++others; });
    QTest::mouseClick(panel(), Qt::MiddleButton);
    QTest::mouseClick(panel(), Qt::LeftButton, Qt::AltModifier);
    EXPECT_EQ(others, 2);
    EXPECT_EQ(built_, 0);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(StatusItemTest, ThePanelComesBackToWhereTheUserPutIt) {
    testing::SimulatedDefaults defaults;
    defaults.setIntegerList(u"statusPanelOffset"_qs, {300, 200});
    item_.keepPlaceIn(defaults);
    item_.show();
    ASSERT_TRUE(turnsUntil([] { return panel() != nullptr; }));
    EXPECT_EQ(freeBeside(*panel()), QPoint(300, 200));
    panel()->setOffset(QPoint(30, 40));
    Q_EMIT panel()->placed();
    EXPECT_EQ(defaults.integerList(u"statusPanelOffset"_qs), (std::vector<qint64>{30, 40}));
}

TEST_F(StatusItemTest, APlaceThatIsNoneIsTheCorner) {
    testing::SimulatedDefaults defaults;
    defaults.setIntegerList(u"statusPanelOffset"_qs, {300});
    item_.keepPlaceIn(defaults);
    item_.show();
    ASSERT_TRUE(turnsUntil([] { return panel() != nullptr; }));
    EXPECT_EQ(freeBeside(*panel()), QPoint(12, 12));
}

TEST_F(StatusItemTest, AShortcutThatTheMenuShowsWorksWhileItIsOpen) {
    item_.show();
    ASSERT_TRUE(turnsUntil([] { return panel() != nullptr; }));
    QTest::mouseClick(panel(), Qt::LeftButton);
    const QPointer<QWidget> menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    QTest::keyClick(menu, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(triggered_, 0);
    QTest::keyClick(menu, Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(triggered_, 1);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

} // namespace
} // namespace tessarine

#include "LinuxDesktopTest.moc"
