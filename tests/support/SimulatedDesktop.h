#pragma once

#include "platform/Desktop.h"
#include "support/SimulatedApplicationIcons.h"

#include <functional>
#include <vector>

namespace tessarine::testing {

// Keeps what it is told, for the test to look at.
class SimulatedStatusItem : public StatusItem {
public:
    void setImage(const QString& symbolName, const QString& accessibilityDescription) override {
        symbol = symbolName;
        description = accessibilityDescription;
    }
    void setTitle(const QString& text) override {
        title = text;
        ++titlesSet;
    }
    void setTip(const QString& text) override { tip = text; }
    void setActivation(std::function<void()> handler) override { activation = std::move(handler); }
    void setAlternateActivation(std::function<void()> handler) override {
        alternateActivation = std::move(handler);
    }
    void keepPlaceIn(UserDefaults&) override {}
    void setMenuBuilder(MenuBuilder builder) override { menuBuilder = std::move(builder); }
    void show() override { shown = true; }

    QString symbol;
    QString description;
    QString title = QStringLiteral("never set");
    int titlesSet = 0;
    QString tip;
    std::function<void()> activation;
    std::function<void()> alternateActivation;
    MenuBuilder menuBuilder;
    bool shown = false;
};

// A desktop that is as light or dark as the test says.
class SimulatedAppearance : public SystemAppearance {
public:
    bool prefersDark() const override {
        return appearance == Appearance::system ? desktopIsDark : appearance == Appearance::dark;
    }
    bool reducesMotion() const override { return motionIsReduced; }
    void setReducesMotion(bool reduces) {
        motionIsReduced = reduces;
        Q_EMIT changed();
    }
    void setAppearance(Appearance value) override {
        appearance = value;
        Q_EMIT changed();
    }
    void setDesktopIsDark(bool dark) {
        desktopIsDark = dark;
        Q_EMIT changed();
    }

    std::optional<QColor> accentColour() const override { return accent; }
    bool prefersHighContrast() const override { return highContrast; }
    void setAccent(std::optional<QColor> colour) {
        accent = colour;
        Q_EMIT changed();
    }
    void setHighContrast(bool wanted) {
        highContrast = wanted;
        Q_EMIT changed();
    }

    Appearance appearance = Appearance::system;
    bool desktopIsDark = false;
    bool motionIsReduced = false;
    std::optional<QColor> accent;
    bool highContrast = false;
};

// A user who answers every question for a path alike.
class SimulatedSavePanel : public SavePanel {
public:
    std::optional<QString> runModal(const Request& request) override {
        requests.push_back(request);
        if (meanwhile)
            meanwhile();
        return answer;
    }

    std::optional<QString> answer;   // nothing: the user cancels
    std::function<void()> meanwhile; // what happens while the user thinks
    std::vector<Request> requests;
};

class SimulatedFileViewer : public FileViewer {
public:
    void reveal(const QString& path) override { revealed.push_back(path); }

    std::vector<QString> revealed;
};

class SimulatedApplicationControl : public ApplicationControl {
public:
    void useAccessoryPolicy() override { isAccessory = true; }
    void activate(QWindow& window) override { activated.push_back(&window); }
    void returnFreeMemory() override { ++memoryReturns; }

    bool isAccessory = false;
    std::vector<QWindow*> activated;
    int memoryReturns = 0;
};

class SimulatedSoftwareUpdater : public SoftwareUpdater {
public:
    bool checkForUpdates() override {
        ++checks;
        return isOwn;
    }

    bool isOwn = false; // whether the system has an updater for the program
    int checks = 0;
};

// The whole simulated desktop, with its parts at hand for the test.
struct SimulatedDesktop {
    explicit SimulatedDesktop(std::unique_ptr<Symbols> symbols);
    SimulatedDesktop()
        : SimulatedDesktop(std::make_unique<SimulatedSymbols>()) {}

    Desktop desktop;
    SimulatedApplicationIcons& icons;
    SimulatedAppearance& appearance;
    SimulatedApplicationControl& application;
    SimulatedStatusItem& statusItem;
    SimulatedSavePanel& savePanel;
    SimulatedFileViewer& fileViewer;
    SimulatedSoftwareUpdater& updater;
};

inline SimulatedDesktop::SimulatedDesktop(std::unique_ptr<Symbols> symbols)
    : desktop{std::move(symbols),
              std::make_unique<SimulatedApplicationIcons>(),
              std::make_unique<SimulatedAppearance>(),
              std::make_unique<SimulatedApplicationControl>(),
              std::make_unique<SimulatedStatusItem>(),
              std::make_unique<SimulatedSavePanel>(),
              std::make_unique<SimulatedFileViewer>(),
              std::make_unique<SimulatedSoftwareUpdater>()}
    , icons(static_cast<SimulatedApplicationIcons&>(*desktop.applicationIcons))
    , appearance(static_cast<SimulatedAppearance&>(*desktop.appearance))
    , application(static_cast<SimulatedApplicationControl&>(*desktop.application))
    , statusItem(static_cast<SimulatedStatusItem&>(*desktop.statusItem))
    , savePanel(static_cast<SimulatedSavePanel&>(*desktop.savePanel))
    , fileViewer(static_cast<SimulatedFileViewer&>(*desktop.fileViewer))
    , updater(static_cast<SimulatedSoftwareUpdater&>(*desktop.updater)) {}

} // namespace tessarine::testing
