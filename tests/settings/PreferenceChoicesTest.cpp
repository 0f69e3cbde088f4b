#include "settings/PreferenceChoices.h"

#include "settings/PrefTab.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

enum class Tone { good, warning, neutral };

struct RetentionCase {
    const char* name;
    qint64 days;
    int index;
    const char* text;
    Tone tone;
};

class RetentionChoiceTest : public ::testing::TestWithParam<RetentionCase> {};

TEST_P(RetentionChoiceTest, HasItsPlaceItsWordsAndItsNote) {
    const RetentionCase& choice = GetParam();
    EXPECT_EQ(retentionIndex(choice.days), choice.index);
    EXPECT_EQ(retentionText(choice.days), QString::fromUtf8(choice.text));
    const PreferenceNote note = retentionNote(choice.days);
    EXPECT_FALSE(note.text.isEmpty());
    EXPECT_EQ(note.isGood, choice.tone == Tone::good);
    EXPECT_EQ(note.isWarning, choice.tone == Tone::warning);
    EXPECT_EQ(note.symbol, choice.tone == Tone::good      ? u"checkmark.circle.fill"_qs
                           : choice.tone == Tone::warning ? u"exclamationmark.triangle.fill"_qs
                                                          : QString());
}

INSTANTIATE_TEST_SUITE_P(
    Days, RetentionChoiceTest,
    ::testing::Values(RetentionCase{"Forever", 0, 0, "Forever", Tone::good},
                      RetentionCase{"Year", 365, 1, "1 year", Tone::neutral},
                      RetentionCase{"HalfAYear", 180, 2, "6 months", Tone::neutral},
                      RetentionCase{"Ninety", 90, 3, "90 days", Tone::neutral},
                      RetentionCase{"Sixty", 60, 4, "60 days", Tone::neutral},
                      RetentionCase{"Thirty", 30, 5, "30 days", Tone::neutral},
                      RetentionCase{"Fourteen", 14, 6, "14 days", Tone::warning},
                      RetentionCase{"Seven", 7, 7, "7 days", Tone::warning},
                      RetentionCase{"One", 1, -1, "1 day", Tone::warning},
                      RetentionCase{"Fifteen", 15, -1, "15 days", Tone::neutral},
                      RetentionCase{"Negative", -1, -1, "Forever", Tone::good},
                      RetentionCase{"Greatest", std::numeric_limits<qint64>::max(), -1,
                                    "2,147,483,647 days", Tone::neutral}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(RetentionNote, NamesTheDays) {
    EXPECT_TRUE(retentionNote(30).text.contains(u"30 days"_qs));
    EXPECT_TRUE(retentionNote(15).text.contains(u"15 days"_qs));
}

TEST(RetentionTexts, AreAsManyAsTheChoices) {
    EXPECT_EQ(std::size_t(retentionTexts().size()), retentionChoices.size());
    EXPECT_EQ(std::size_t(otpTexts().size()), otpChoices.size());
    EXPECT_EQ(appearanceTexts().size(), appearanceChoices.size());
}

struct OtpCase {
    qint64 hours;
    int index;
    const char* text;
    bool hasNote;
};

class OtpChoiceTest : public ::testing::TestWithParam<OtpCase> {};

TEST_P(OtpChoiceTest, HasItsPlaceItsWordsAndItsNote) {
    EXPECT_EQ(otpIndex(GetParam().hours), GetParam().index);
    EXPECT_EQ(otpText(GetParam().hours), QString::fromUtf8(GetParam().text));
    EXPECT_EQ(!otpNote(GetParam().hours).text.isEmpty(), GetParam().hasNote);
}

INSTANTIATE_TEST_SUITE_P(
    Hours, OtpChoiceTest,
    ::testing::Values(OtpCase{0, 0, "Off", false}, OtpCase{1, 1, "1 hour", true},
                      OtpCase{4, 2, "4 hours", true}, OtpCase{24, 3, "24 hours", true},
                      OtpCase{2, -1, "2 hours", false}, OtpCase{25, -1, "25 hours", false},
                      OtpCase{-3, -1, "Off", false}));

TEST(OtpNote, EachValueHasItsOwn) {
    EXPECT_NE(otpNote(1).text, otpNote(4).text);
    EXPECT_NE(otpNote(4).text, otpNote(24).text);
}

struct TabCase {
    PrefTab tab;
    const char* rawValue;
    const char* icon;
    const char* label;
    int height;
};

class PrefTabTest : public ::testing::TestWithParam<TabCase> {};

TEST_P(PrefTabTest, HasItsNameItsSymbolItsLabelAndItsHeight) {
    EXPECT_EQ(rawValue(GetParam().tab), QString::fromUtf8(GetParam().rawValue));
    EXPECT_EQ(iconName(GetParam().tab), QString::fromUtf8(GetParam().icon));
    EXPECT_EQ(label(GetParam().tab), QString::fromUtf8(GetParam().label));
    EXPECT_EQ(windowHeight(GetParam().tab), GetParam().height);
}

INSTANTIATE_TEST_SUITE_P(
    Tabs, PrefTabTest,
    ::testing::Values(TabCase{PrefTab::general, "general", "gearshape", "General", 533},
                      TabCase{PrefTab::storage, "storage", "cylinder", "Storage", 333},
                      TabCase{PrefTab::privacy, "privacy", "lock.shield", "Privacy", 433},
                      TabCase{PrefTab::permissions, "permissions", "hand.raised.fill",
                              "Permissions", 313}));

} // namespace
} // namespace tessarine
