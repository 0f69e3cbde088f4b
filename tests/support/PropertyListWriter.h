#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <utility>
#include <variant>

namespace tessarine::testing {

class PlistValue;

// A tree of values for `writeBinaryPropertyList`. Copies share their contents; a value can't be
// changed once made, so a tree never holds a loop.
class PlistValue {
public:
    using Array = QList<PlistValue>;
    // Written in this order; the same key may stand twice.
    using Dictionary = QList<std::pair<QString, PlistValue>>;

    static PlistValue dictionary(Dictionary entries);
    static PlistValue array(Array elements);
    static PlistValue string(QString text);
    static PlistValue data(QByteArray bytes);
    static PlistValue integer(qint64 number);
    static PlistValue real(double number);
    // Seconds since 2001-01-01 00:00:00 UTC.
    static PlistValue date(double seconds);
    static PlistValue boolean(bool truth);
    static PlistValue uid(quint64 number);

private:
    friend class PropertyListWriter;

    // clang-format off
    struct Real { double number; };
    struct Date { double seconds; };
    struct Uid { quint64 number; };
    // clang-format on
    struct Container;
    using Content = std::variant<bool, qint64, Real, Date, Uid, QString, QByteArray,
                                 std::shared_ptr<const Container>>;

    explicit PlistValue(Content content);

    Content content_;
};

// The bytes of a "bplist00" document with this root. Text is stored as ASCII where it fits and as
// UTF-16 otherwise, unit by unit, so lone surrogates and NUL survive. Nothing is shared: each
// value becomes an object of its own. Neither writing nor releasing a tree recurses, so that trees
// of any depth can be made.
[[nodiscard]] QByteArray writeBinaryPropertyList(const PlistValue& root);

} // namespace tessarine::testing
