#pragma once

#include "browser/list/BrowserList.h"
#include "browser/selection/DateRangePreset.h"
#include "browser/selection/PopoverDays.h"

#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

class Scheduler;

// One range of days on offer in the date popover.
struct PresetChoice {
    Q_GADGET
    QML_VALUE_TYPE(presetChoice)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(QString label MEMBER label CONSTANT)

public:
    bool operator==(const PresetChoice&) const = default;

    QString symbol; // its name
    QString label;
};

// What the date popover offers: ranges of days, and the days of the loaded rows. Each choice closes
// it. Main thread.
class DateSelection : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("ListSelection brings it")
    Q_PROPERTY(bool showDatePickerPopover READ showDatePickerPopover WRITE setShowDatePickerPopover
                   NOTIFY shownChanged)
    Q_PROPERTY(QList<tessarine::PresetChoice> presets READ presets CONSTANT)
    Q_PROPERTY(QList<tessarine::PopoverMonth> months READ months NOTIFY shownChanged)
    Q_PROPERTY(bool hasDays READ hasDays NOTIFY shownChanged)

public:
    // Both outlive it.
    DateSelection(const BrowserList& list, Scheduler& scheduler)
        : list_(list)
        , scheduler_(scheduler) {}

    bool showDatePickerPopover() const { return showDatePickerPopover_; }
    void setShowDatePickerPopover(bool shown);

    static QList<PresetChoice> presets();
    QList<PopoverMonth> months() const;
    bool hasDays() const { return list_.hasNotifications(); }

    Q_INVOKABLE void onSelectPreset(int preset); // by its place in the list of presets
    Q_INVOKABLE void onSelectDay(const QString& key);

Q_SIGNALS:
    void shownChanged();
    void rangeChosen(double start, double end); // both inclusive
    void dayChosen(const QString& key);

private:
    const BrowserList& list_;
    Scheduler& scheduler_;
    bool showDatePickerPopover_ = false;
};

} // namespace tessarine
