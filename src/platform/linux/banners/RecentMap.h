#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>

namespace tessarine {

// A map that keeps the entries set last, up to a fixed number, and lets older ones go. For what
// another process should clear away but may not. One thread.
template <typename Key, typename Value>
class RecentMap {
public:
    explicit RecentMap(std::size_t capacity)
        : capacity_(capacity) {}

    void set(const Key& key, Value value) {
        take(key);
        if (entries_.size() == capacity_)
            take(keysByAge_.begin()->second);
        keysByAge_.emplace(++lastTurn_, key);
        entries_.emplace(key, Entry{std::move(value), lastTurn_});
    }

    std::optional<Value> find(const Key& key) const {
        const auto found = entries_.find(key);
        return found == entries_.end() ? std::nullopt : std::optional(found->second.value);
    }

    // The value, which leaves the map.
    std::optional<Value> take(const Key& key) {
        const auto found = entries_.find(key);
        if (found == entries_.end())
            return std::nullopt;
        keysByAge_.erase(found->second.turn);
        return std::move(entries_.extract(found).mapped().value);
    }

    void clear() {
        entries_.clear();
        keysByAge_.clear();
    }

    std::size_t size() const { return entries_.size(); }

private:
    struct Entry {
        Value value;
        std::uint64_t turn;
    };

    std::size_t capacity_;
    std::map<Key, Entry> entries_;
    std::map<std::uint64_t, Key> keysByAge_;
    std::uint64_t lastTurn_ = 0;
};

} // namespace tessarine
