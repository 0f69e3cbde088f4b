#pragma once

#include "platform/Accessibility.h"

#include <QString>

#include <ostream>
#include <vector>

namespace tessarine::testing {

inline std::vector<AXElementRef> elements(Accessibility& accessibility, const AXElementRef& of,
                                          const QString& attribute) {
    const std::optional<AXValue> value = accessibility.copyAttributeValue(of, attribute);
    const auto* const list = value ? std::get_if<std::vector<AXElementRef>>(&*value) : nullptr;
    return list ? *list : std::vector<AXElementRef>();
}

inline QString text(Accessibility& accessibility, const AXElementRef& of,
                    const QString& attribute) {
    const std::optional<AXValue> value = accessibility.copyAttributeValue(of, attribute);
    const auto* const text = value ? std::get_if<QString>(&*value) : nullptr;
    return text ? *text : QString();
}

// The groups of all windows that the process shows now.
inline std::vector<AXElementRef> shownGroups(Accessibility& accessibility, qint32 pid) {
    std::vector<AXElementRef> groups;
    const AXElementRef application = accessibility.applicationElement(pid);
    for (const AXElementRef& window : elements(accessibility, application, ax::windows)) {
        for (const AXElementRef& group : elements(accessibility, window, ax::children))
            groups.push_back(group);
    }
    return groups;
}

// What the process has to hand over now.
inline std::vector<Announcement> takeAll(Accessibility& accessibility, qint32 pid) {
    std::vector<Announcement> taken;
    for (const AXElementRef& group : shownGroups(accessibility, pid)) {
        if (std::optional<Announcement> announcement = accessibility.takeAnnouncement(group))
            taken.push_back(std::move(*announcement));
    }
    return taken;
}

} // namespace tessarine::testing

namespace tessarine {

inline void PrintTo(const Announcement& announcement, std::ostream* out) {
    const auto start = [](const QString& text) { return text.left(200).toStdString(); };
    *out << '[' << start(announcement.application) << "] " << start(announcement.title) << " | "
         << start(announcement.body);
}

} // namespace tessarine
