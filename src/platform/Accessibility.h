#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace tessarine {

// One element of what another process draws, held by a handle that is cheap to copy. What it
// stands for may vanish at any time; every question then goes unanswered.
class AXElement {
public:
    AXElement() = default;
    AXElement(const AXElement&) = delete;
    AXElement& operator=(const AXElement&) = delete;
    virtual ~AXElement() = default;
};

using AXElementRef = std::shared_ptr<const AXElement>;

// The value of an attribute: a text, or further elements. Values of other types are monostate.
using AXValue = std::variant<std::monostate, QString, std::vector<AXElementRef>>;

// Names of attributes, roles and events that the program uses.
namespace ax {
inline const QString windows = QStringLiteral("AXWindows");
inline const QString role = QStringLiteral("AXRole");
inline const QString description = QStringLiteral("AXDescription");
inline const QString children = QStringLiteral("AXChildren");
inline const QString value = QStringLiteral("AXValue");

inline const QString group = QStringLiteral("AXGroup");
inline const QString staticText = QStringLiteral("AXStaticText");

inline const QString windowCreated = QStringLiteral("AXWindowCreated");
inline const QString elementDestroyed = QStringLiteral("AXUIElementDestroyed");
inline const QString valueChanged = QStringLiteral("AXValueChanged");
inline const QString focusedElementChanged = QStringLiteral("AXFocusedUIElementChanged");
} // namespace ax

// What an application announced, as it said it: which text is which need not be guessed.
struct Announcement {
    QString application; // the name that the user knows it by; may be empty
    QString title;       // never empty
    QString body;
    double moment = 0; // of announcing, in seconds since the reference date

    bool operator==(const Announcement&) const = default;
};

// The throttle, a promise of both sides. Whoever observes scans for an event that comes at least
// this many seconds after the last one that it scanned for, and drops the others: no scan makes up
// for those. So a system that keeps banners until they were taken sends another event after the
// last change, as soon as one gets through, and goes on with that while any banner is left.
inline constexpr double axThrottle = 1.0;

// Receives the events of one process, once it is attached to the main run loop. Destroying it
// detaches it: no call comes afterwards. Main thread.
class AXObserver {
public:
    AXObserver() = default;
    AXObserver(const AXObserver&) = delete;
    AXObserver& operator=(const AXObserver&) = delete;
    virtual ~AXObserver() = default;

    virtual void addNotification(const AXElementRef& element, const QString& name) = 0;
    virtual void attachToMainRunLoop() = 0;
};

// Called on the main thread with the element that an event names, and the event's own name.
using AXCallback = std::function<void(const AXElementRef& element, const QString& name)>;

// Access to what other processes draw.
class Accessibility {
public:
    Accessibility() = default;
    Accessibility(const Accessibility&) = delete;
    Accessibility& operator=(const Accessibility&) = delete;
    virtual ~Accessibility() = default;

    // Whether the system lets this process look. Never prompts. Any thread.
    virtual bool isProcessTrusted() const = 0;

    // Makes the system ask the user for that, where it does so for a program. Returns at once; the
    // answer shows in isProcessTrusted. Main thread.
    virtual void promptForTrust() = 0;

    // Null when the process can't be observed. Main thread.
    virtual std::unique_ptr<AXObserver> createObserver(qint32 pid, AXCallback callback) = 0;

    // The root of a process's elements; always given, also when there is no such process. Any
    // thread, as are the questions below. Each of these may block for as long as the other process
    // leaves it unanswered, within the element's time-out.
    virtual AXElementRef applicationElement(qint32 pid) = 0;

    // How long questions to this element may take, in seconds.
    virtual void setMessagingTimeout(const AXElementRef& element, double seconds) = 0;

    // Nothing on any error.
    virtual std::optional<AXValue> copyAttributeValue(const AXElementRef& element,
                                                      const QString& attribute) = 0;

    // Takes the announcement that a banner stands for, where the system has more than a drawing of
    // it: its texts and its moment, as values. Each is given once. The banner is gone then, for
    // whoever else has found it too, and the announcement is the caller's to keep. Nothing where
    // there is only a drawing, or when the banner is gone.
    virtual std::optional<Announcement> takeAnnouncement(const AXElementRef& banner) = 0;

    // The process that the element belongs to. Nothing when the element is gone.
    virtual std::optional<qint32> pid(const AXElementRef& element) = 0;
};

} // namespace tessarine
