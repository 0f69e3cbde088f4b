#pragma once

#include <QString>

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>

namespace tessarine {

// What an application announced: without markup, within the bounds for texts of the bus.
struct AnnouncedTexts {
    QString application;
    QString title;
    QString body;

    bool operator==(const AnnouncedTexts&) const = default;
};

// How much memory the texts take.
inline std::size_t bytesOf(const AnnouncedTexts& texts) {
    const qsizetype units = texts.application.size() + texts.title.size() + texts.body.size();
    return static_cast<std::size_t>(units) * sizeof(QChar);
}

// Which call announced a banner: the sender's unique name on the bus, and the call's serial.
using AnnouncementKey = std::pair<std::string, std::uint32_t>;

// A banner as its application names it.
struct BannerName {
    std::string application;
    std::string name;

    // NOLINTNEXTLINE(modernize-use-nullptr): the zero that it finds is the compiler's own.
    auto operator<=>(const BannerName&) const = default;
};

// The services that draw banners, each with ids of its own.
enum class NotificationService { freedesktop, gtk };

// By what a later call may replace or remove a banner: the number that the service gave it, or the
// name that its application gave it. The order is that of the services.
using BannerId = std::variant<std::uint32_t, BannerName>;

inline NotificationService serviceOf(const BannerId& id) {
    return static_cast<NotificationService>(id.index());
}

// A call that announces a banner. The number 0 asks for a new one.
struct BannerCall {
    AnnouncementKey key;
    BannerId id;
    AnnouncedTexts texts;
    double announcedAt = 0; // by the scheduler's clock of ages
};

} // namespace tessarine
