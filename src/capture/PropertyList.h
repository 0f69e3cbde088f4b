#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <optional>

namespace tessarine {

// A binary property list, read where it lies: nothing is copied, and text is built only when asked
// for. The bytes come from other programs, so `parse` judges everything that the root leads to,
// and reading afterwards can't fail.
//
// The format is Apple's, published in the comments of the open CoreFoundation sources
// (CFBinaryPList.c): the header "bplist00", the objects, a table of their offsets, and a trailer
// of 32 bytes. As on that platform one bad object refuses the whole list, and what the root
// doesn't lead to is not looked at.
//
// A list and its values may be read from any number of threads, and are good for as long as the
// bytes given to `parse` stay alive and unchanged.
class PropertyList {
public:
    enum class Type {
        null,
        boolean,
        integer,
        real,
        date,
        data,
        string,
        uid,
        array,
        set,
        dictionary,
    };

    class Value;

    // The most containers that may lie around a value; CoreFoundation's own limit on macOS.
    static constexpr qsizetype maximumDepth = 512;
    static constexpr quint64 maximumObjectCount = 1 << 20;

    // Nothing if the bytes are no binary property list, or one that
    // - is deeper or larger than the bounds above, or leads back into itself,
    // - names an object that doesn't exist or lies outside the part that holds the objects, or
    //   objects that overlap many times over,
    // - holds a kind of object that the format doesn't know, an ASCII text with other bytes, a
    //   dictionary key that is no text, or a UID of more than 32 bits.
    // Takes time in proportion to the number of bytes, and one byte of memory for each object.
    [[nodiscard]] static std::optional<PropertyList> parse(QByteArrayView bytes);

    [[nodiscard]] Value root() const;

private:
    friend class PropertyListCheck;

    // Where the parts lie; offsets count from the first byte of the list.
    struct Layout {
        const uchar* bytes;
        // Of the table that holds the objects' own offsets. The objects end here.
        quint64 tableOffset;
        quint32 objectCount;
        // Bytes of an entry of the table, and of an object's number in a container.
        quint8 offsetWidth;
        quint8 referenceWidth;

        quint64 offsetOf(quint64 index) const;
    };
    enum class Kind : quint8;
    struct Object;

    PropertyList(const Layout& layout, quint64 root)
        : layout_(layout)
        , root_(root) {}

    static std::optional<PropertyList> readTrailer(QByteArrayView bytes);
    bool offsetsAreInside() const;

    Layout layout_;
    quint64 root_;
};

// One value of a list: a handle that is cheap to copy. An operation that doesn't suit the type
// gives nothing.
class PropertyList::Value {
public:
    [[nodiscard]] Type type() const;

    [[nodiscard]] std::optional<bool> boolean() const;
    // One, two and four bytes hold an unsigned number, eight and sixteen a signed one. A number of
    // sixteen bytes that is beyond 64 bits gives nothing.
    [[nodiscard]] std::optional<qint64> integer() const;
    [[nodiscard]] std::optional<double> real() const;
    // Seconds since 2001-01-01 00:00:00 UTC.
    [[nodiscard]] std::optional<double> date() const;
    // A view of the list's own bytes.
    [[nodiscard]] std::optional<QByteArrayView> data() const;
    // Every UTF-16 unit as it is stored, NUL and lone surrogates too.
    [[nodiscard]] std::optional<QString> string() const;
    // A keyed archive's reference to an object; 32 bits at most.
    [[nodiscard]] std::optional<quint64> uid() const;

    // The elements of an array or a set, the entries of a dictionary, the UTF-16 units of a text
    // or the bytes of data; 0 for other types.
    [[nodiscard]] qsizetype size() const;

    // An element of an array; nothing also where the index is out of range.
    [[nodiscard]] std::optional<Value> at(qsizetype index) const;

    // What stands under a key of a dictionary; of entries with the same key, under the last.
    [[nodiscard]] std::optional<Value> find(QStringView key) const;
    // The entries of a dictionary in the order in which they are stored.
    [[nodiscard]] std::optional<Value> keyAt(qsizetype index) const;
    [[nodiscard]] std::optional<Value> valueAt(qsizetype index) const;

private:
    friend class PropertyList;

    Value(const Layout& layout, quint64 offset)
        : layout_(layout)
        , offset_(offset) {}

    Object object() const;
    const uchar* contents(const Object& object) const;
    Value referenced(const Object& container, quint64 position) const;
    bool isText(QStringView text) const;

    Layout layout_;
    quint64 offset_;
};

} // namespace tessarine
