#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace tessarine {

class UserDefaults;

// One line of a menu: a command, a caption (which is a command that is disabled), or a separator,
// which has nothing but that.
struct StatusMenuItem {
    QString title;
    std::function<void()> action;
    QString key =
        {}; // the character that chooses it together with the system's command key, if any
    bool isEnabled = true;
    std::optional<bool> isChecked = {}; // for what is switched on and off
    bool isSeparator = false;

    static StatusMenuItem caption(const QString& title) {
        StatusMenuItem item{title, nullptr};
        item.isEnabled = false;
        return item;
    }
    static StatusMenuItem separator() {
        StatusMenuItem item;
        item.isSeparator = true;
        return item;
    }
};

using StatusMenu = std::vector<StatusMenuItem>;

// The program's permanent face on the desktop: a small picture, a short text beside it, and a menu
// that a click opens. Main thread.
class StatusItem {
public:
    using MenuBuilder = std::function<StatusMenu()>;

    StatusItem() = default;
    StatusItem(const StatusItem&) = delete;
    StatusItem& operator=(const StatusItem&) = delete;
    virtual ~StatusItem() = default;

    // The picture, by symbol name, in the colour of the place it appears in; the description is
    // what a screen reader says.
    virtual void setImage(const QString& symbolName, const QString& accessibilityDescription) = 0;

    // The text beside the picture, for example " 5"; empty shows the picture alone.
    virtual void setTitle(const QString& title) = 0;

    // The same in words, for a pointer that rests on the item and for a screen reader, for example
    // "5 new notifications"; empty leaves them the description.
    virtual void setTip(const QString& tip) = 0;

    // What a click does where the desktop opens the menu by itself, at its own place; elsewhere a
    // click opens the menu.
    virtual void setActivation(std::function<void()> activation) = 0;

    // What a click with the Option key does (Alt, elsewhere), in place of what it does without;
    // also a click of the middle button, since not all desktops tell of keys with a click.
    virtual void setAlternateActivation(std::function<void()> activation) = 0;

    // Gives the menu, anew each time that the user asks for it.
    virtual void setMenuBuilder(MenuBuilder builder) = 0;

    // Where the user has moved an item that can be moved is kept in these defaults, over the starts
    // of the program. They outlive the item. To be called before it is shown.
    virtual void keepPlaceIn(UserDefaults& defaults) = 0;

    // Puts the item on the desktop, where it stays. Returns at once; the item may come later.
    virtual void show() = 0;
};

} // namespace tessarine
