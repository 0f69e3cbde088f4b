#pragma once

#include "platform/Accessibility.h"

#include <QString>
#include <QStringList>

#include <ostream>
#include <vector>

namespace tessarine::testing {

// A banner as it is drawn.
struct DrawnBanner {
    QString description;
    QStringList texts;

    bool operator==(const DrawnBanner&) const = default;
};

inline void PrintTo(const DrawnBanner& banner, std::ostream* out) {
    *out << '"' << banner.description.left(200).toStdString()
         << "\": " << banner.texts.join(u'|').left(200).toStdString();
}

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

inline DrawnBanner readGroup(Accessibility& accessibility, const AXElementRef& group) {
    DrawnBanner banner{text(accessibility, group, ax::description), {}};
    for (const AXElementRef& child : elements(accessibility, group, ax::children))
        banner.texts.append(text(accessibility, child, ax::value));
    return banner;
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

// One whole scan.
inline std::vector<DrawnBanner> scan(Accessibility& accessibility, qint32 pid) {
    std::vector<DrawnBanner> banners;
    for (const AXElementRef& group : shownGroups(accessibility, pid))
        banners.push_back(readGroup(accessibility, group));
    return banners;
}

} // namespace tessarine::testing
