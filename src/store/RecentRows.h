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
// equals by row id. Kept so that a capture need not sort the whole table anew. It is told of each
// write of its own connection, and is trusted only as long as SQLite's data version says that no
// other connection has written. A value: no SQL, no threads.
class RecentRows {
public:
    // Takes what the statement gave with this limit, a negative one being none. The rows' order is
    // the statement's.
    void hold(std::vector<HoardRow> rows, int limit, int dataVersion);
    void forget();

    // Whether the rows up to this limit are known, as of this data version.
    bool canAnswer(int limit, int dataVersion) const;

    // The first rows, each with a fresh id. Only where canAnswer.
    NotificationList answer(int limit) const;

    // What the connection wrote.
    void rowStored(HoardRow row);
    void rowChanged(HoardRow row); // its pin
    void rowDeleted(qint64 rowId);

    // For deletions of many rows: keeps those of which the predicate says that they are still
    // there.
    template <typename Predicate>
    void keepRows(const Predicate& stillExists) {
        std::erase_if(rows_, [&](const HoardRow& row) { return !stillExists(row.rowId); });
    }

    bool isKnown() const { return isKnown_; }

private:
    bool holdsAll(int limit) const;

    bool isKnown_ = false;
    int dataVersion_ = 0;
    std::vector<HoardRow> rows_;
    std::size_t capacity_ = 0; // rows beyond it are let go
    bool isWhole_ = false;     // there are no rows in the hoard but these
};

} // namespace tessarine
