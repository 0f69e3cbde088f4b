#include "store/RecentRows.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace tessarine {

namespace {

// The statement has no third term. SQLite sorts rows in the order in which it reads them, by row
// id, and with a limit it keeps that order among equals.
bool precedes(const HoardRow& left, const HoardRow& right) {
    if (left.pinned != right.pinned)
        return left.pinned > right.pinned;
    if (left.timestamp != right.timestamp)
        return left.timestamp > right.timestamp; // nothing is less than any number
    return left.rowId < right.rowId;
}

} // namespace

void RecentRows::fill(std::vector<HoardRow> rows, int limit, int dataVersion) {
    isKnown_ = true;
    dataVersion_ = dataVersion;
    rows_ = std::move(rows);
    capacity_ =
        limit < 0 ? std::numeric_limits<std::size_t>::max() : static_cast<std::size_t>(limit);
    isWhole_ = rows_.size() < capacity_;
}

void RecentRows::clear() {
    *this = RecentRows();
}

bool RecentRows::hasRows(int limit) const {
    return isWhole_ || (limit >= 0 && static_cast<std::size_t>(limit) <= rows_.size());
}

bool RecentRows::covers(int limit, int dataVersion) const {
    return isKnown_ && dataVersion_ == dataVersion && hasRows(limit);
}

NotificationList RecentRows::first(int limit) const {
    const std::size_t count =
        limit < 0 ? rows_.size() : std::min(rows_.size(), static_cast<std::size_t>(limit));
    NotificationList list;
    list.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        list.push_back(rows_[i].notification);
        list.back().id = freshId();
    }
    return list;
}

// Behind the last row there may be others that nobody has read, unless these are all.
void RecentRows::rowStored(HoardRow row) {
    if (!isKnown_)
        return;
    const auto place = std::upper_bound(rows_.begin(), rows_.end(), row, precedes);
    if (place == rows_.end() && !isWhole_)
        return;
    rows_.insert(place, std::move(row));
    if (rows_.size() <= capacity_)
        return;
    rows_.pop_back();
    isWhole_ = false;
}

void RecentRows::rowChanged(HoardRow row) {
    rowDeleted(row.rowId);
    rowStored(std::move(row));
}

void RecentRows::rowDeleted(qint64 rowId) {
    std::erase_if(rows_, [rowId](const HoardRow& row) { return row.rowId == rowId; });
}

} // namespace tessarine
