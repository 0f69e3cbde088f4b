// The same documents, read by our reader and by libplist. Left out is what libplist is known to get
// wrong: text with NUL or lone surrogates, which it cuts or drops.

#include "capture/PropertyList.h"
#include "support/PropertyListWriter.h"

#include <gtest/gtest.h>
#include <plist/plist.h>

#include <cstdlib>
#include <memory>
#include <random>

using namespace Qt::StringLiterals;
using tessarine::PropertyList;
using tessarine::testing::PlistValue;
using tessarine::testing::writeBinaryPropertyList;
using Type = PropertyList::Type;

namespace {

struct NodeDeleter {
    using pointer = plist_t;
    void operator()(plist_t node) const { plist_free(node); }
};
using Node = std::unique_ptr<void, NodeDeleter>;

Node libplistReading(const QByteArray& bytes) {
    plist_t node = nullptr;
    plist_from_bin(bytes.constData(), static_cast<std::uint32_t>(bytes.size()), &node);
    return Node(node);
}

template <typename Number>
QString numberOf(plist_t node, void (*get)(plist_t, Number*)) {
    Number number{};
    get(node, &number);
    return QString::number(number);
}

QString textOf(plist_t node) {
    char* text = nullptr;
    plist_get_string_val(node, &text);
    QString copy = QString::fromUtf8(text);
    std::free(text);
    return copy;
}

QString dataOf(plist_t node) {
    std::uint64_t length = 0;
    const char* bytes = plist_get_data_ptr(node, &length);
    const auto size = static_cast<qsizetype>(length);
    return QString::fromLatin1(QByteArray::fromRawData(bytes, size).toHex());
}

QString dateOf(plist_t node) {
    std::int32_t seconds = 0;
    std::int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    return QString::number(seconds);
}

QString describe(plist_t node);

QString describeArray(plist_t array) {
    QStringList items;
    for (std::uint32_t i = 0; i < plist_array_get_size(array); ++i)
        items << describe(plist_array_get_item(array, i));
    return u"[%1]"_s.arg(items.join(u", "));
}

QString describeDictionary(plist_t dictionary) {
    QStringList entries;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(dictionary, &iterator);
    char* key = nullptr;
    plist_t value = nullptr;
    for (plist_dict_next_item(dictionary, iterator, &key, &value); key != nullptr;
         plist_dict_next_item(dictionary, iterator, &key, &value)) {
        entries << u"%1 = %2"_s.arg(QString::fromUtf8(key), describe(value));
        std::free(key);
    }
    std::free(iterator);
    entries.sort();
    return u"{%1}"_s.arg(entries.join(u", "));
}

// A libplist value as text.
QString describe(plist_t node) {
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
        return u"bool "_s + numberOf<std::uint8_t>(node, plist_get_bool_val);
    case PLIST_UINT: {
        std::uint64_t number = 0;
        plist_get_uint_val(node, &number);
        return u"integer "_s + QString::number(static_cast<qint64>(number));
    }
    case PLIST_REAL:
        return u"real "_s + numberOf<double>(node, plist_get_real_val);
    case PLIST_UID:
        return u"uid "_s + numberOf<std::uint64_t>(node, plist_get_uid_val);
    case PLIST_DATE:
        return u"date "_s + dateOf(node);
    case PLIST_DATA:
        return u"data "_s + dataOf(node);
    case PLIST_STRING:
        return u"text "_s + textOf(node);
    case PLIST_ARRAY:
        return describeArray(node);
    case PLIST_DICT:
        return describeDictionary(node);
    default:
        return u"unknown"_s;
    }
}

QString describe(const PropertyList::Value& value);

QString describeArray(const PropertyList::Value& array) {
    QStringList items;
    for (qsizetype i = 0; i < array.size(); ++i)
        items << describe(*array.at(i));
    return u"[%1]"_s.arg(items.join(u", "));
}

QString describeDictionary(const PropertyList::Value& dictionary) {
    QStringList entries;
    for (qsizetype i = 0; i < dictionary.size(); ++i) {
        const QString key = *dictionary.keyAt(i)->string();
        entries << u"%1 = %2"_s.arg(key, describe(*dictionary.valueAt(i)));
    }
    entries.sort();
    return u"{%1}"_s.arg(entries.join(u", "));
}

// One of our values in the same words.
QString describe(const PropertyList::Value& value) {
    switch (value.type()) {
    case Type::boolean:
        return u"bool "_s + QString::number(*value.boolean());
    case Type::integer:
        return u"integer "_s + QString::number(*value.integer());
    case Type::real:
        return u"real "_s + QString::number(*value.real());
    case Type::uid:
        return u"uid "_s + QString::number(*value.uid());
    case Type::date:
        return u"date "_s + QString::number(*value.date(), 'f', 0);
    case Type::data:
        return u"data "_s + QString::fromLatin1(value.data()->toByteArray().toHex());
    case Type::string:
        return u"text "_s + *value.string();
    case Type::array:
        return describeArray(value);
    case Type::dictionary:
        return describeDictionary(value);
    default:
        return u"unknown"_s;
    }
}

// Random trees, the same at every run.
class Trees {
public:
    explicit Trees(unsigned seed)
        : random_(seed) {}

    PlistValue next(int depth = 4) {
        const int kind = below(depth > 0 ? 10 : 8);
        if (kind < 8)
            return scalar(kind);
        return kind == 8 ? array(depth) : dictionary(depth);
    }

    PlistValue dictionary(int depth) {
        PlistValue::Dictionary entries;
        for (int i = below(20); i > 0; --i)
            entries << std::pair(u"%1 %2"_s.arg(text()).arg(i), next(depth - 1));
        return PlistValue::dictionary(entries);
    }

private:
    int below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

    PlistValue array(int depth) {
        PlistValue::Array items;
        for (int i = below(20); i > 0; --i)
            items << next(depth - 1);
        return PlistValue::array(items);
    }

    PlistValue scalar(int kind) {
        switch (kind) {
        case 0:
            return PlistValue::boolean(below(2) == 1);
        case 1:
            return PlistValue::integer(static_cast<qint64>(number() >> below(64)));
        case 2:
            return PlistValue::real(below(1'000'000) / 64.0);
        case 3:
            return PlistValue::date(below(2'000'000'000));
        case 4:
            return PlistValue::uid(static_cast<quint32>(random_()) >> below(32));
        case 5:
            return PlistValue::data(QByteArray(below(300), static_cast<char>(below(256))));
        default:
            return PlistValue::string(text());
        }
    }

    quint64 number() { return quint64(random_()) << 32 | random_(); }

    QString text() {
        static const QStringList words{u"plain"_s,       u"Grüße"_s, u"日本語"_s,
                                       u"👩‍👧"_s, u"שלום"_s,  u"\u200f\u202e"_s};
        QString text;
        for (int i = below(30); i > 0; --i)
            text += words[below(static_cast<int>(words.size()))];
        return text;
    }

    std::mt19937 random_;
};

} // namespace

class PropertyListAgreement : public ::testing::TestWithParam<unsigned> {};

TEST_P(PropertyListAgreement, WithLibplistOnARandomTree) {
    const QByteArray bytes = writeBinaryPropertyList(Trees(GetParam()).dictionary(4));
    const auto ours = PropertyList::parse(bytes);
    const Node theirs = libplistReading(bytes);
    ASSERT_TRUE(ours);
    ASSERT_TRUE(theirs);
    EXPECT_EQ(describe(ours->root()), describe(theirs.get()));
}

INSTANTIATE_TEST_SUITE_P(Seeds, PropertyListAgreement, ::testing::Range(0u, 100u));
