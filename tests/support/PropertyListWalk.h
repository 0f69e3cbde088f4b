#pragma once

#include "capture/PropertyList.h"

#include <QList>

#include <utility>

namespace tessarine::testing {

// How many of the typed accessors give something for a value; one at most is right.
inline int accessorsThatAnswer(const PropertyList::Value& value) {
    return int(value.boolean().has_value()) + int(value.integer().has_value()) +
           int(value.real().has_value()) + int(value.date().has_value()) +
           int(value.data().has_value()) + int(value.string().has_value()) +
           int(value.uid().has_value());
}

// The values directly below a value; keys first.
inline QList<PropertyList::Value> childrenOf(const PropertyList::Value& value) {
    QList<PropertyList::Value> children;
    const bool isDictionary = value.type() == PropertyList::Type::dictionary;
    const bool isArray = value.type() == PropertyList::Type::array;
    for (qsizetype i = 0; isDictionary && i < value.size(); ++i)
        children << *value.keyAt(i);
    for (qsizetype i = 0; (isDictionary || isArray) && i < value.size(); ++i)
        children << (isArray ? *value.at(i) : *value.valueAt(i));
    return children;
}

// Reads what the root leads to in every way that the class offers, and stops after `limit` values:
// shared values are met again each time, so a small list can be endless to walk. False if a value
// answers as two types, or a key doesn't find an entry.
inline bool walk(const PropertyList& list, qsizetype limit) {
    QList<PropertyList::Value> waiting{list.root()};
    while (!waiting.isEmpty() && limit-- > 0) {
        const PropertyList::Value value = waiting.takeLast();
        if (accessorsThatAnswer(value) > 1 || value.at(value.size()) || value.at(-1) ||
            value.keyAt(value.size()) || value.valueAt(-1))
            return false;
        if (const auto key = value.keyAt(0); key && !value.find(*key->string()))
            return false;
        if (value.size() <= limit)
            waiting << childrenOf(value);
    }
    return true;
}

} // namespace tessarine::testing
