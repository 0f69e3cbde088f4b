#include "browser/selection/DateSelection.h"

#include "platform/Scheduler.h"

#include <utility>

namespace tessarine {

void DateSelection::setShowDatePickerPopover(bool shown) {
    if (std::exchange(showDatePickerPopover_, shown) != shown)
        Q_EMIT shownChanged();
}

QList<PresetChoice> DateSelection::presets() {
    QList<PresetChoice> choices;
    for (const DateRangePreset preset : allDateRangePresets)
        choices.append({symbolName(preset), label(preset)});
    return choices;
}

QList<PopoverMonth> DateSelection::months() const {
    const NotificationList& rows = list_.notifications();
    return popoverMonths(uniqueDays(rows), dayCounts(rows));
}

void DateSelection::onSelectPreset(int preset) {
    const auto [start, end] =
        presetBounds(allDateRangePresets.at(std::size_t(preset)), scheduler_.now());
    Q_EMIT rangeChosen(start, end);
    setShowDatePickerPopover(false);
}

void DateSelection::onSelectDay(const QString& key) {
    Q_EMIT dayChosen(key);
    setShowDatePickerPopover(false);
}

} // namespace tessarine
