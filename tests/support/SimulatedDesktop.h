#pragma once

#include "platform/FileViewer.h"
#include "platform/SavePanel.h"
#include "platform/StatusItem.h"
#include "platform/SystemAppearance.h"

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
    void setMenuBuilder(MenuBuilder builder) override { menuBuilder = std::move(builder); }
    void show() override { shown = true; }

    QString symbol;
    QString description;
    QString title = QStringLiteral("never set");
    int titlesSet = 0;
    MenuBuilder menuBuilder;
    bool shown = false;
};

// A desktop that is as light or dark as the test says.
class SimulatedAppearance : public SystemAppearance {
public:
    bool prefersDark() const override {
        return appearance == Appearance::system ? desktopIsDark : appearance == Appearance::dark;
    }
    void setAppearance(Appearance value) override {
        appearance = value;
        Q_EMIT changed();
    }
    void setDesktopIsDark(bool dark) {
        desktopIsDark = dark;
        Q_EMIT changed();
    }

    Appearance appearance = Appearance::system;
    bool desktopIsDark = false;
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

} // namespace tessarine::testing
