#include "capture/PropertyList.h"

#include <QLatin1StringView>
#include <QVarLengthArray>
#include <QtEndian>

#include <algorithm>
#include <bit>
#include <limits>
#include <utility>

namespace tessarine {

namespace {

// CoreFoundation takes any version "0?" and reads all of them alike.
constexpr char magic[] = "bplist0";
constexpr quint64 headerSize = 8;
constexpr quint64 trailerSize = 32;

// The lower half of a singleton's byte.
constexpr quint8 nullDetail = 0x0;
constexpr quint8 falseDetail = 0x8;
constexpr quint8 trueDetail = 0x9;
// The lower half says how long a number is, as an exponent of two.
constexpr quint8 fourBytesDetail = 2;
constexpr quint8 eightBytesDetail = 3;
constexpr quint8 sixteenBytesDetail = 4;
// The count is too large for the lower half and follows as an integer.
constexpr quint8 countFollowsDetail = 0xf;

constexpr quint64 maximumUid = std::numeric_limits<quint32>::max();

// Objects of an honest list never overlap, so all of them together are no larger than the part
// that they lie in. Some overlap is let pass, as nothing is wrong with reading it; without a bound
// a large object with a million numbers would be checked a million times.
constexpr quint64 overlapAllowance = 8;

// A big-endian number of any width; the largest number where it has more than 64 bits.
quint64 readNumber(const uchar* bytes, quint64 width) {
    quint64 number = 0;
    for (quint64 i = 0; i < width; ++i) {
        if (number >> 56 != 0)
            return std::numeric_limits<quint64>::max();
        number = number << 8 | bytes[i];
    }
    return number;
}

// Whether a number of this many bytes can be as large as `number`; none of no bytes can.
bool reaches(quint8 width, quint64 number) {
    return width >= 8 || number >> (8 * width) == 0;
}

double readDouble(const uchar* bytes) {
    return std::bit_cast<double>(qFromBigEndian<quint64>(bytes));
}

double readFloat(const uchar* bytes) {
    return std::bit_cast<float>(qFromBigEndian<quint32>(bytes));
}

// Two's complement; nothing where the upper eight bytes hold more than the sign of the lower ones.
std::optional<qint64> readSixteenByteInteger(const uchar* bytes) {
    const auto upper = qFromBigEndian<qint64>(bytes);
    const auto lower = qFromBigEndian<qint64>(bytes + 8);
    return upper == (lower < 0 ? -1 : 0) ? std::optional(lower) : std::nullopt;
}

} // namespace

// The upper half of the byte that an object begins with.
enum class PropertyList::Kind : quint8 {
    singleton = 0x0,
    integer = 0x1,
    real = 0x2,
    date = 0x3,
    data = 0x4,
    asciiText = 0x5,
    utf16Text = 0x6,
    uid = 0x8,
    array = 0xa,
    set = 0xc,
    dictionary = 0xd,
};

// What the first bytes of an object tell.
struct PropertyList::Object {
    Kind kind;
    // The lower half of the first byte.
    quint8 detail;
    // Bytes of a number or of data, UTF-16 units of a text, elements or entries of a container.
    quint64 count;
    // The offset of what follows the first byte and the count, and of the end of that.
    quint64 contents;
    quint64 end;

    // Nothing unless this is an object of a known kind that lies wholly among the objects.
    static std::optional<Object> at(const Layout& layout, quint64 offset);

    bool isText() const { return kind == Kind::asciiText || kind == Kind::utf16Text; }
    bool isArrayOrSet() const { return kind == Kind::array || kind == Kind::set; }
    bool isContainer() const { return isArrayOrSet() || kind == Kind::dictionary; }
    bool isCounted() const { return isContainer() || isText() || kind == Kind::data; }

private:
    bool readCount(const Layout& layout);
    bool readFollowingCount(const Layout& layout);
    quint64 unitSize(const Layout& layout) const;
};

std::optional<PropertyList::Object> PropertyList::Object::at(const Layout& layout, quint64 offset) {
    if (offset < headerSize || offset >= layout.tableOffset)
        return std::nullopt;
    const quint8 first = layout.bytes[offset];
    Object object{static_cast<Kind>(first >> 4), static_cast<quint8>(first & 0xf), 0, offset + 1,
                  0};
    if (!object.readCount(layout))
        return std::nullopt;
    const quint64 room = layout.tableOffset - object.contents;
    // The first comparison keeps the product of the second from overflowing.
    if (object.count > room || object.count * object.unitSize(layout) > room)
        return std::nullopt;
    object.end = object.contents + object.count * object.unitSize(layout);
    return object;
}

bool PropertyList::Object::readCount(const Layout& layout) {
    switch (kind) {
    case Kind::singleton:
        return detail == nullDetail || detail == falseDetail || detail == trueDetail;
    case Kind::integer:
        count = quint64(1) << detail;
        return detail <= sixteenBytesDetail;
    case Kind::real:
        count = quint64(1) << detail;
        return detail == fourBytesDetail || detail == eightBytesDetail;
    case Kind::date:
        count = quint64(1) << detail;
        return detail == eightBytesDetail;
    case Kind::uid:
        count = detail + quint64(1);
        return true;
    default:
        count = detail;
        return isCounted() && (detail != countFollowsDetail || readFollowingCount(layout));
    }
}

bool PropertyList::Object::readFollowingCount(const Layout& layout) {
    if (contents >= layout.tableOffset)
        return false;
    const quint8 first = layout.bytes[contents++];
    const quint8 exponent = first & 0xf;
    if (static_cast<Kind>(first >> 4) != Kind::integer || exponent > sixteenBytesDetail)
        return false;
    const quint64 width = quint64(1) << exponent;
    if (width > layout.tableOffset - contents)
        return false;
    count = readNumber(layout.bytes + contents, width);
    contents += width;
    return true;
}

quint64 PropertyList::Object::unitSize(const Layout& layout) const {
    if (isArrayOrSet())
        return layout.referenceWidth;
    if (kind == Kind::dictionary)
        return 2 * quint64(layout.referenceWidth);
    return kind == Kind::utf16Text ? sizeof(char16_t) : 1;
}

quint64 PropertyList::Layout::offsetOf(quint64 index) const {
    return readNumber(bytes + tableOffset + index * offsetWidth, offsetWidth);
}

// Visits everything that the root leads to once, with a stack of its own: how deep the list is
// must not decide over the thread's.
class PropertyListCheck {
public:
    explicit PropertyListCheck(const PropertyList::Layout& layout)
        : layout_(layout)
        , marks_(static_cast<qsizetype>(layout.objectCount), Mark::unseen)
        , sizeLeft_(overlapAllowance * layout.tableOffset) {}

    bool accepts(quint64 root) {
        bool sound = visit(root, Role::value);
        while (sound && !open_.isEmpty())
            sound = advance();
        return sound;
    }

private:
    enum class Mark : quint8 { unseen, open, text, done };
    enum class Role { key, value };
    // A container whose references are being followed, and where in the bytes they are.
    struct Level {
        quint64 container;
        quint64 next;
        quint64 endOfKeys;
        quint64 end;
    };

    bool advance() {
        Level& level = open_.last();
        if (level.next == level.end) {
            mark(level.container) = Mark::done;
            open_.removeLast();
            return true;
        }
        const Role role = level.next < level.endOfKeys ? Role::key : Role::value;
        const quint64 index = readNumber(layout_.bytes + level.next, layout_.referenceWidth);
        level.next += layout_.referenceWidth;
        return visit(index, role);
    }

    bool visit(quint64 index, Role role) {
        if (index >= layout_.objectCount || open_.size() > PropertyList::maximumDepth)
            return false;
        if (mark(index) == Mark::open)
            return false;
        if (mark(index) == Mark::unseen && !check(index))
            return false;
        return role == Role::value || mark(index) == Mark::text;
    }

    bool check(quint64 index) {
        const auto object = PropertyList::Object::at(layout_, layout_.offsetOf(index));
        if (!object || !charge(*object) || !contentsAreSound(*object))
            return false;
        mark(index) = object->isText() ? Mark::text : Mark::done;
        if (object->isContainer() && object->count > 0)
            open(index, *object);
        return true;
    }

    void open(quint64 index, const PropertyList::Object& object) {
        const quint64 keys = object.kind == PropertyList::Kind::dictionary ? object.count : 0;
        mark(index) = Mark::open;
        open_.append(
            {index, object.contents, object.contents + keys * layout_.referenceWidth, object.end});
    }

    bool charge(const PropertyList::Object& object) {
        const quint64 size = object.end - object.contents;
        if (size > sizeLeft_)
            return false;
        sizeLeft_ -= size;
        return true;
    }

    bool contentsAreSound(const PropertyList::Object& object) const {
        const uchar* bytes = layout_.bytes + object.contents;
        if (object.kind == PropertyList::Kind::asciiText)
            return std::all_of(bytes, bytes + object.count, [](uchar byte) { return byte < 0x80; });
        return object.kind != PropertyList::Kind::uid ||
               readNumber(bytes, object.count) <= maximumUid;
    }

    Mark& mark(quint64 index) { return marks_[static_cast<qsizetype>(index)]; }

    const PropertyList::Layout& layout_;
    QVarLengthArray<Mark, 256> marks_;
    QVarLengthArray<Level, 16> open_;
    quint64 sizeLeft_;
};

// The parts must fill the bytes exactly, and the widths must suffice for what they have to hold;
// CoreFoundation asks for the same.
std::optional<PropertyList> PropertyList::readTrailer(QByteArrayView bytes) {
    const auto size = static_cast<quint64>(bytes.size());
    if (size <= headerSize + trailerSize || !bytes.startsWith(magic))
        return std::nullopt;
    const auto* first = reinterpret_cast<const uchar*>(bytes.data());
    const uchar* trailer = first + size - trailerSize;
    const quint8 offsetWidth = trailer[6];
    const quint8 referenceWidth = trailer[7];
    const auto objectCount = qFromBigEndian<quint64>(trailer + 8);
    const auto root = qFromBigEndian<quint64>(trailer + 16);
    const auto tableOffset = qFromBigEndian<quint64>(trailer + 24);
    if (objectCount > maximumObjectCount || tableOffset > size - trailerSize ||
        objectCount * offsetWidth != size - trailerSize - tableOffset)
        return std::nullopt;
    if (!reaches(offsetWidth, tableOffset) || !reaches(referenceWidth, objectCount))
        return std::nullopt;
    const Layout layout{first, tableOffset, static_cast<quint32>(objectCount), offsetWidth,
                        referenceWidth};
    return PropertyList(layout, root);
}

// CoreFoundation refuses a bad offset even of an object that nothing refers to.
bool PropertyList::offsetsAreInside() const {
    for (quint64 index = 0; index < layout_.objectCount; ++index) {
        if (layout_.offsetOf(index) >= layout_.tableOffset)
            return false;
    }
    return true;
}

std::optional<PropertyList> PropertyList::parse(QByteArrayView bytes) {
    auto list = readTrailer(bytes);
    if (!list || !list->offsetsAreInside() ||
        !PropertyListCheck(list->layout_).accepts(list->root_))
        return std::nullopt;
    return list;
}

PropertyList::Value PropertyList::root() const {
    return Value(layout_, layout_.offsetOf(root_));
}

// Can't fail, as `parse` has looked at the same object.
PropertyList::Object PropertyList::Value::object() const {
    return *Object::at(layout_, offset_);
}

const uchar* PropertyList::Value::contents(const Object& object) const {
    return layout_.bytes + object.contents;
}

PropertyList::Type PropertyList::Value::type() const {
    const Object self = object();
    switch (self.kind) {
    case Kind::singleton:
        return self.detail == nullDetail ? Type::null : Type::boolean;
    case Kind::integer:
        return Type::integer;
    case Kind::real:
        return Type::real;
    case Kind::date:
        return Type::date;
    case Kind::data:
        return Type::data;
    case Kind::asciiText:
    case Kind::utf16Text:
        return Type::string;
    case Kind::uid:
        return Type::uid;
    case Kind::array:
        return Type::array;
    case Kind::set:
        return Type::set;
    case Kind::dictionary:
        return Type::dictionary;
    }
    Q_UNREACHABLE();
}

std::optional<bool> PropertyList::Value::boolean() const {
    const Object self = object();
    if (self.kind != Kind::singleton || self.detail == nullDetail)
        return std::nullopt;
    return self.detail == trueDetail;
}

std::optional<qint64> PropertyList::Value::integer() const {
    const Object self = object();
    if (self.kind != Kind::integer)
        return std::nullopt;
    if (self.detail == sixteenBytesDetail)
        return readSixteenByteInteger(contents(self));
    return static_cast<qint64>(readNumber(contents(self), self.count));
}

std::optional<double> PropertyList::Value::real() const {
    const Object self = object();
    if (self.kind != Kind::real)
        return std::nullopt;
    return self.detail == fourBytesDetail ? readFloat(contents(self)) : readDouble(contents(self));
}

std::optional<double> PropertyList::Value::date() const {
    const Object self = object();
    if (self.kind != Kind::date)
        return std::nullopt;
    return readDouble(contents(self));
}

std::optional<QByteArrayView> PropertyList::Value::data() const {
    const Object self = object();
    if (self.kind != Kind::data)
        return std::nullopt;
    return QByteArrayView(contents(self), static_cast<qsizetype>(self.count));
}

std::optional<QString> PropertyList::Value::string() const {
    const Object self = object();
    const auto length = static_cast<qsizetype>(self.count);
    if (self.kind == Kind::asciiText)
        return QLatin1StringView(QByteArrayView(contents(self), length));
    if (self.kind != Kind::utf16Text)
        return std::nullopt;
    QString text(length, Qt::Uninitialized);
    qFromBigEndian<char16_t>(contents(self), length, text.data());
    return text;
}

std::optional<quint64> PropertyList::Value::uid() const {
    const Object self = object();
    if (self.kind != Kind::uid)
        return std::nullopt;
    return readNumber(contents(self), self.count);
}

qsizetype PropertyList::Value::size() const {
    const Object self = object();
    return self.isCounted() ? static_cast<qsizetype>(self.count) : 0;
}

std::optional<PropertyList::Value> PropertyList::Value::at(qsizetype index) const {
    const Object self = object();
    if (self.kind != Kind::array || index < 0 || static_cast<quint64>(index) >= self.count)
        return std::nullopt;
    return referenced(self, static_cast<quint64>(index));
}

std::optional<PropertyList::Value> PropertyList::Value::find(QStringView key) const {
    const Object self = object();
    if (self.kind != Kind::dictionary)
        return std::nullopt;
    for (quint64 i = self.count; i > 0; --i) {
        if (referenced(self, i - 1).isText(key))
            return referenced(self, self.count + i - 1);
    }
    return std::nullopt;
}

std::optional<PropertyList::Value> PropertyList::Value::keyAt(qsizetype index) const {
    const Object self = object();
    if (self.kind != Kind::dictionary || index < 0 || static_cast<quint64>(index) >= self.count)
        return std::nullopt;
    return referenced(self, static_cast<quint64>(index));
}

std::optional<PropertyList::Value> PropertyList::Value::valueAt(qsizetype index) const {
    const Object self = object();
    if (self.kind != Kind::dictionary || index < 0 || static_cast<quint64>(index) >= self.count)
        return std::nullopt;
    return referenced(self, self.count + static_cast<quint64>(index));
}

// A dictionary's references are those of all its keys, then those of all its values.
PropertyList::Value PropertyList::Value::referenced(const Object& container,
                                                    quint64 position) const {
    const quint64 width = layout_.referenceWidth;
    const quint64 index = readNumber(contents(container) + position * width, width);
    return Value(layout_, layout_.offsetOf(index));
}

bool PropertyList::Value::isText(QStringView text) const {
    const Object self = object();
    if (self.count != static_cast<quint64>(text.size()))
        return false;
    if (self.kind == Kind::asciiText)
        return text == QLatin1StringView(QByteArrayView(contents(self), text.size()));
    const uchar* units = contents(self);
    return std::ranges::all_of(text, [&units](QChar unit) {
        const auto stored = qFromBigEndian<char16_t>(std::exchange(units, units + 2));
        return unit.unicode() == stored;
    });
}

} // namespace tessarine
