#include "platform/linux/LinuxUserDefaults.h"
#include "support/Printers.h"
#include "support/SimulatedPlatform.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

// What all user defaults have in common, be they a file or the tests' stand-in for one. A test that
// runs against the stand-in tells as much of the real ones as this suite does.

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// What each getter gives for one key.
struct Readings {
    bool boolean = false;
    qint64 integer = 0;
    double real = 0;
    std::optional<QString> text;
    QStringList textList;
    std::vector<qint64> integerList;

    bool operator==(const Readings&) const = default;
};

void PrintTo(const Readings& readings, std::ostream* out) {
    *out << readings.boolean << ", " << readings.integer << ", " << readings.real << ", \""
         << readings.text.value_or(u"(none)"_qs).toStdString() << "\", ["
         << readings.textList.join(u"; "_qs).toStdString() << "], ["
         << ::testing::PrintToString(readings.integerList) << ']';
}

Readings readingsOf(const UserDefaults& defaults, const QString& key) {
    return {defaults.boolean(key), defaults.integer(key),  defaults.real(key),
            defaults.text(key),    defaults.textList(key), defaults.integerList(key)};
}

// Each of the three that the suite runs over.
class Defaults {
public:
    virtual ~Defaults() = default;
    virtual UserDefaults& now() = 0;
};

class InMemory : public Defaults {
public:
    UserDefaults& now() override { return defaults_; }

private:
    testing::SimulatedDefaults defaults_;
};

class InAFile : public Defaults {
public:
    UserDefaults& now() override { return defaults_; }

private:
    QTemporaryDir folder_;
    LinuxUserDefaults defaults_{folder_.filePath(u"defaults.conf"_qs)};
};

// As each run of the program finds what the one before it has set: under another name, since Qt
// keeps what a process has read or written in its memory.
class InAFileOpenedAnew : public Defaults {
public:
    UserDefaults& now() override {
        const QString before = folder_.filePath(QString::number(runs_));
        const QString path = folder_.filePath(QString::number(++runs_));
        EXPECT_TRUE(runs_ == 1 || QFile::copy(before, path) || !QFile::exists(before));
        defaults_ = std::make_unique<LinuxUserDefaults>(path);
        return *defaults_;
    }

private:
    QTemporaryDir folder_;
    int runs_ = 0;
    std::unique_ptr<LinuxUserDefaults> defaults_;
};

enum class Kind { inMemory, inAFile, inAFileOpenedAnew };

std::unique_ptr<Defaults> make(Kind kind) {
    switch (kind) {
    case Kind::inMemory:
        return std::make_unique<InMemory>();
    case Kind::inAFile:
        return std::make_unique<InAFile>();
    default:
        return std::make_unique<InAFileOpenedAnew>();
    }
}

std::string nameOf(Kind kind) {
    switch (kind) {
    case Kind::inMemory:
        return "InMemory";
    case Kind::inAFile:
        return "InAFile";
    default:
        return "InAFileOpenedAnew";
    }
}

constexpr Kind kinds[] = {Kind::inMemory, Kind::inAFile, Kind::inAFileOpenedAnew};

// One value, and how it reads.

struct Setting {
    const char* name;
    std::function<void(UserDefaults&, const QString&)> set;
    Readings readings;
};

void PrintTo(const Setting& setting, std::ostream* out) {
    *out << setting.name;
}

Setting boolean(const char* name, bool value, Readings readings) {
    return {name, [value](UserDefaults& d, const QString& key) { d.setBoolean(key, value); },
            std::move(readings)};
}

Setting integer(const char* name, qint64 value, Readings readings) {
    return {name, [value](UserDefaults& d, const QString& key) { d.setInteger(key, value); },
            std::move(readings)};
}

Setting real(const char* name, double value, Readings readings) {
    return {name, [value](UserDefaults& d, const QString& key) { d.setReal(key, value); },
            std::move(readings)};
}

Setting text(const char* name, const QString& value, Readings readings) {
    return {name, [value](UserDefaults& d, const QString& key) { d.setText(key, value); },
            std::move(readings)};
}

Setting textList(const char* name, const QStringList& value, Readings readings) {
    return {name, [value](UserDefaults& d, const QString& key) { d.setTextList(key, value); },
            std::move(readings)};
}

Setting integerList(const char* name, const std::vector<qint64>& value, Readings readings) {
    return {name, [value](UserDefaults& d, const QString& key) { d.setIntegerList(key, value); },
            std::move(readings)};
}

constexpr qint64 largest = std::numeric_limits<qint64>::max();
constexpr double infinity = std::numeric_limits<double>::infinity();
const QStringList noTexts;

// In the order of the getters: bool, integer, number, text, list of texts, list of integers.
const Setting settings[] = {
    boolean("True", true, {true, 0, 0, u"true"_qs, {u"true"_qs}, {}}),
    boolean("False", false, {false, 0, 0, u"false"_qs, {u"false"_qs}, {}}),
    integer("Zero", 0, {false, 0, 0, u"0"_qs, {u"0"_qs}, {0}}),
    integer("One", 1, {true, 1, 1, u"1"_qs, {u"1"_qs}, {1}}),
    integer("Negative", -7, {false, -7, -7, u"-7"_qs, {u"-7"_qs}, {-7}}),
    integer("Largest", largest,
            {false,
             largest,
             9223372036854775808.0,
             u"9223372036854775807"_qs,
             {u"9223372036854775807"_qs},
             {largest}}),
    real("Fraction", 12.5, {false, 0, 12.5, u"12.5"_qs, {u"12.5"_qs}, {}}),
    real("WholeNumber", 12.0, {false, 12, 12, u"12"_qs, {u"12"_qs}, {12}}),
    real("SmallNumber", 1e-300, {false, 0, 1e-300, u"1e-300"_qs, {u"1e-300"_qs}, {}}),
    real("Infinity", infinity, {false, 0, 0, u"inf"_qs, {u"inf"_qs}, {}}),
    text("Word", u"dark"_qs, {false, 0, 0, u"dark"_qs, {u"dark"_qs}, {}}),
    text("Empty", u""_qs, {false, 0, 0, u""_qs, {u""_qs}, {}}),
    text("WordTrue", u"true"_qs, {true, 0, 0, u"true"_qs, {u"true"_qs}, {}}),
    text("WordYes", u"yes"_qs, {false, 0, 0, u"yes"_qs, {u"yes"_qs}, {}}),
    text("Digits", u"12"_qs, {false, 12, 12, u"12"_qs, {u"12"_qs}, {12}}),
    text("DigitsWithABlank", u" 12"_qs, {false, 0, 0, u" 12"_qs, {u" 12"_qs}, {}}),
    text("DigitsWithAUnit", u"12 days"_qs, {false, 0, 0, u"12 days"_qs, {u"12 days"_qs}, {}}),
    text("TooLarge", u"9223372036854775808"_qs,
         {false,
          0,
          9223372036854775808.0,
          u"9223372036854775808"_qs,
          {u"9223372036854775808"_qs},
          {}}),
    text("WithACommaInIt", u"a, b"_qs, {false, 0, 0, u"a, b"_qs, {u"a, b"_qs}, {}}),
    text("ThatLooksLikeNone", u"@Invalid()"_qs,
         {false, 0, 0, u"@Invalid()"_qs, {u"@Invalid()"_qs}, {}}),
    textList("NoTexts", {}, {false, 0, 0, std::nullopt, noTexts, {}}),
    textList("ListOfOne", {u"a.b"_qs}, {false, 0, 0, u"a.b"_qs, {u"a.b"_qs}, {}}),
    textList("ListOfTwo", {u"a"_qs, u"b"_qs}, {false, 0, 0, std::nullopt, {u"a"_qs, u"b"_qs}, {}}),
    textList("ListOfDigits", {u"1"_qs, u"2"_qs},
             {false, 0, 0, std::nullopt, {u"1"_qs, u"2"_qs}, {1, 2}}),
    textList("ListOfDigitsAndAWord", {u"1"_qs, u"two"_qs},
             {false, 0, 0, std::nullopt, {u"1"_qs, u"two"_qs}, {}}),
    textList("ListOfDigitsAndAFraction", {u"1"_qs, u"2.5"_qs},
             {false, 0, 0, std::nullopt, {u"1"_qs, u"2.5"_qs}, {}}),
    integerList("NoIntegers", {}, {false, 0, 0, std::nullopt, noTexts, {}}),
    integerList("OneInteger", {5}, {false, 5, 5, u"5"_qs, {u"5"_qs}, {5}}),
    integerList("Integers", {3, -1, 2},
                {false, 0, 0, std::nullopt, {u"3"_qs, u"-1"_qs, u"2"_qs}, {3, -1, 2}}),
};

class SettingContract : public ::testing::TestWithParam<std::tuple<Kind, Setting>> {
protected:
    const std::unique_ptr<Defaults> defaults = make(std::get<Kind>(GetParam()));
    const Setting& setting = std::get<Setting>(GetParam());
};

TEST_P(SettingContract, ReadsByItsForm) {
    setting.set(defaults->now(), u"key"_qs);
    EXPECT_EQ(readingsOf(defaults->now(), u"key"_qs), setting.readings);
    EXPECT_TRUE(defaults->now().contains(u"key"_qs));
}

TEST_P(SettingContract, TakesThePlaceOfAnyOther) {
    defaults->now().setTextList(u"key"_qs, {u"x"_qs, u"y"_qs, u"z"_qs});
    setting.set(defaults->now(), u"key"_qs);
    EXPECT_EQ(readingsOf(defaults->now(), u"key"_qs), setting.readings);
}

TEST_P(SettingContract, LeavesOtherKeysAlone) {
    defaults->now().setInteger(u"other"_qs, 42);
    setting.set(defaults->now(), u"key"_qs);
    EXPECT_EQ(defaults->now().integer(u"other"_qs), 42);
    EXPECT_FALSE(defaults->now().contains(u"third"_qs));
}

INSTANTIATE_TEST_SUITE_P(Each, SettingContract,
                         ::testing::Combine(::testing::ValuesIn(kinds),
                                            ::testing::ValuesIn(settings)),
                         [](const auto& test) {
                             return nameOf(std::get<Kind>(test.param)) +
                                    std::get<Setting>(test.param).name;
                         });

class AbsenceContract : public ::testing::TestWithParam<Kind> {};

TEST_P(AbsenceContract, ReadsWhatIsMissingAsAbsent) {
    const std::unique_ptr<Defaults> defaults = make(GetParam());
    EXPECT_EQ(readingsOf(defaults->now(), u"key"_qs), Readings());
    EXPECT_FALSE(defaults->now().contains(u"key"_qs));
}

TEST_P(AbsenceContract, TellsKeysApartByCase) {
    const std::unique_ptr<Defaults> defaults = make(GetParam());
    defaults->now().setInteger(u"Key"_qs, 1);
    EXPECT_FALSE(defaults->now().contains(u"key"_qs));
}

INSTANTIATE_TEST_SUITE_P(Each, AbsenceContract, ::testing::ValuesIn(kinds),
                         [](const auto& test) { return nameOf(test.param); });

} // namespace
} // namespace tessarine
