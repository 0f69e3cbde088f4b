#include "browser/list/ListDifference.h"

#include <QHash>

#include <algorithm>
#include <optional>
#include <utility>

namespace tessarine {

namespace {

// A row's key in the hoard and no text, or a group's key. No row of the hoard has the number 0, and
// a header's number is below all.
using LineKey = std::pair<qint64, QString>;

LineKey keyOf(const ListEntry& line) {
    if (line.kind == ListEntry::Kind::header)
        return {-1, line.groupKey};
    return {line.notification.dbId, {}};
}

// What both lists begin and end with is found without any bookkeeping: a reload mostly adds a few
// rows at the front.
std::size_t commonPrefix(const ListEntries& before, const ListEntries& after) {
    const auto end =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end(), looksTheSame);
    return std::size_t(end.first - before.begin());
}

std::size_t commonSuffix(const ListEntries& before, const ListEntries& after, std::size_t prefix) {
    const auto limit = std::ptrdiff_t(std::min(before.size(), after.size()) - prefix);
    const auto end =
        std::mismatch(before.rbegin(), before.rbegin() + limit, after.rbegin(), looksTheSame);
    return std::size_t(end.first - before.rbegin());
}

// Where in a part of a list each key stands.
class PlacesByKey {
public:
    PlacesByKey(const ListEntries& lines, std::size_t first, std::size_t end)
        : next_(end + 1) {
        first_.reserve(qsizetype(end - first));
        for (std::size_t number = end; number > first; --number)
            next_[number] = std::exchange(first_[keyOf(lines[number - 1])], number);
    }

    // The foremost place that was not taken yet.
    std::optional<std::size_t> take(const LineKey& key) {
        const auto found = first_.find(key);
        if (found == first_.end() || *found == 0)
            return std::nullopt;
        return std::exchange(*found, next_[*found]) - 1;
    }

private:
    // Places counted from 1, so that 0 stands for none.
    QHash<LineKey, std::size_t> first_;
    std::vector<std::size_t> next_; // for each place the next one of the same key
};

// For each old line between prefix and suffix its place in the new list. Rows that share a key
// (those that no hoard has stored) pair up in their order.
KeptRows pairsByKey(const ListEntries& before, const ListEntries& after, std::size_t prefix,
                    std::size_t suffix) {
    PlacesByKey places(after, prefix, after.size() - suffix);
    KeptRows pairs;
    pairs.reserve(before.size() - suffix - prefix);
    for (std::size_t i = prefix; i < before.size() - suffix; ++i) {
        if (const std::optional<std::size_t> place = places.take(keyOf(before[i])))
            pairs.emplace_back(i, *place);
    }
    return pairs;
}

// The longest part of the pairs whose new places ascend, by patience sorting.
KeptRows longestAscending(const KeptRows& pairs) {
    std::vector<std::size_t> tails; // of the best run of each length, as positions in pairs
    std::vector<std::optional<std::size_t>> previous(pairs.size());
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const auto place = std::lower_bound(
            tails.begin(), tails.end(), pairs[i].second,
            [&](std::size_t tail, std::size_t value) { return pairs[tail].second < value; });
        if (place != tails.begin())
            previous[i] = *(place - 1);
        if (place == tails.end())
            tails.push_back(i);
        else
            *place = i;
    }
    KeptRows run;
    for (std::optional<std::size_t> i = tails.empty() ? std::nullopt : std::optional(tails.back());
         i; i = previous[*i])
        run.push_back(pairs[*i]);
    std::reverse(run.begin(), run.end());
    return run;
}

} // namespace

KeptRows keptRows(const ListEntries& before, const ListEntries& after) {
    const std::size_t prefix = commonPrefix(before, after);
    const std::size_t suffix = commonSuffix(before, after, prefix);
    KeptRows kept;
    for (std::size_t i = 0; i < prefix; ++i)
        kept.emplace_back(i, i);
    const KeptRows middle = longestAscending(pairsByKey(before, after, prefix, suffix));
    kept.insert(kept.end(), middle.begin(), middle.end());
    for (std::size_t i = suffix; i > 0; --i)
        kept.emplace_back(before.size() - i, after.size() - i);
    return kept;
}

} // namespace tessarine
