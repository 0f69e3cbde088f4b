#include "support/PropertyListWriter.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <vector>

namespace tessarine::testing {

// Keys are empty for an array and stand beside the values for a dictionary.
struct PlistValue::Container {
    bool isDictionary;
    QList<QString> keys;
    mutable Array values;

    Container(bool isDictionary, QList<QString> keys, Array values)
        : isDictionary(isDictionary)
        , keys(std::move(keys))
        , values(std::move(values)) {}
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;
    ~Container();
};

// Takes the tree below apart level by level; the compiler's own destructor would recurse.
PlistValue::Container::~Container() {
    Array doomed = std::move(values);
    while (!doomed.isEmpty()) {
        const PlistValue value = doomed.takeLast();
        const auto* held = std::get_if<std::shared_ptr<const Container>>(&value.content_);
        if (held != nullptr && held->use_count() == 1)
            doomed += std::exchange((*held)->values, {});
    }
}

PlistValue::PlistValue(Content content)
    : content_(std::move(content)) {}

PlistValue PlistValue::dictionary(Dictionary entries) {
    QList<QString> keys;
    Array values;
    for (auto& entry : entries) {
        keys.append(std::move(entry.first));
        values.append(std::move(entry.second));
    }
    return PlistValue(std::make_shared<const Container>(true, std::move(keys), std::move(values)));
}

PlistValue PlistValue::array(Array elements) {
    return PlistValue(
        std::make_shared<const Container>(false, QList<QString>(), std::move(elements)));
}

PlistValue PlistValue::string(QString text) {
    return PlistValue(Content(std::move(text)));
}

PlistValue PlistValue::data(QByteArray bytes) {
    return PlistValue(Content(std::move(bytes)));
}

PlistValue PlistValue::integer(qint64 number) {
    return PlistValue(Content(number));
}

PlistValue PlistValue::real(double number) {
    return PlistValue(Content(Real{number}));
}

PlistValue PlistValue::date(double seconds) {
    return PlistValue(Content(Date{seconds}));
}

PlistValue PlistValue::boolean(bool truth) {
    return PlistValue(Content(truth));
}

PlistValue PlistValue::uid(quint64 number) {
    return PlistValue(Content(Uid{number}));
}

namespace {

// The bytes that a number needs, as a power of two: 1, 2, 4 or 8.
int byteWidth(quint64 number) {
    if (number <= std::numeric_limits<quint8>::max())
        return 1;
    if (number <= std::numeric_limits<quint16>::max())
        return 2;
    return number <= std::numeric_limits<quint32>::max() ? 4 : 8;
}

void appendBigEndian(QByteArray& out, quint64 number, int width) {
    for (int shift = 8 * (width - 1); shift >= 0; shift -= 8)
        out.append(static_cast<char>((number >> shift) & 0xff));
}

void appendInteger(QByteArray& out, quint64 number) {
    const int width = byteWidth(number);
    out.append(static_cast<char>(0x10 | std::countr_zero(static_cast<unsigned>(width))));
    appendBigEndian(out, number, width);
}

// A marker with its count; counts from 15 follow as an integer object.
void appendCounted(QByteArray& out, int marker, qsizetype count) {
    out.append(static_cast<char>(marker | static_cast<int>(std::min<qsizetype>(count, 15))));
    if (count >= 15)
        appendInteger(out, static_cast<quint64>(count));
}

void appendDouble(QByteArray& out, int marker, double number) {
    out.append(static_cast<char>(marker));
    appendBigEndian(out, std::bit_cast<quint64>(number), 8);
}

void appendString(QByteArray& out, const QString& text) {
    const bool ascii = std::ranges::all_of(text, [](QChar unit) { return unit.unicode() < 0x80; });
    appendCounted(out, ascii ? 0x50 : 0x60, text.size());
    for (const QChar unit : text)
        appendBigEndian(out, unit.unicode(), ascii ? 1 : 2);
}

} // namespace

// Lists every object of the tree breadth first, which gives the numbers that references need, and
// then writes them in that order.
class PropertyListWriter {
public:
    explicit PropertyListWriter(const PlistValue& root) { list(root); }

    QByteArray write() {
        out_ = "bplist00";
        for (const Object& object : objects_) {
            offsets_.push_back(static_cast<quint64>(out_.size()));
            if (object.key != nullptr)
                appendString(out_, *object.key);
            else
                std::visit([&](const auto& content) { append(content, object.firstChild); },
                           object.value->content_);
        }
        appendOffsetsAndTrailer();
        return out_;
    }

private:
    using ContainerPointer = std::shared_ptr<const PlistValue::Container>;
    struct Object {
        const PlistValue* value = nullptr;
        const QString* key = nullptr;
        // The number of the first key of a dictionary or element of an array; the others follow.
        quint64 firstChild = 0;
    };

    void list(const PlistValue& root) {
        objects_.push_back({&root});
        for (std::size_t i = 0; i < objects_.size(); ++i) {
            if (objects_[i].value == nullptr)
                continue;
            const auto* container = std::get_if<ContainerPointer>(&objects_[i].value->content_);
            if (container == nullptr)
                continue;
            objects_[i].firstChild = objects_.size();
            for (const QString& key : (*container)->keys)
                objects_.push_back({nullptr, &key});
            for (const PlistValue& value : std::as_const((*container)->values))
                objects_.push_back({&value});
        }
        referenceWidth_ = byteWidth(objects_.size());
    }

    void append(bool truth, quint64) { out_.append(truth ? '\x09' : '\x08'); }
    void append(qint64 number, quint64) { appendInteger(out_, static_cast<quint64>(number)); }
    void append(PlistValue::Real real, quint64) { appendDouble(out_, 0x23, real.number); }
    void append(PlistValue::Date date, quint64) { appendDouble(out_, 0x33, date.seconds); }
    void append(const QString& text, quint64) { appendString(out_, text); }

    void append(PlistValue::Uid uid, quint64) {
        const int width = byteWidth(uid.number);
        out_.append(static_cast<char>(0x80 | (width - 1)));
        appendBigEndian(out_, uid.number, width);
    }

    void append(const QByteArray& bytes, quint64) {
        appendCounted(out_, 0x40, bytes.size());
        out_.append(bytes);
    }

    void append(const ContainerPointer& container, quint64 firstChild) {
        appendCounted(out_, container->isDictionary ? 0xd0 : 0xa0, container->values.size());
        const auto children =
            static_cast<quint64>(container->keys.size() + container->values.size());
        for (quint64 i = 0; i < children; ++i)
            appendBigEndian(out_, firstChild + i, referenceWidth_);
    }

    void appendOffsetsAndTrailer() {
        const auto tableOffset = static_cast<quint64>(out_.size());
        const int offsetWidth = byteWidth(tableOffset);
        for (const quint64 offset : offsets_)
            appendBigEndian(out_, offset, offsetWidth);
        out_.append(6, '\0');
        out_.append(static_cast<char>(offsetWidth));
        out_.append(static_cast<char>(referenceWidth_));
        appendBigEndian(out_, offsets_.size(), 8);
        appendBigEndian(out_, 0, 8);
        appendBigEndian(out_, tableOffset, 8);
    }

    std::vector<Object> objects_;
    std::vector<quint64> offsets_;
    int referenceWidth_ = 1;
    QByteArray out_;
};

QByteArray writeBinaryPropertyList(const PlistValue& root) {
    return PropertyListWriter(root).write();
}

} // namespace tessarine::testing
