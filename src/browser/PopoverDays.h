#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace tessarine {

// One day on offer in the date popover.
struct PopoverDay {
    QString text;  // as it was handed over, which is what choosing the day gives back
    QString label; // "Lun 1 Giu"
    std::optional<qsizetype> badge;

    bool operator==(const PopoverDay&) const = default;
};

struct PopoverMonth {
    QString title; // "Giugno 2026"
    std::vector<PopoverDay> days;

    bool operator==(const PopoverMonth&) const = default;
};

// The days on offer, by month, in the order given. Days are read in the long Italian form
// ("lunedì 1 giugno 2026"); whatever is not in that form is left out. Day keys are not: a popover
// that is fed with them offers its ranges alone.
std::vector<PopoverMonth> popoverMonths(const QStringList& availableDates,
                                        const QMap<QString, qsizetype>& notificationsPerDay);

} // namespace tessarine
