#include "capture/PropertyList.h"

#include "support/PropertyListWalk.h"
#include "support/PropertyListWriter.h"

#include <QtEndian>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <random>

using namespace Qt::StringLiterals;
using tessarine::PropertyList;
using tessarine::testing::PlistValue;
using tessarine::testing::walk;
using tessarine::testing::writeBinaryPropertyList;
using Type = PropertyList::Type;

namespace {

constexpr qsizetype walkLimit = 100'000;

// The bytes of hexadecimal text, in which blanks may stand anywhere.
QByteArray hex(const char* digits) {
    return QByteArray::fromHex(digits);
}

QByteArray bigEndian(quint64 number, int width) {
    QByteArray bytes;
    for (int i = width - 1; i >= 0; --i)
        bytes.append(i < 8 ? static_cast<char>(number >> (8 * i)) : '\0');
    return bytes;
}

// What a hand-made document says of itself; left alone, it is the truth.
struct Shape {
    QByteArray header = "bplist00";
    int offsetWidth = 2;
    int referenceWidth = 1;
    quint64 root = 0;
};

QByteArray trailer(int offsetWidth, int referenceWidth, quint64 count, quint64 root,
                   quint64 tableOffset) {
    return QByteArray(6, '\0') + bigEndian(quint64(offsetWidth), 1) +
           bigEndian(quint64(referenceWidth), 1) + bigEndian(count, 8) + bigEndian(root, 8) +
           bigEndian(tableOffset, 8);
}

// A document of these objects, each given as its own bytes; references in it are of one byte.
QByteArray document(const QList<QByteArray>& objects, const Shape& shape = {}) {
    QByteArray bytes = shape.header;
    QByteArray table;
    for (const QByteArray& object : objects) {
        table += bigEndian(quint64(bytes.size()), shape.offsetWidth);
        bytes += object;
    }
    const auto tableOffset = quint64(bytes.size());
    return bytes + table +
           trailer(shape.offsetWidth, shape.referenceWidth, quint64(objects.size()), shape.root,
                   tableOffset);
}

// A document whose one object is this, given in hexadecimal digits.
QByteArray single(const char* digits) {
    return document({hex(digits)});
}

enum TrailerField : qsizetype {
    offsetWidthField = -26,
    referenceWidthField = -25,
    countField = -24,
    rootField = -16,
    tableOffsetField = -8,
};

QByteArray withTrailer(QByteArray bytes, TrailerField field, const QByteArray& value) {
    return bytes.replace(bytes.size() + field, value.size(), value);
}

// Parses a copy that ends where its memory ends, so that a sanitizer sees a single byte too many,
// and reads all that was accepted.
bool accepts(QByteArrayView bytes) {
    const auto size = static_cast<std::size_t>(bytes.size());
    const auto exact = std::make_unique<char[]>(size);
    if (size > 0)
        std::memcpy(exact.get(), bytes.data(), size);
    const auto list = PropertyList::parse({exact.get(), bytes.size()});
    EXPECT_TRUE(!list || walk(*list, walkLimit));
    return list.has_value();
}

// Good for as long as `bytes` is.
PropertyList::Value rootOf(const QByteArray& bytes) {
    return PropertyList::parse(bytes).value().root();
}

// As many arrays inside each other as `count` says; the innermost holds `core`.
PlistValue nested(int count, PlistValue core) {
    for (int i = 0; i < count; ++i)
        core = PlistValue::array({core});
    return core;
}

// One of everything, in the shape of a notification's payload.
QByteArray sample() {
    const PlistValue request = PlistValue::dictionary(
        {{u"titl"_s, PlistValue::string(u"Lunch"_s)},
         {u"body"_s, PlistValue::string(u"Where are you? 🍜"_s)},
         {u"list"_s, PlistValue::array({PlistValue::integer(-1), PlistValue::uid(7),
                                        PlistValue::boolean(true), PlistValue::integer(70'000)})}});
    return writeBinaryPropertyList(
        PlistValue::dictionary({{u"app"_s, PlistValue::string(u"com.apple.mail"_s)},
                                {u"uuid"_s, PlistValue::data(QByteArray(16, '\x7f'))},
                                {u"date"_s, PlistValue::real(774'000'000.25)},
                                {u"when"_s, PlistValue::date(-1.5)},
                                {u"req"_s, request}}));
}

} // namespace

// Types

TEST(PropertyListTypes, NullIsReadAsNull) {
    EXPECT_EQ(rootOf(single("00")).type(), Type::null);
}

TEST(PropertyListTypes, FalseIsRead) {
    const QByteArray bytes = single("08");
    EXPECT_EQ(rootOf(bytes).type(), Type::boolean);
    EXPECT_EQ(rootOf(bytes).boolean(), false);
}

TEST(PropertyListTypes, TrueIsRead) {
    EXPECT_EQ(rootOf(single("09")).boolean(), true);
}

TEST(PropertyListTypes, AOneByteIntegerIsUnsigned) {
    const QByteArray bytes = single("10 ff");
    EXPECT_EQ(rootOf(bytes).type(), Type::integer);
    EXPECT_EQ(rootOf(bytes).integer(), 255);
}

TEST(PropertyListTypes, ATwoByteIntegerIsUnsigned) {
    EXPECT_EQ(rootOf(single("11 fffe")).integer(), 65'534);
}

TEST(PropertyListTypes, AFourByteIntegerIsUnsigned) {
    EXPECT_EQ(rootOf(single("12 fffffffd")).integer(), 4'294'967'293);
}

TEST(PropertyListTypes, AnEightByteIntegerIsSigned) {
    EXPECT_EQ(rootOf(single("13 fffffffffffffffe")).integer(), -2);
}

TEST(PropertyListTypes, TheSmallestIntegerIsRead) {
    EXPECT_EQ(rootOf(single("13 8000000000000000")).integer(), std::numeric_limits<qint64>::min());
}

TEST(PropertyListTypes, ASixteenByteIntegerIsSigned) {
    EXPECT_EQ(rootOf(single("14 ffffffffffffffff fffffffffffffff0")).integer(), -16);
}

TEST(PropertyListTypes, ASixteenByteIntegerIsReadUpToTheLargestOf64Bits) {
    EXPECT_EQ(rootOf(single("14 0000000000000000 7fffffffffffffff")).integer(),
              std::numeric_limits<qint64>::max());
}

TEST(PropertyListTypes, AnIntegerBeyond64BitsIsAnIntegerWithoutAValue) {
    const QByteArray bytes = single("14 0000000000000000 8000000000000000");
    EXPECT_EQ(rootOf(bytes).type(), Type::integer);
    EXPECT_EQ(rootOf(bytes).integer(), std::nullopt);
}

TEST(PropertyListTypes, AFourByteRealIsRead) {
    const QByteArray bytes = single("22 c0200000");
    EXPECT_EQ(rootOf(bytes).type(), Type::real);
    EXPECT_EQ(rootOf(bytes).real(), -2.5);
}

TEST(PropertyListTypes, AnEightByteRealIsRead) {
    EXPECT_EQ(rootOf(single("23 3ff8000000000000")).real(), 1.5);
}

TEST(PropertyListTypes, ARealMayBeNoNumber) {
    EXPECT_TRUE(std::isnan(rootOf(single("23 7ff8000000000000")).real().value()));
}

TEST(PropertyListTypes, ADateIsSecondsSince2001) {
    const QByteArray bytes = single("33 c1e0000000000000");
    EXPECT_EQ(rootOf(bytes).type(), Type::date);
    EXPECT_EQ(rootOf(bytes).date(), -2'147'483'648.0);
}

TEST(PropertyListTypes, DataIsAViewOfTheDocument) {
    const QByteArray bytes = single("43 00ff41");
    const auto data = rootOf(bytes).data();
    EXPECT_EQ(rootOf(bytes).type(), Type::data);
    ASSERT_EQ(data, QByteArrayView("\x00\xff\x41", 3));
    EXPECT_EQ(data->data(), bytes.constData() + 9);
}

TEST(PropertyListTypes, DataMayBeEmpty) {
    EXPECT_EQ(rootOf(single("40")).data(), QByteArrayView(""));
}

TEST(PropertyListTypes, ACountFrom15FollowsAsAnInteger) {
    const QByteArray text(300, 'x');
    const QByteArray bytes = document({hex("5f 11 012c") + text});
    EXPECT_EQ(rootOf(bytes).string(), QString::fromLatin1(text));
}

TEST(PropertyListTypes, ACountMayHaveEightBytes) {
    EXPECT_EQ(rootOf(single("5f 13 0000000000000002 4142")).string(), u"AB"_s);
}

TEST(PropertyListTypes, ACountMayHaveSixteenBytes) {
    EXPECT_EQ(rootOf(single("5f 14 0000000000000000 0000000000000002 4142")).string(), u"AB"_s);
}

TEST(PropertyListTypes, AUidIsReadWhateverItsWidth) {
    const QByteArray bytes = single("82 010203");
    EXPECT_EQ(rootOf(bytes).type(), Type::uid);
    EXPECT_EQ(rootOf(bytes).uid(), 0x010203u);
}

TEST(PropertyListTypes, TheLargestUidHas32Bits) {
    EXPECT_EQ(rootOf(single("87 00000000 ffffffff")).uid(), 0xffffffffu);
}

TEST(PropertyListTypes, AnArrayGivesItsElementsInOrder) {
    const QByteArray bytes = document({hex("a2 01 02"), hex("10 07"), hex("51 41")});
    const auto root = rootOf(bytes);
    EXPECT_EQ(root.type(), Type::array);
    ASSERT_EQ(root.size(), 2);
    EXPECT_EQ(root.at(0)->integer(), 7);
    EXPECT_EQ(root.at(1)->string(), u"A"_s);
}

TEST(PropertyListTypes, AnArrayGivesNothingOutsideItsElements) {
    const QByteArray bytes = document({hex("a1 01"), hex("09")});
    EXPECT_FALSE(rootOf(bytes).at(1));
    EXPECT_FALSE(rootOf(bytes).at(-1));
    EXPECT_FALSE(rootOf(bytes).at(std::numeric_limits<qsizetype>::max()));
}

TEST(PropertyListTypes, AnArrayMayBeEmpty) {
    EXPECT_EQ(rootOf(single("a0")).size(), 0);
}

TEST(PropertyListTypes, ASetHasASizeButNoElementsToRead) {
    const QByteArray bytes = document({hex("c1 01"), hex("09")});
    EXPECT_EQ(rootOf(bytes).type(), Type::set);
    EXPECT_EQ(rootOf(bytes).size(), 1);
    EXPECT_FALSE(rootOf(bytes).at(0));
}

TEST(PropertyListTypes, ADictionaryGivesItsEntriesAsStored) {
    const QByteArray bytes =
        document({hex("d2 01 02 03 04"), hex("51 62"), hex("51 61"), hex("10 01"), hex("10 02")});
    const auto root = rootOf(bytes);
    EXPECT_EQ(root.type(), Type::dictionary);
    ASSERT_EQ(root.size(), 2);
    EXPECT_EQ(root.keyAt(0)->string(), u"b"_s);
    EXPECT_EQ(root.valueAt(0)->integer(), 1);
    EXPECT_EQ(root.keyAt(1)->string(), u"a"_s);
    EXPECT_EQ(root.valueAt(1)->integer(), 2);
}

TEST(PropertyListTypes, ADictionaryGivesNothingOutsideItsEntries) {
    const QByteArray bytes = document({hex("d1 01 02"), hex("51 61"), hex("10 01")});
    EXPECT_FALSE(rootOf(bytes).keyAt(1));
    EXPECT_FALSE(rootOf(bytes).valueAt(1));
    EXPECT_FALSE(rootOf(bytes).keyAt(-1));
    EXPECT_FALSE(rootOf(bytes).valueAt(-1));
    EXPECT_FALSE(rootOf(bytes).at(0));
}

TEST(PropertyListTypes, AnotherTypesAccessorsGiveNothing) {
    const QByteArray bytes = single("09");
    const auto root = rootOf(bytes);
    EXPECT_FALSE(root.integer());
    EXPECT_FALSE(root.real());
    EXPECT_FALSE(root.date());
    EXPECT_FALSE(root.data());
    EXPECT_FALSE(root.string());
    EXPECT_FALSE(root.uid());
    EXPECT_FALSE(root.at(0));
    EXPECT_FALSE(root.find(u"a"));
    EXPECT_EQ(root.size(), 0);
}

TEST(PropertyListTypes, NullGivesNothingAsABoolean) {
    EXPECT_FALSE(rootOf(single("00")).boolean());
}

TEST(PropertyListTypes, AValueOutlivesTheListItCameFrom) {
    const QByteArray bytes = single("10 07");
    std::optional<PropertyList::Value> root;
    {
        const auto list = PropertyList::parse(bytes);
        root = list->root();
    }
    EXPECT_EQ(root->integer(), 7);
}

// Dictionaries

TEST(PropertyListFind, AKeyIsFound) {
    const QByteArray bytes = sample();
    EXPECT_EQ(rootOf(bytes).find(u"app")->string(), u"com.apple.mail"_s);
}

TEST(PropertyListFind, AMissingKeyGivesNothing) {
    const QByteArray bytes = sample();
    EXPECT_FALSE(rootOf(bytes).find(u"ap"));
    EXPECT_FALSE(rootOf(bytes).find(u"apps"));
    EXPECT_FALSE(rootOf(bytes).find(u""));
}

TEST(PropertyListFind, AKeyStoredAsUtf16IsFoundByAsciiText) {
    const QByteArray bytes = document({hex("d1 01 02"), hex("63 0072 0065 0071"), hex("09")});
    EXPECT_EQ(rootOf(bytes).find(u"req")->boolean(), true);
    EXPECT_FALSE(rootOf(bytes).find(u"rex"));
}

TEST(PropertyListFind, AKeyBeyondAsciiIsFound) {
    const QByteArray bytes = document({hex("d1 01 02"), hex("62 d83d de00"), hex("09")});
    EXPECT_TRUE(rootOf(bytes).find(u"😀"));
    EXPECT_FALSE(rootOf(bytes).find(u"😁"));
}

TEST(PropertyListFind, AnAsciiKeyIsNotFoundByTextThatOnlySharesItsLowBytes) {
    const QByteArray bytes = document({hex("d1 01 02"), hex("51 41"), hex("09")});
    EXPECT_FALSE(rootOf(bytes).find(u"\u0141"));
}

TEST(PropertyListFind, AnEmptyKeyIsFound) {
    const QByteArray bytes = document({hex("d1 01 02"), hex("50"), hex("09")});
    EXPECT_TRUE(rootOf(bytes).find(u""));
}

TEST(PropertyListFind, OfEntriesWithOneKeyTheLastCounts) {
    const QByteArray bytes =
        document({hex("d2 01 02 03 04"), hex("51 61"), hex("51 61"), hex("10 01"), hex("10 02")});
    EXPECT_EQ(rootOf(bytes).find(u"a")->integer(), 2);
}

TEST(PropertyListFind, AKeyStoredTwiceInTwoWaysIsOneKey) {
    const QByteArray bytes =
        document({hex("d2 01 02 03 04"), hex("51 61"), hex("61 0061"), hex("10 01"), hex("10 02")});
    EXPECT_EQ(rootOf(bytes).find(u"a")->integer(), 2);
}

// Text

struct TextCase {
    const char* name;
    QString text;
};

class PropertyListText : public ::testing::TestWithParam<TextCase> {};

TEST_P(PropertyListText, IsReadUnitByUnit) {
    const QByteArray bytes = writeBinaryPropertyList(PlistValue::string(GetParam().text));
    const auto root = rootOf(bytes);
    EXPECT_EQ(root.type(), Type::string);
    EXPECT_EQ(root.string(), GetParam().text);
    EXPECT_EQ(root.size(), GetParam().text.size());
}

INSTANTIATE_TEST_SUITE_P(
    Texts, PropertyListText,
    ::testing::Values(TextCase{"Empty", u""_s}, TextCase{"Ascii", u"plain"_s},
                      TextCase{"AsciiWithNul", u"a\0b"_s},
                      TextCase{"OnlyNul", QString(1, QChar(u'\0'))},
                      TextCase{"LongAscii", QString(70'000, u'x')}, TextCase{"Latin", u"Grüße"_s},
                      TextCase{"BeyondAsciiWithNul", u"ü\0ü"_s},
                      TextCase{"Emoji", u"👩‍👩‍👧 🇨🇭"_s},
                      TextCase{"LongEmoji", u"😀"_s.repeated(40'000)},
                      TextCase{"RightToLeft", u"\u202eשלום\u202c \u200f"_s},
                      TextCase{"HighSurrogateAlone", u"a"_s + QChar(0xd83d)},
                      TextCase{"LowSurrogateAlone", QChar(0xde00) + u"a"_s},
                      TextCase{"SurrogatesInWrongOrder", QString(QChar(0xde00)) + QChar(0xd83d)},
                      TextCase{"LastPlane", QString::fromUcs4(U"\U0010fffd")},
                      TextCase{"NonCharacters", QString(QChar(0xffff)) + QChar(0xfffe)}),
    [](const auto& info) { return info.param.name; });

TEST(PropertyListStoredText, CountsUtf16UnitsAndNotBytes) {
    EXPECT_EQ(rootOf(single("63 00fc d83d de00")).string(), u"ü😀"_s);
}

TEST(PropertyListStoredText, AsciiMayHoldNul) {
    EXPECT_EQ(rootOf(single("53 41 00 42")).string(), u"A\0B"_s);
}

// What is refused

struct RefusedCase {
    const char* name;
    QByteArray bytes;
};

class PropertyListRefuses : public ::testing::TestWithParam<RefusedCase> {};

TEST_P(PropertyListRefuses, It) {
    EXPECT_FALSE(accepts(GetParam().bytes));
}

const auto nameOf = [](const ::testing::TestParamInfo<RefusedCase>& info) {
    return info.param.name;
};

const QByteArray allOnes(8, '\xff');

INSTANTIATE_TEST_SUITE_P(
    Frames, PropertyListRefuses,
    ::testing::Values(
        RefusedCase{"NoBytes", {}}, RefusedCase{"OneZeroByte", QByteArray(1, '\0')},
        RefusedCase{"ZeroBytes", QByteArray(100, '\0')},
        RefusedCase{"XmlPropertyList",
                    "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict/></plist>"},
        RefusedCase{"HeaderOnly", "bplist00"},
        RefusedCase{"NothingBetweenHeaderAndTrailer", "bplist00" + trailer(1, 1, 0, 0, 8)},
        RefusedCase{"WrongMagic", document({hex("09")}, {.header = "bplisT00"})},
        RefusedCase{"WrongMajorVersion", document({hex("09")}, {.header = "bplist10"})},
        RefusedCase{"NoObjects", withTrailer(single("09"), countField, bigEndian(0, 8))},
        RefusedCase{"FewerObjectsThanTheTableHolds",
                    withTrailer(document({hex("09"), hex("08")}), countField, bigEndian(1, 8))},
        RefusedCase{"MoreObjectsThanTheTableHolds",
                    withTrailer(single("09"), countField, bigEndian(2, 8))},
        RefusedCase{"MoreObjectsThanAnyMemory", withTrailer(single("09"), countField, allOnes)},
        RefusedCase{"ObjectCountThatOverflowsTheTableSize",
                    withTrailer(single("09"), countField, hex("8000000000000001"))},
        RefusedCase{"RootBeyondTheObjects", withTrailer(single("09"), rootField, bigEndian(1, 8))},
        RefusedCase{"NegativeRoot", withTrailer(single("09"), rootField, allOnes)},
        RefusedCase{"TableInsideTheHeader",
                    withTrailer(single("09"), tableOffsetField, bigEndian(7, 8))},
        RefusedCase{"TableAtTheTrailer",
                    withTrailer(single("09"), tableOffsetField, bigEndian(11, 8))},
        RefusedCase{"TableBeyondTheBytes",
                    withTrailer(single("09"), tableOffsetField, bigEndian(1000, 8))},
        RefusedCase{"NegativeTable", withTrailer(single("09"), tableOffsetField, allOnes)},
        RefusedCase{"OffsetsOfNoWidth", withTrailer(single("09"), offsetWidthField, hex("00"))},
        RefusedCase{"OffsetsOf255Bytes", withTrailer(single("09"), offsetWidthField, hex("ff"))},
        RefusedCase{"ReferencesOfNoWidth",
                    withTrailer(single("09"), referenceWidthField, hex("00"))},
        RefusedCase{"OffsetsTooNarrowForTheTable",
                    document({hex("4f 11 012c") + QByteArray(300, 'x')}, {.offsetWidth = 1})},
        RefusedCase{"ReferencesTooNarrowForTheObjects",
                    document(QList<QByteArray>(256, hex("09")))},
        RefusedCase{"ByteAfterTheTable", document({hex("09")}).insert(11, '\0')},
        RefusedCase{"OffsetOfTheHeaderWhichReadsAsText",
                    "bplist00" + hex("09 00") + trailer(1, 1, 1, 0, 9)},
        RefusedCase{"NegativeTableThatMakesUpForTooManyObjects",
                    "bplist00" + hex("09 08") + trailer(255, 2, 1000, 0, 10 - 255'000ull)},
        RefusedCase{"OffsetOfTheTable", "bplist00" + hex("09 09") + trailer(1, 1, 1, 0, 9)},
        RefusedCase{"OffsetBeyondTheBytes", "bplist00" + hex("09 f0") + trailer(1, 1, 1, 0, 9)},
        RefusedCase{"NegativeOffset", "bplist00" + hex("09") + allOnes + trailer(8, 1, 1, 0, 9)},
        RefusedCase{"BadOffsetOfAnUnusedObject",
                    "bplist00" + hex("09 08 ff") + trailer(1, 1, 2, 0, 9)}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Objects, PropertyListRefuses,
    ::testing::Values(
        RefusedCase{"UnknownSingleton", single("01")}, RefusedCase{"Url", single("0c 50")},
        RefusedCase{"FillByte", single("0f")},
        RefusedCase{"IntegerOf32Bytes", document({hex("15") + QByteArray(32, 'x')})},
        RefusedCase{"IntegerOf32768Bytes",
                    document({hex("1f") + QByteArray(32'768, 'x')}, {.offsetWidth = 4})},
        RefusedCase{"IntegerCutOff", single("13 00000000000000")},
        RefusedCase{"RealOfTwoBytes", single("21 0000")},
        RefusedCase{"RealOfSixteenBytes", document({hex("24") + QByteArray(16, 'x')})},
        RefusedCase{"RealCutOff", single("23 00")},
        RefusedCase{"DateOfFourBytes", single("32 00000000")},
        RefusedCase{"DateCutOff", single("33 00")}, RefusedCase{"DataCutOff", single("42 00")},
        RefusedCase{"DataThatReachesIntoTheTable", single("43 0000")},
        RefusedCase{"AsciiCutOff", single("52 41")},
        RefusedCase{"AsciiWithAHighByte", single("52 41 80")},
        RefusedCase{"Utf16CutOff", single("62 0041 00")}, RefusedCase{"Utf8Text", single("71 41")},
        RefusedCase{"OrderedSet", single("b0")}, RefusedCase{"Marker9", single("90")},
        RefusedCase{"MarkerE", single("e0")}, RefusedCase{"MarkerF", single("f0")},
        RefusedCase{"UidCutOff", single("81 00")},
        RefusedCase{"UidOf33Bits", single("84 0100000000")},
        RefusedCase{"UidOf72Bits", single("88 010000000000000000")},
        RefusedCase{"CountMissing", single("4f")},
        RefusedCase{"CountInTheTable",
                    "bplist00" + QByteArray(8, 'x') + hex("4f 10") + trailer(1, 1, 1, 0, 17)},
        RefusedCase{"CountCutOff", single("4f 11 00")},
        RefusedCase{"CountThatIsNoInteger", single("4f 23 0000000000000000")},
        RefusedCase{"CountOf32Bytes", document({hex("4f 15") + QByteArray(32, '\0')})},
        RefusedCase{"NegativeCountOfData", document({hex("4f 13") + allOnes})},
        RefusedCase{"NegativeCountOfUtf16", document({hex("6f 13") + allOnes})},
        RefusedCase{"CountOfUtf16ThatOverflows", single("6f 13 8000000000000001 0041")},
        RefusedCase{"NegativeCountOfAnArray", document({hex("af 13") + allOnes})},
        RefusedCase{"NegativeCountOfADictionary", document({hex("df 13") + allOnes})},
        RefusedCase{"CountOfADictionaryThatOverflows",
                    document({hex("df 13 8000000000000001 0101"), hex("50")})},
        RefusedCase{"CountBeyond64Bits",
                    document({hex("4f 14 0000000000000001 0000000000000000")})},
        RefusedCase{"ArrayCutOff", single("a2 00")},
        RefusedCase{"DictionaryWithoutItsValues", document({hex("d1 01"), hex("50")})}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    References, PropertyListRefuses,
    ::testing::Values(
        RefusedCase{"ElementThatDoesNotExist", document({hex("a1 01")})},
        RefusedCase{"NegativeReference",
                    document({hex("a1 ffffffffffffffff")}, {.referenceWidth = 8})},
        RefusedCase{"ReferenceBeyond64Bits",
                    document({hex("a1 01 0000000000000000"), hex("09")}, {.referenceWidth = 9})},
        RefusedCase{"KeyThatDoesNotExist", document({hex("d1 05 01"), hex("50")})},
        RefusedCase{"ValueThatDoesNotExist", document({hex("d1 01 05"), hex("50")})},
        RefusedCase{"BadElementOfASet", document({hex("c1 01"), hex("0f")})},
        RefusedCase{"BadObjectDeepInside",
                    document({hex("a1 01"), hex("d1 02 03"), hex("50"), hex("a1 04"), hex("0f")})},
        RefusedCase{"ArrayThatHoldsItself", document({hex("a1 00")})},
        RefusedCase{"ArraysThatHoldEachOther", document({hex("a1 01"), hex("a1 00")})},
        RefusedCase{"SetThatHoldsItself", document({hex("c1 00")})},
        RefusedCase{"DictionaryThatIsItsOwnValue", document({hex("d1 01 00"), hex("50")})},
        RefusedCase{"DictionaryThatIsItsOwnKey", document({hex("d1 00 01"), hex("50")})},
        RefusedCase{"LoopThroughAKey", document({hex("a1 01"), hex("d1 00 02"), hex("50")})},
        RefusedCase{"LoopThroughAValue", document({hex("a1 01"), hex("d1 02 00"), hex("50")})},
        RefusedCase{"LoopBelowTheRoot", document({hex("a1 01"), hex("a1 02"), hex("a1 01")})},
        RefusedCase{"LoopByTwoNumbersOfOneArray",
                    "bplist00" + hex("a1 01 08 08") + trailer(1, 1, 2, 0, 10)},
        RefusedCase{"IntegerAsAKey", document({hex("d1 01 01"), hex("10 01")})},
        RefusedCase{"DataAsAKey", document({hex("d1 01 01"), hex("41 61")})},
        RefusedCase{"ArrayAsAKey", document({hex("d1 01 02"), hex("a0"), hex("50")})},
        RefusedCase{"KeyThatWasReadBeforeAndIsNoText",
                    document({hex("a2 01 02"), hex("10 01"), hex("d1 01 01")})}),
    nameOf);

// What is accepted all the same

TEST(PropertyListAccepts, AnyLastCharacterOfTheVersion) {
    EXPECT_TRUE(accepts(document({hex("09")}, {.header = "bplist01"})));
}

TEST(PropertyListAccepts, ARootThatIsNotTheFirstObject) {
    const QByteArray bytes = document({hex("10 07"), hex("a1 00")}, {.root = 1});
    EXPECT_EQ(rootOf(bytes).at(0)->integer(), 7);
}

TEST(PropertyListAccepts, BadObjectsThatNothingRefersTo) {
    EXPECT_TRUE(accepts(document({hex("09"), hex("0f"), hex("a1 02")})));
}

TEST(PropertyListAccepts, BytesBetweenTheObjects) {
    EXPECT_TRUE(accepts(document({hex("09 ffff"), hex("08 ffff")})));
}

TEST(PropertyListAccepts, OffsetsOfThreeBytes) {
    EXPECT_TRUE(accepts(document({hex("a1 01"), hex("09")}, {.offsetWidth = 3})));
}

TEST(PropertyListAccepts, OffsetsAndReferencesOfTwentyBytes) {
    const QByteArray reference = QByteArray(19, '\0') + '\x01';
    EXPECT_TRUE(accepts(document({hex("a1") + reference, hex("10 07")},
                                 {.offsetWidth = 20, .referenceWidth = 20})));
}

TEST(PropertyListAccepts, OneObjectInManyPlaces) {
    const QByteArray bytes = document({hex("a3 01 01 01"), hex("51 41")});
    EXPECT_EQ(rootOf(bytes).at(2)->string(), u"A"_s);
}

TEST(PropertyListAccepts, OneTextAsKeyAndAsValue) {
    const QByteArray bytes = document({hex("d1 01 01"), hex("51 41")});
    EXPECT_EQ(rootOf(bytes).find(u"A")->string(), u"A"_s);
}

TEST(PropertyListAccepts, TwoNumbersOfOneObject) {
    EXPECT_TRUE(accepts("bplist00" + hex("a2 01 02 09 08 0b 0b") + trailer(1, 1, 3, 0, 12)));
}

// Bounds

TEST(PropertyListBounds, AValueMayHave512ContainersAroundIt) {
    EXPECT_TRUE(accepts(writeBinaryPropertyList(nested(512, PlistValue::boolean(true)))));
}

TEST(PropertyListBounds, AValueMayNotHave513ContainersAroundIt) {
    EXPECT_FALSE(accepts(writeBinaryPropertyList(nested(513, PlistValue::boolean(true)))));
}

TEST(PropertyListBounds, AHundredThousandNestedArraysAreRefused) {
    EXPECT_FALSE(accepts(writeBinaryPropertyList(nested(100'000, PlistValue::boolean(true)))));
}

TEST(PropertyListBounds, AHundredThousandNestedDictionariesAreRefused) {
    PlistValue core = PlistValue::boolean(true);
    for (int i = 0; i < 100'000; ++i)
        core = PlistValue::dictionary({{u"k"_s, core}});
    EXPECT_FALSE(accepts(writeBinaryPropertyList(core)));
}

TEST(PropertyListBounds, AMillionObjectsAreAccepted) {
    const PlistValue::Array many(1'000'000, PlistValue::boolean(true));
    EXPECT_TRUE(accepts(writeBinaryPropertyList(PlistValue::array(many))));
}

TEST(PropertyListBounds, MoreObjectsThanTheBoundAreRefused) {
    const PlistValue::Array many(PropertyList::maximumObjectCount, PlistValue::boolean(true));
    EXPECT_FALSE(accepts(writeBinaryPropertyList(PlistValue::array(many))));
}

// So many arrays that each hold the next one twice; the last one is empty.
QByteArray doublingArrays(int count) {
    QList<QByteArray> objects;
    for (int next = 1; next < count; ++next)
        objects << '\xa2' + QByteArray(2, static_cast<char>(next));
    return document(objects << hex("a0"));
}

TEST(PropertyListBounds, ArraysThatHoldTheNextOneTwiceAreAccepted) {
    const QByteArray bytes = doublingArrays(26);
    auto value = rootOf(bytes);
    for (int i = 1; i < 26; ++i)
        value = value.at(1).value();
    EXPECT_EQ(value.size(), 0);
}

// Met one by one, these would be 2 to the power of 199 values.
TEST(PropertyListBounds, SharedArraysAreJudgedOnce) {
    EXPECT_TRUE(accepts(doublingArrays(200)));
}

// One text of this size that `count` numbers name, all of them in an array.
QByteArray oneTextUnderManyNumbers(int count, qsizetype size) {
    QByteArray references;
    for (int i = 1; i <= count; ++i)
        references += bigEndian(quint64(i), 2);
    const QByteArray objects = hex("af 11") + bigEndian(quint64(count), 2) + references +
                               hex("5f 12") + bigEndian(quint64(size), 4) + QByteArray(size, 'x');
    const auto textOffset = quint64(8 + 4 + references.size());
    QByteArray table = bigEndian(8, 4);
    for (int i = 0; i < count; ++i)
        table += bigEndian(textOffset, 4);
    return "bplist00" + objects + table +
           trailer(4, 2, quint64(count) + 1, 0, quint64(8 + objects.size()));
}

TEST(PropertyListBounds, ATextUnderAFewNumbersIsAccepted) {
    EXPECT_TRUE(accepts(oneTextUnderManyNumbers(7, 10'000)));
}

TEST(PropertyListBounds, ALargeTextUnderManyNumbersIsRefused) {
    EXPECT_FALSE(accepts(oneTextUnderManyNumbers(60'000, 10'000'000)));
}

TEST(PropertyListBounds, ATextOf50MillionCharactersIsRead) {
    const QString text(50'000'000, u'x');
    const QByteArray bytes = writeBinaryPropertyList(PlistValue::string(text));
    EXPECT_EQ(rootOf(bytes).string(), text);
}

TEST(PropertyListBounds, FiftyMillionRandomBytesAreRefused) {
    std::mt19937_64 random(20'010'101);
    QByteArray bytes(50'000'000, Qt::Uninitialized);
    for (qsizetype i = 0; i < bytes.size(); i += 8)
        qToBigEndian(static_cast<quint64>(random()), bytes.data() + i);
    EXPECT_FALSE(PropertyList::parse(bytes));
    bytes.replace(0, 8, "bplist00");
    EXPECT_FALSE(PropertyList::parse(bytes));
}

TEST(PropertyListBounds, RandomBytesInAValidFrameDoNoHarm) {
    std::mt19937 random(7);
    int accepted = 0;
    for (int round = 0; round < 20'000; ++round) {
        QList<QByteArray> objects;
        for (int i = 0; i < 6; ++i)
            objects << bigEndian(random(), 1 + static_cast<int>(random() % 4));
        accepted += accepts(document(objects)) ? 1 : 0;
    }
    EXPECT_GT(accepted, 0);
}

// Damage

TEST(PropertyListDamage, NoTruncationIsAccepted) {
    const QByteArray bytes = sample();
    ASSERT_TRUE(accepts(bytes));
    for (qsizetype length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(accepts(bytes.first(length))) << length;
}

TEST(PropertyListDamage, NoChangeOfOneByteDoesHarm) {
    const QByteArray bytes = sample();
    for (qsizetype position = 0; position < bytes.size(); ++position) {
        for (int change = 1; change < 256; ++change) {
            QByteArray damaged = bytes;
            damaged[position] = static_cast<char>(damaged[position] ^ change);
            accepts(damaged);
        }
    }
}
