#pragma once

#include "platform/StatusItem.h"
#include "platform/macos/desktop/StatusMenuTarget.h"

namespace tessarine {

// An item of the system's menu bar. The system keeps its place.
class MacStatusItem : public StatusItem {
public:
    MacStatusItem();
    ~MacStatusItem() override;

    void setImage(const QString& symbolName, const QString& accessibilityDescription) override;
    void setTitle(const QString& title) override;
    void setTip(const QString& tip) override;
    void setActivation(std::function<void()>) override {} // a click opens the menu
    void setAlternateActivation(std::function<void()> activation) override;
    void setMenuBuilder(MenuBuilder builder) override;
    void keepPlaceIn(UserDefaults&) override {}
    void show() override;

private:
    void refreshImage();
    void refreshTitle();
    void refreshTip();
    void onClick();
    void openMenu();

    QString symbolName_;
    QString description_;
    QString title_;
    QString tip_;
    std::function<void()> alternateActivation_;
    MenuBuilder builder_;
    TessarineActionTarget* const target_; // of the button
    NSStatusItem* item_ = nil;            // nil until it is shown
};

} // namespace tessarine
