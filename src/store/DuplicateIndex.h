#pragma once

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

// Which rows of the last minutes may hold which texts: so that the probe for a duplicate need not
// read every row that an application ever sent. It names candidates; whether they are still there,
// and equal, is for SQLite to say. Told of each row that its own connection stores, and trusted
// only as long as SQLite's data version says that no other connection has written. A value: no SQL,
// no threads.
class DuplicateIndex {
public:
    // How far apart two equal notifications are two: strictly under this many seconds is one.
    static constexpr double reach = 300;

    struct Row {
        qint64 id;
        ProbedTexts texts;
        double timestamp;
    };

    // How far around a timestamp the rows are read: back, where the duplicates of what comes next
    // lie, and on, so that an hour passes before they have to be read anew.
    static constexpr double secondsBack = 600;
    static constexpr double secondsOn = 3600;

    // Takes all rows with a timestamp between these two.
    void hold(const std::vector<Row>& rows, double since, double until, int dataVersion);
    void forget();

    // Nothing can be told as long as the data version is this one.
    void giveUp(int dataVersion);
    bool hasGivenUp(int dataVersion) const;

    // What the connection stored.
    void rowStored(const Row& row);

    bool isKnown() const { return state_ == State::known; }

    // Whether every row that could be a duplicate of one with this timestamp is in here, as of this
    // data version. False as well once it has grown so much that reading anew is worth it.
    bool covers(double timestamp, int dataVersion) const;

    // The rows within reach that may have these texts.
    std::vector<qint64> candidates(const ProbedTexts& texts, double timestamp) const;

private:
    struct Place {
        qint64 id;
        double timestamp;
    };

    enum class State { unknown, known, givenUp };

    State state_ = State::unknown;
    double since_ = 0;
    double until_ = 0;
    int dataVersion_ = 0;
    std::size_t capacity_ = 0;
    std::unordered_multimap<std::size_t, Place> places_; // by a hash of the texts
};

} // namespace tessarine
