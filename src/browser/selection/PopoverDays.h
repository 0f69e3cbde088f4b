#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tessarine {

// One day on offer in the date popover.
struct PopoverDay {
    Q_GADGET
    QML_VALUE_TYPE(popoverDay)
    Q_PROPERTY(QString text MEMBER text CONSTANT)
    Q_PROPERTY(QString label MEMBER label CONSTANT)
    Q_PROPERTY(int badge READ badgeNumber CONSTANT)

public:
    int badgeNumber() const { return int(badge.value_or(0)); }
    bool operator==(const PopoverDay&) const = default;

    QString text;  // as it was handed over, which is what choosing the day gives back
    QString label; // "Lun 1 Giu"
    std::optional<qsizetype> badge;
};

struct PopoverMonth {
    Q_GADGET
    QML_VALUE_TYPE(popoverMonth)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QList<tessarine::PopoverDay> days MEMBER days CONSTANT)

public:
    bool operator==(const PopoverMonth&) const = default;

    QString title; // "Giugno 2026"
    QList<PopoverDay> days;
};

// The days on offer, by month, in the order given. Days are read in the long Italian form
// ("lunedì 1 giugno 2026"); whatever is not in that form is left out. Day keys are not: a popover
// that is fed with them offers its ranges alone.
QList<PopoverMonth> popoverMonths(const QStringList& availableDates,
                                  const QMap<QString, qsizetype>& notificationsPerDay);

} // namespace tessarine
