#pragma once

#include "shared/ReferenceTime.h"

#include <QByteArray>

#include <unordered_map>
#include <vector>

namespace tessarine {

// The texts that tell one notification from another, in UTF-8 as the hoard stores them.
struct ProbedTexts {
    QByteArray bundleId;
    QByteArray title;
    QByteArray body;
};

// A cache: which rows of the last minutes may hold which texts, so that the search for a duplicate
// need not read every row that an application ever sent. It names candidates; the caller asks
// SQLite whether they still exist and are equal. Updated with each row that its own connection
// stores, and valid only as long as SQLite's data version shows that no other connection has
// written. A value: no SQL, no threads.
class DuplicateIndex {
public:
    // Two equal notifications are duplicates when they lie less than this many seconds apart.
    static constexpr double reach = 300;

    struct Row {
        qint64 id;
        ProbedTexts texts;
        double timestamp;
    };

    // The range of rows that is read around a timestamp: back, where the duplicates of the next
    // captures lie, and on, so that an hour passes before it has to be read again.
    static constexpr double secondsBack = 600;
    static constexpr double secondsOn = secondsPerHour;

    // Replaces the content by all rows with a timestamp between these two.
    void fill(const std::vector<Row>& rows, double since, double until, int dataVersion);
    void clear();

    // For a hoard whose rows can't be indexed: it covers nothing as long as the data version is
    // this one.
    void markUnusable(int dataVersion);
    bool isUnusable(int dataVersion) const;

    // The connection has stored this row.
    void rowStored(const Row& row);

    bool isKnown() const { return state_ == State::known; }

    // Whether it has every row that could be a duplicate of one with this timestamp, as of this
    // data version. False as well once it has grown so much that reading again is worth it.
    bool covers(double timestamp, int dataVersion) const;

    // The rows within reach that may have these texts.
    std::vector<qint64> candidates(const ProbedTexts& texts, double timestamp) const;

private:
    struct Place {
        qint64 id;
        double timestamp;
    };

    enum class State { unknown, known, unusable };

    State state_ = State::unknown;
    double since_ = 0;
    double until_ = 0;
    int dataVersion_ = 0;
    std::size_t capacity_ = 0;
    std::unordered_multimap<std::size_t, Place> places_; // by a hash of the texts
};

} // namespace tessarine
