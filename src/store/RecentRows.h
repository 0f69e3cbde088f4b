#pragma once

#include "shared/CapturedNotification.h"

#include <optional>
#include <vector>

namespace tessarine {

// A row of the hoard with the values that its place in the list depends on.
struct HoardRow {
    qint64 rowId = 0;
    qint64 pinned = 0;               // a greater number leads
    std::optional<double> timestamp; // NULL comes last
    CapturedNotification notification;
};

// The beginning of the list, in the order of fetchRecent's statement: pinned rows, then the newest,
// equals by row id. A cache, so that a capture need not sort the whole table again. Updated with
// each write of its own connection, and valid only as long as SQLite's data version shows that no
// other connection has written. A value: no SQL, no threads.
class RecentRows {
public:
    // Replaces the content by the statement's result for this limit; a negative one is no limit.
    // The rows come in the statement's order.
    void fill(std::vector<HoardRow> rows, int limit, int dataVersion);
    void clear();

    // Whether it has the rows up to this limit, as of this data version.
    bool covers(int limit, int dataVersion) const;

    // The first rows, each with a fresh id. Only where covers.
    NotificationList first(int limit) const;

    // The connection has written this row.
    void rowStored(HoardRow row);
    void rowChanged(HoardRow row); // its pin
    void rowDeleted(qint64 rowId);

    // After deletions of many rows: removes those that no longer exist.
    template <typename Predicate>
    void removeUnless(const Predicate& stillExists) {
        std::erase_if(rows_, [&](const HoardRow& row) { return !stillExists(row.rowId); });
    }

    bool isKnown() const { return isKnown_; }

private:
    bool hasRows(int limit) const;

    bool isKnown_ = false;
    int dataVersion_ = 0;
    std::vector<HoardRow> rows_;
    std::size_t capacity_ = 0; // rows beyond it are dropped
    bool isWhole_ = false;     // there are no rows in the hoard but these
};

} // namespace tessarine
