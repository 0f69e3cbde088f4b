#include "platform/contracts/Subjects.h"
#include "support/Numbers.h"
#include "support/Printers.h"

#include <QUuid>

#include <gtest/gtest.h>

#include <limits>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

constexpr qint64 least = std::numeric_limits<qint64>::min();
constexpr qint64 most = std::numeric_limits<qint64>::max();

// A key of its own for each test, since a system's defaults may outlive it. What is set reads the
// same at once and by whoever opens the defaults next.
class UserDefaultsContract : public ::testing::TestWithParam<testing::Subject<UserDefaults>> {
protected:
    template <typename Getter, typename Value>
    void expect(const Getter& get, const Value& value) {
        EXPECT_EQ(get(*defaults), value);
        EXPECT_EQ(get(*GetParam().make()), value) << "for the next one to open them";
        EXPECT_TRUE(defaults->contains(key));
        EXPECT_FALSE(defaults->hasUnsavedValues());
    }

    const QString key = u"test-"_qs + QUuid::createUuid().toString(QUuid::WithoutBraces);
    const std::shared_ptr<UserDefaults> defaults = GetParam().make();
};

TEST_P(UserDefaultsContract, AMissingValueIsAbsent) {
    EXPECT_FALSE(defaults->contains(key));
    EXPECT_FALSE(defaults->boolean(key));
    EXPECT_EQ(defaults->integer(key), 0);
    EXPECT_EQ(defaults->real(key), 0);
    EXPECT_EQ(defaults->text(key), std::nullopt);
    EXPECT_EQ(defaults->textList(key), QStringList());
    EXPECT_EQ(defaults->integerList(key), std::vector<qint64>());
}

TEST_P(UserDefaultsContract, ABooleanReadsAsItWasSet) {
    for (const bool value : {true, false, true}) {
        defaults->setBoolean(key, value);
        expect([&](const UserDefaults& d) { return d.boolean(key); }, value);
    }
}

TEST_P(UserDefaultsContract, AnIntegerReadsAsItWasSet) {
    for (const qint64 value : {qint64(0), qint64(1), qint64(-7), qint64(1) << 53, least, most}) {
        defaults->setInteger(key, value);
        expect([&](const UserDefaults& d) { return d.integer(key); }, value);
    }
}

TEST_P(UserDefaultsContract, ANumberReadsAsItWasSet) {
    for (const double value : {0.0, 0.1, -2.5, 785000000.123456, 1e300, 5e-324}) {
        defaults->setReal(key, value);
        expect([&](const UserDefaults& d) { return d.real(key); }, value);
    }
}

TEST_P(UserDefaultsContract, ANumberThatIsNotFiniteReadsAsNone) {
    for (const double value :
         {testing::infinity, -testing::infinity, std::numeric_limits<double>::quiet_NaN()}) {
        defaults->setReal(key, value);
        EXPECT_EQ(defaults->real(key), 0);
    }
}

TEST_P(UserDefaultsContract, ATextReadsAsItWasSet) {
    for (const QString& value :
         {u"dark"_qs, u""_qs, u"a, b; \"c\" \\ %1 = [d]"_qs, u"two\nlines\tand more "_qs,
          u" blanks "_qs, u"Zoë 漢字 👩‍👩‍👧"_qs, u"@Invalid()"_qs}) {
        defaults->setText(key, value);
        expect([&](const UserDefaults& d) { return d.text(key); }, std::optional(value));
    }
}

TEST_P(UserDefaultsContract, AListOfTextsReadsAsItWasSet) {
    for (const QStringList& value :
         {QStringList(), QStringList{u"com.example.one"_qs}, QStringList{u"a"_qs, u"b"_qs},
          QStringList{u"a, b"_qs, u""_qs, u"1"_qs, u"Zoë 漢字"_qs}}) {
        defaults->setTextList(key, value);
        expect([&](const UserDefaults& d) { return d.textList(key); }, value);
    }
}

TEST_P(UserDefaultsContract, AListOfIntegersReadsAsItWasSet) {
    for (const std::vector<qint64>& value :
         {std::vector<qint64>(), std::vector<qint64>{5}, std::vector<qint64>{3, -1, 2},
          std::vector<qint64>{least, most, 0}}) {
        defaults->setIntegerList(key, value);
        expect([&](const UserDefaults& d) { return d.integerList(key); }, value);
    }
}

TEST_P(UserDefaultsContract, AValueOfAnotherTypeTakesThePlaceOfTheOneBefore) {
    defaults->setTextList(key, {u"x"_qs, u"y"_qs});
    defaults->setInteger(key, 30);
    expect([&](const UserDefaults& d) { return d.integer(key); }, 30);
    defaults->setBoolean(key, true);
    expect([&](const UserDefaults& d) { return d.boolean(key); }, true);
}

TEST_P(UserDefaultsContract, ATextThatIsNoNumberIsNoneEverywhere) {
    defaults->setText(key, u"dark"_qs);
    EXPECT_FALSE(defaults->boolean(key));
    EXPECT_EQ(defaults->integer(key), 0);
    EXPECT_EQ(defaults->real(key), 0);
    EXPECT_EQ(defaults->integerList(key), std::vector<qint64>());
}

TEST_P(UserDefaultsContract, AListWithAWordInItIsNoneOfIntegers) {
    defaults->setTextList(key, {u"1"_qs, u"two"_qs});
    EXPECT_EQ(defaults->integerList(key), std::vector<qint64>());
}

TEST_P(UserDefaultsContract, KeysDifferByCase) {
    defaults->setInteger(key, 1);
    EXPECT_FALSE(defaults->contains(key.toUpper()));
}

INSTANTIATE_TEST_SUITE_P(Each, UserDefaultsContract,
                         ::testing::ValuesIn(testing::userDefaultsSubjects()),
                         [](const auto& test) { return test.param.name; });

} // namespace
} // namespace tessarine
