#include "store/DuplicateIndex.h"

#include <QHashFunctions>

#include <cmath>

namespace tessarine {

namespace {

// More than what is rounded off in a difference of timestamps.
constexpr double margin = 1;

constexpr std::size_t spareRows = 4096;

std::size_t hashOf(const ProbedTexts& texts) {
    static const std::size_t seed = QHashSeed::globalSeed();
    return qHashMulti(seed, texts.bundleId, texts.title, texts.body);
}

} // namespace

void DuplicateIndex::fill(const std::vector<Row>& rows, double since, double until,
                          int dataVersion) {
    state_ = State::known;
    since_ = since;
    until_ = until;
    dataVersion_ = dataVersion;
    capacity_ = 2 * rows.size() + spareRows;
    places_.clear();
    for (const Row& row : rows)
        rowStored(row);
}

void DuplicateIndex::clear() {
    *this = DuplicateIndex();
}

void DuplicateIndex::markUnusable(int dataVersion) {
    clear();
    state_ = State::unusable;
    dataVersion_ = dataVersion;
}

bool DuplicateIndex::isUnusable(int dataVersion) const {
    return state_ == State::unusable && dataVersion_ == dataVersion;
}

void DuplicateIndex::rowStored(const Row& row) {
    if (state_ == State::known)
        places_.emplace(hashOf(row.texts), Place{row.id, row.timestamp});
}

bool DuplicateIndex::covers(double timestamp, int dataVersion) const {
    return state_ == State::known && dataVersion_ == dataVersion && places_.size() <= capacity_ &&
           timestamp - since_ >= reach + margin && until_ - timestamp >= reach + margin;
}

std::vector<qint64> DuplicateIndex::candidates(const ProbedTexts& texts, double timestamp) const {
    std::vector<qint64> ids;
    const auto [first, last] = places_.equal_range(hashOf(texts));
    for (auto place = first; place != last; ++place) {
        if (std::abs(place->second.timestamp - timestamp) < reach)
            ids.push_back(place->second.id);
    }
    return ids;
}

} // namespace tessarine
