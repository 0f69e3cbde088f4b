#include "platform/linux/LinuxUserDefaults.h"

#include "platform/linux/LinuxUserDefaultsFixture.h"
#include "support/Printers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using LinuxUserDefaultsTest = testing::LinuxUserDefaultsFixture;

// What a hand-written file gives

struct Written {
    const char* name;
    const char* value;
};

template <typename Result>
struct Reading : Written {
    Result result;
};

const auto byName = [](const auto& test) { return std::string(test.param.name); };

class BooleanByHand : public LinuxUserDefaultsTest,
                      public ::testing::WithParamInterface<Reading<bool>> {};

TEST_P(BooleanByHand, IsReadStrictly) {
    writeValueByHand(GetParam().value);
    EXPECT_EQ(LinuxUserDefaults(path()).boolean(key), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Values, BooleanByHand,
    ::testing::Values(Reading<bool>{{"True", "true"}, true}, Reading<bool>{{"One", "1"}, true},
                      Reading<bool>{{"QuotedTrue", "\"true\""}, true},
                      Reading<bool>{{"False", "false"}, false}, Reading<bool>{{"Zero", "0"}, false},
                      Reading<bool>{{"Garbage", "garbage"}, false},
                      Reading<bool>{{"Empty", ""}, false}, Reading<bool>{{"Two", "2"}, false},
                      Reading<bool>{{"Yes", "yes"}, false},
                      Reading<bool>{{"TrueAndMore", "trueish"}, false},
                      Reading<bool>{{"List", "true, true"}, false},
                      Reading<bool>{{"Invalid", "@Invalid()"}, false},
                      Reading<bool>{{"Bytes", "@ByteArray(true)"}, false}),
    byName);

class IntegerByHand : public LinuxUserDefaultsTest,
                      public ::testing::WithParamInterface<Reading<qint64>> {};

TEST_P(IntegerByHand, IsReadStrictly) {
    writeValueByHand(GetParam().value);
    EXPECT_EQ(LinuxUserDefaults(path()).integer(key), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Values, IntegerByHand,
    ::testing::Values(
        Reading<qint64>{{"Plain", "12"}, 12}, Reading<qint64>{{"Negative", "-7"}, -7},
        Reading<qint64>{{"Quoted", "\"30\""}, 30}, Reading<qint64>{{"LeadingZeros", "0012"}, 12},
        Reading<qint64>{{"BeyondThirtyTwoBits", "5000000000"}, Q_INT64_C(5000000000)},
        Reading<qint64>{{"Largest", "9223372036854775807"}, std::numeric_limits<qint64>::max()},
        Reading<qint64>{{"Smallest", "-9223372036854775808"}, std::numeric_limits<qint64>::min()},
        Reading<qint64>{{"OneTooLarge", "9223372036854775808"}, 0},
        Reading<qint64>{{"FarTooLarge", "99999999999999999999999999"}, 0},
        Reading<qint64>{{"WithFraction", "12.0"}, 0}, Reading<qint64>{{"WithExponent", "1e3"}, 0},
        Reading<qint64>{{"Hexadecimal", "0x10"}, 0}, Reading<qint64>{{"WithUnit", "12 days"}, 0},
        Reading<qint64>{{"Word", "twelve"}, 0}, Reading<qint64>{{"Bool", "true"}, 0},
        Reading<qint64>{{"Empty", ""}, 0}, Reading<qint64>{{"QuotedBlank", "\" 12\""}, 0},
        Reading<qint64>{{"FullWidthDigits", "１２"}, 0}, Reading<qint64>{{"List", "12, 13"}, 0},
        Reading<qint64>{{"Invalid", "@Invalid()"}, 0}),
    byName);

class RealByHand : public LinuxUserDefaultsTest,
                   public ::testing::WithParamInterface<Reading<double>> {};

TEST_P(RealByHand, IsReadStrictly) {
    writeValueByHand(GetParam().value);
    EXPECT_EQ(LinuxUserDefaults(path()).real(key), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Values, RealByHand,
                         ::testing::Values(Reading<double>{{"Plain", "778912345.5"}, 778912345.5},
                                           Reading<double>{{"Integer", "12"}, 12.0},
                                           Reading<double>{{"Negative", "-0.25"}, -0.25},
                                           Reading<double>{{"WithExponent", "1e3"}, 1000.0},
                                           Reading<double>{{"NotANumber", "nan"}, 0.0},
                                           Reading<double>{{"Infinity", "inf"}, 0.0},
                                           Reading<double>{{"MinusInfinity", "-infinity"}, 0.0},
                                           Reading<double>{{"TooLarge", "1e999"}, 0.0},
                                           Reading<double>{{"Word", "soon"}, 0.0},
                                           Reading<double>{{"WithUnit", "1.5s"}, 0.0},
                                           Reading<double>{{"DecimalComma", "12,5"}, 0.0},
                                           Reading<double>{{"Hexadecimal", "0x1p3"}, 0.0},
                                           Reading<double>{{"Empty", ""}, 0.0}),
                         byName);

class TextByHand : public LinuxUserDefaultsTest,
                   public ::testing::WithParamInterface<Reading<std::optional<QString>>> {};

TEST_P(TextByHand, IsReadStrictly) {
    writeValueByHand(GetParam().value);
    EXPECT_EQ(LinuxUserDefaults(path()).text(key), GetParam().result);
}

using TextReading = Reading<std::optional<QString>>;

INSTANTIATE_TEST_SUITE_P(
    Values, TextByHand,
    ::testing::Values(TextReading{{"Plain", "dark"}, u"dark"_qs},
                      TextReading{{"Empty", ""}, QString(u""_qs)},
                      TextReading{{"QuotedComma", "\"dark, light\""}, u"dark, light"_qs},
                      TextReading{{"Number", "12"}, u"12"_qs},
                      TextReading{{"Unicode", "Größe 漢字 😀"}, u"Größe 漢字 😀"_qs},
                      TextReading{{"Escaped", "\\x4e2d\\n"}, u"\u4e2d\n"_qs},
                      TextReading{{"List", "dark, light"}, std::nullopt},
                      TextReading{{"Invalid", "@Invalid()"}, std::nullopt},
                      TextReading{{"Bytes", "@ByteArray(dark)"}, std::nullopt},
                      TextReading{{"Size", "@Size(1 2)"}, std::nullopt}),
    byName);

class TextListByHand : public LinuxUserDefaultsTest,
                       public ::testing::WithParamInterface<Reading<QStringList>> {};

TEST_P(TextListByHand, IsRead) {
    writeValueByHand(GetParam().value);
    EXPECT_EQ(LinuxUserDefaults(path()).textList(key), GetParam().result);
}

using ListReading = Reading<QStringList>;

INSTANTIATE_TEST_SUITE_P(
    Values, TextListByHand,
    ::testing::Values(ListReading{{"Three", "a.b, c.d, e"}, {u"a.b"_qs, u"c.d"_qs, u"e"_qs}},
                      ListReading{{"WithoutBlanks", "a,b"}, {u"a"_qs, u"b"_qs}},
                      ListReading{{"OneElement", "org.example.Mail"}, {u"org.example.Mail"_qs}},
                      ListReading{{"OneElementWithComma", "\"a, b\""}, {u"a, b"_qs}},
                      ListReading{{"ElementWithComma", "\"a, b\", c"}, {u"a, b"_qs, u"c"_qs}},
                      ListReading{{"OneEmptyElement", ""}, {u""_qs}},
                      ListReading{{"TwoEmptyElements", ","}, {u""_qs, u""_qs}},
                      ListReading{{"TextWithNul", "@String(a\\0b), c"},
                                  {QString(u"a"_qs + QChar(u'\0') + u"b"_qs), u"c"_qs}},
                      ListReading{{"BytesAmongTexts", "a, @ByteArray(b)"}, {}},
                      ListReading{{"Nothing", "@Invalid()"}, {}},
                      ListReading{{"Bytes", "@ByteArray(a)"}, {}}),
    byName);

class IntegerListByHand : public LinuxUserDefaultsTest,
                          public ::testing::WithParamInterface<Reading<std::vector<qint64>>> {};

TEST_P(IntegerListByHand, IsReadStrictly) {
    writeValueByHand(GetParam().value);
    EXPECT_EQ(LinuxUserDefaults(path()).integerList(key), GetParam().result);
}

using Integers = Reading<std::vector<qint64>>;

INSTANTIATE_TEST_SUITE_P(
    Values, IntegerListByHand,
    ::testing::Values(Integers{{"Three", "3, 1, 2"}, {3, 1, 2}}, Integers{{"One", "5"}, {5}},
                      Integers{
                          {"Large", "9223372036854775807, -9223372036854775808"},
                          {std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min()}},
                      Integers{{"OneWordAmongThem", "1, two, 3"}, {}},
                      Integers{{"WordAtTheEnd", "1, 2, x"}, {}},
                      Integers{{"OneFractionAmongThem", "1, 2.5"}, {}},
                      Integers{{"OneTooLarge", "1, 9223372036854775808"}, {}},
                      Integers{{"OneEmptyElement", "1,,2"}, {}}, Integers{{"Word", "none"}, {}},
                      Integers{{"Empty", ""}, {}}, Integers{{"Nothing", "@Invalid()"}, {}}),
    byName);

TEST_F(LinuxUserDefaultsTest, ReadsWhatIsMissingAsAbsent) {
    const LinuxUserDefaults defaults(path());
    EXPECT_FALSE(defaults.contains(key));
    EXPECT_FALSE(defaults.boolean(key));
    EXPECT_EQ(defaults.integer(key), 0);
    EXPECT_EQ(defaults.real(key), 0.0);
    EXPECT_EQ(defaults.text(key), std::nullopt);
    EXPECT_THAT(defaults.textList(key), IsEmpty());
    EXPECT_THAT(defaults.integerList(key), IsEmpty());
}

TEST_F(LinuxUserDefaultsTest, WritesNothingByReading) {
    LinuxUserDefaults(path()).integer(key);
    EXPECT_FALSE(QFileInfo::exists(path()));
}

TEST_F(LinuxUserDefaultsTest, ContainsAKeyWhateverItsValue) {
    writeValueByHand("garbage");
    EXPECT_TRUE(LinuxUserDefaults(path()).contains(key));
}

TEST_F(LinuxUserDefaultsTest, TellsKeysApartByCase) {
    writeByHand("[General]\nKey=1\n");
    EXPECT_FALSE(LinuxUserDefaults(path()).contains(key));
}

TEST_F(LinuxUserDefaultsTest, SurvivesAFileThatIsNoSettings) {
    writeByHand(QByteArray("\0\xFF\xFE]][[\n==\n%%zz=\\x\n@Variant(\n", 30).repeated(50));
    LinuxUserDefaults defaults(path());
    EXPECT_EQ(defaults.integer(key), 0);
    defaults.setInteger(key, 5);
    EXPECT_EQ(defaults.integer(key), 5);
}

// On disk before the setter returns: the file as text

TEST_F(LinuxUserDefaultsTest, HasABoolOnDiskAtOnce) {
    LinuxUserDefaults defaults(path());
    defaults.setBoolean(key, true);
    EXPECT_THAT(linesOnDisk(), ElementsAre("[General]", "key=true", ""));
    defaults.setBoolean(key, false);
    EXPECT_THAT(linesOnDisk(), ElementsAre("[General]", "key=false", ""));
}

TEST_F(LinuxUserDefaultsTest, HasAnIntegerOnDiskAtOnce) {
    LinuxUserDefaults defaults(path());
    defaults.setInteger(key, Q_INT64_C(-9223372036854775807));
    EXPECT_THAT(linesOnDisk(), Contains("key=-9223372036854775807"));
}

TEST_F(LinuxUserDefaultsTest, HasANumberOnDiskAtOnce) {
    LinuxUserDefaults defaults(path());
    defaults.setReal(key, 778912345.123456);
    EXPECT_THAT(linesOnDisk(), Contains("key=778912345.123456"));
}

TEST_F(LinuxUserDefaultsTest, HasATextOnDiskAtOnce) {
    LinuxUserDefaults defaults(path());
    defaults.setText(key, u"dark"_qs);
    EXPECT_THAT(linesOnDisk(), Contains("key=dark"));
}

TEST_F(LinuxUserDefaultsTest, HasAListOnDiskAtOnce) {
    LinuxUserDefaults defaults(path());
    defaults.setTextList(key, {u"a.b"_qs, u"c"_qs});
    EXPECT_THAT(linesOnDisk(), Contains("key=a.b, c"));
}

TEST_F(LinuxUserDefaultsTest, HasAListOfIntegersOnDiskAtOnce) {
    LinuxUserDefaults defaults(path());
    defaults.setIntegerList(key, {3, -1, Q_INT64_C(5000000000)});
    EXPECT_THAT(linesOnDisk(), Contains("key=3, -1, 5000000000"));
}

TEST_F(LinuxUserDefaultsTest, HasEachKeyOnDiskWhenTheNextOneIsSet) {
    LinuxUserDefaults defaults(path());
    defaults.setInteger(u"first"_qs, 1);
    EXPECT_THAT(linesOnDisk(), Contains("first=1"));
    defaults.setInteger(u"second"_qs, 2);
    EXPECT_THAT(linesOnDisk(), Contains("first=1"));
    EXPECT_THAT(linesOnDisk(), Contains("second=2"));
}

TEST_F(LinuxUserDefaultsTest, MakesTheFolderOfItsFile) {
    const QString deep = folder.filePath(u"a/b/settings.conf"_qs);
    LinuxUserDefaults defaults(deep);
    defaults.setInteger(key, 1);
    EXPECT_TRUE(QFileInfo(deep).isFile());
}

TEST_F(LinuxUserDefaultsTest, KeepsWhatOthersWroteIntoTheFile) {
    writeByHand("[General]\nother=7\n\n[Window]\nframe=\"1, 2\"\n");
    LinuxUserDefaults defaults(path());
    defaults.setInteger(key, 1);
    EXPECT_THAT(linesOnDisk(), Contains("other=7"));
    EXPECT_THAT(linesOnDisk(), Contains("[Window]"));
    EXPECT_THAT(linesOnDisk(), Contains("frame=\"1, 2\""));
}

TEST_F(LinuxUserDefaultsTest, LeavesNothingBesideItsFile) {
    LinuxUserDefaults defaults(path());
    defaults.setInteger(key, 1);
    EXPECT_THAT(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
                ElementsAre(QFileInfo(path()).fileName()));
}

// What was set comes back, in this run and in the next

class TextRoundTrip : public LinuxUserDefaultsTest,
                      public ::testing::WithParamInterface<QString> {};

TEST_P(TextRoundTrip, GivesTheTextBack) {
    {
        LinuxUserDefaults defaults(path());
        defaults.setText(key, GetParam());
        EXPECT_EQ(defaults.text(key), GetParam());
    }
    EXPECT_EQ(LinuxUserDefaults(pathOfNextRun()).text(key), GetParam());
}

TEST_P(TextRoundTrip, GivesAListOfThisTextBack) {
    {
        LinuxUserDefaults defaults(path());
        defaults.setTextList(key, {GetParam()});
        EXPECT_THAT(defaults.textList(key), ElementsAre(GetParam()));
    }
    EXPECT_THAT(LinuxUserDefaults(pathOfNextRun()).textList(key), ElementsAre(GetParam()));
}

TEST_P(TextRoundTrip, GivesALongerListBack) {
    const QStringList list{u"first"_qs, GetParam(), u""_qs, GetParam(), u"last"_qs};
    {
        LinuxUserDefaults defaults(path());
        defaults.setTextList(key, list);
        EXPECT_EQ(defaults.textList(key), list);
    }
    EXPECT_EQ(LinuxUserDefaults(pathOfNextRun()).textList(key), list);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, TextRoundTrip,
    ::testing::Values(u""_qs, u"plain"_qs, u"NSWindow Frame main"_qs, u" leading"_qs,
                      u"trailing "_qs, u"a,b"_qs, u"a;b=c#d"_qs, u"say \"hi\""_qs,
                      u"back\\slash"_qs, u"ends in \\"_qs, u"line\nbreak\r\ttab"_qs,
                      u"[General]"_qs, u"%41"_qs, u"@Invalid()"_qs, u"@ByteArray(x)"_qs,
                      u"@@twice"_qs, u"@"_qs, u"Größe"_qs, u"漢字 😀 🇮🇹"_qs, u"true"_qs, u"12"_qs,
                      u"12.0"_qs, u"General"_qs, u"x41 \x41"_qs,
                      QString(u"a"_qs + QChar(u'\0') + u"b"_qs), QString(5000, u'x')),
    [](const auto& test) { return "Text" + std::to_string(test.index); });

class KeyRoundTrip : public LinuxUserDefaultsTest, public ::testing::WithParamInterface<QString> {};

TEST_P(KeyRoundTrip, FindsTheValueUnderTheKey) {
    {
        LinuxUserDefaults defaults(path());
        defaults.setInteger(GetParam(), 7);
    }
    const LinuxUserDefaults defaults(pathOfNextRun());
    EXPECT_TRUE(defaults.contains(GetParam()));
    EXPECT_EQ(defaults.integer(GetParam()), 7);
}

INSTANTIATE_TEST_SUITE_P(Keys, KeyRoundTrip,
                         ::testing::Values(u"NSWindow Frame main"_qs, u" blank "_qs, u"a=b"_qs,
                                           u"[General]"_qs, u"General"_qs, u"%41"_qs, u"a,b;c#d"_qs,
                                           u"say \"hi\""_qs, u"Größe 漢字 😀"_qs, u"@Invalid()"_qs),
                         [](const auto& test) { return "Key" + std::to_string(test.index); });

TEST_F(LinuxUserDefaultsTest, TellsAnEmptyListFromAListOfOneEmptyText) {
    {
        LinuxUserDefaults defaults(path());
        defaults.setTextList(u"none"_qs, {});
        defaults.setTextList(u"one"_qs, {u""_qs});
        EXPECT_THAT(defaults.textList(u"none"_qs), IsEmpty());
        EXPECT_THAT(defaults.textList(u"one"_qs), ElementsAre(u""_qs));
    }
    const LinuxUserDefaults reopened(pathOfNextRun());
    EXPECT_TRUE(reopened.contains(u"none"_qs));
    EXPECT_THAT(reopened.textList(u"none"_qs), IsEmpty());
    EXPECT_THAT(reopened.textList(u"one"_qs), ElementsAre(u""_qs));
}

TEST_F(LinuxUserDefaultsTest, GivesIntegersBack) {
    const std::vector<qint64> list{0, -1, std::numeric_limits<qint64>::max(),
                                   std::numeric_limits<qint64>::min()};
    {
        LinuxUserDefaults defaults(path());
        defaults.setIntegerList(u"list"_qs, list);
        defaults.setIntegerList(u"one"_qs, {5});
        defaults.setIntegerList(u"none"_qs, {});
        defaults.setInteger(u"largest"_qs, std::numeric_limits<qint64>::max());
        EXPECT_EQ(defaults.integerList(u"list"_qs), list);
        EXPECT_THAT(defaults.integerList(u"one"_qs), ElementsAre(5));
        EXPECT_THAT(defaults.integerList(u"none"_qs), IsEmpty());
    }
    const LinuxUserDefaults reopened(pathOfNextRun());
    EXPECT_EQ(reopened.integerList(u"list"_qs), list);
    EXPECT_THAT(reopened.integerList(u"one"_qs), ElementsAre(5));
    EXPECT_THAT(reopened.integerList(u"none"_qs), IsEmpty());
    EXPECT_EQ(reopened.integer(u"largest"_qs), std::numeric_limits<qint64>::max());
}

class RealRoundTrip : public LinuxUserDefaultsTest, public ::testing::WithParamInterface<double> {};

TEST_P(RealRoundTrip, GivesTheSameDoubleBack) {
    {
        LinuxUserDefaults defaults(path());
        defaults.setReal(key, GetParam());
        EXPECT_EQ(defaults.real(key), GetParam());
    }
    EXPECT_EQ(LinuxUserDefaults(pathOfNextRun()).real(key), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Values, RealRoundTrip,
                         ::testing::Values(0.0, 1.0, -1.5, 0.1, 1.0 / 3.0, 778912345.123456,
                                           785000000.0, 1e22, 1e-300,
                                           std::numeric_limits<double>::max()),
                         [](const auto& test) { return "Value" + std::to_string(test.index); });

TEST_F(LinuxUserDefaultsTest, GivesBoolsBack) {
    {
        LinuxUserDefaults defaults(path());
        defaults.setBoolean(u"yes"_qs, true);
        defaults.setBoolean(u"no"_qs, false);
        EXPECT_TRUE(defaults.boolean(u"yes"_qs));
        EXPECT_FALSE(defaults.boolean(u"no"_qs));
    }
    const LinuxUserDefaults reopened(pathOfNextRun());
    EXPECT_TRUE(reopened.boolean(u"yes"_qs));
    EXPECT_FALSE(reopened.boolean(u"no"_qs));
    EXPECT_TRUE(reopened.contains(u"no"_qs));
}

TEST_F(LinuxUserDefaultsTest, IsAsStrictInTheRunThatSetTheValue) {
    LinuxUserDefaults defaults(path());
    defaults.setText(key, u"garbage"_qs);
    EXPECT_FALSE(defaults.boolean(key));
    EXPECT_EQ(defaults.integer(key), 0);
    EXPECT_EQ(defaults.real(key), 0.0);
    EXPECT_THAT(defaults.integerList(key), IsEmpty());
    defaults.setReal(key, 12.5);
    EXPECT_EQ(defaults.integer(key), 0);
    defaults.setTextList(key, {u"1"_qs, u"2"_qs});
    EXPECT_EQ(defaults.text(key), std::nullopt);
    EXPECT_EQ(defaults.integer(key), 0);
}

TEST_F(LinuxUserDefaultsTest, NeverGivesANumberThatIsNotFinite) {
    LinuxUserDefaults defaults(path());
    defaults.setReal(key, std::numeric_limits<double>::infinity());
    EXPECT_EQ(defaults.real(key), 0.0);
    defaults.setReal(key, std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(defaults.real(key), 0.0);
}

TEST_F(LinuxUserDefaultsTest, ReplacesAValueOfAnotherType) {
    LinuxUserDefaults defaults(path());
    defaults.setTextList(key, {u"a"_qs, u"b"_qs});
    defaults.setInteger(key, 3);
    EXPECT_EQ(LinuxUserDefaults(pathOfNextRun()).integer(key), 3);
}

} // namespace
} // namespace tessarine
