#include "diagnostics/DiagnosticEntry.h"

#include "support/Printers.h"

#include <QLocale>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

Colour bytes(int red, int green, int blue) {
    return {red / 255.0, green / 255.0, blue / 255.0};
}

TEST(DiagnosticLevel, HasItsGlyph) {
    EXPECT_EQ(glyph(Level::info), u"\u00B7"_qs);
    EXPECT_EQ(glyph(Level::success), u"\u25CF"_qs);
    EXPECT_EQ(glyph(Level::warning), u"\u25C6"_qs);
    EXPECT_EQ(glyph(Level::activity), u"\u25B6"_qs);
}

TEST(DiagnosticLevel, HasItsColour) {
    EXPECT_EQ(colour(Level::info), std::nullopt);
    EXPECT_EQ(colour(Level::success), bytes(0x81, 0xC7, 0x84));
    EXPECT_EQ(colour(Level::warning), bytes(0xFF, 0xB7, 0x4D));
    EXPECT_EQ(colour(Level::activity), bytes(0x4F, 0xC3, 0xF7));
}

TEST(DiagnosticCategory, HasItsRawValue) {
    EXPECT_EQ(rawValue(Category::ax), u"AX"_qs);
    EXPECT_EQ(rawValue(Category::usernoted), u"DB"_qs);
    EXPECT_EQ(rawValue(Category::legacy), u"Legacy"_qs);
    EXPECT_EQ(rawValue(Category::hoard), u"Hoard"_qs);
    EXPECT_EQ(rawValue(Category::system), u"System"_qs);
}

TEST(DiagnosticCategory, HasItsColour) {
    EXPECT_EQ(colour(Category::ax), bytes(0x4F, 0xC3, 0xF7));
    EXPECT_EQ(colour(Category::usernoted), bytes(0x81, 0xC7, 0x84));
    EXPECT_EQ(colour(Category::legacy), bytes(0xFF, 0xB7, 0x4D));
    EXPECT_EQ(colour(Category::hoard), bytes(0xCE, 0x93, 0xD8));
    EXPECT_EQ(colour(Category::system), bytes(0x90, 0xA4, 0xAE));
}

class FilteredEntries : public ::testing::Test {
protected:
    static DiagnosticEntry entry(Category category, const QString& message) {
        DiagnosticEntry made;
        made.category = category;
        made.message = message;
        return made;
    }

    QStringList passing(std::optional<Category> category, const QString& searchText) const {
        QStringList messages;
        for (const DiagnosticEntry& passed : filteredEntries(entries, category, searchText))
            messages.append(passed.message);
        return messages;
    }

    QList<DiagnosticEntry> entries{
        entry(Category::usernoted, u"3 new records"_qs),
        entry(Category::ax, u"banner scanned"_qs),
        entry(Category::usernoted, u"poll of the legacy kind"_qs),
        entry(Category::legacy, u"watching"_qs),
        entry(Category::system, u"Größe geändert"_qs),
    };
};

TEST_F(FilteredEntries, AreAllInTheirOrderWithoutCategoryAndSearch) {
    EXPECT_EQ(filteredEntries(entries, std::nullopt, QString()), entries);
}

TEST_F(FilteredEntries, AreThoseOfTheCategory) {
    EXPECT_THAT(passing(Category::usernoted, QString()),
                ElementsAre(u"3 new records"_qs, u"poll of the legacy kind"_qs));
}

TEST_F(FilteredEntries, AreNoneForACategoryWithoutEntries) {
    EXPECT_THAT(passing(Category::hoard, QString()), IsEmpty());
}

TEST_F(FilteredEntries, AreThoseThatHoldTheTextInTheirMessage) {
    EXPECT_THAT(passing(std::nullopt, u"scan"_qs), ElementsAre(u"banner scanned"_qs));
}

TEST_F(FilteredEntries, AreFoundByTheRawValueOfTheirCategory) {
    EXPECT_THAT(passing(std::nullopt, u"DB"_qs),
                ElementsAre(u"3 new records"_qs, u"poll of the legacy kind"_qs));
}

TEST_F(FilteredEntries, AreFoundByMessageOrByRawValue) {
    EXPECT_THAT(passing(std::nullopt, u"legacy"_qs),
                ElementsAre(u"poll of the legacy kind"_qs, u"watching"_qs));
}

TEST_F(FilteredEntries, AreFoundWhateverTheLetterCase) {
    EXPECT_THAT(passing(std::nullopt, u"BANNER"_qs), ElementsAre(u"banner scanned"_qs));
    EXPECT_THAT(passing(std::nullopt, u"sYsTeM"_qs), ElementsAre(u"Größe geändert"_qs));
}

// Whether the one text is found in the other, of an entry whose category holds neither.
struct SearchCase {
    const char* name;
    QString message;
    QString searchText;
    bool isFound;
};

class LogSearch : public ::testing::TestWithParam<SearchCase> {
protected:
    bool isFound() const {
        DiagnosticEntry entry;
        entry.message = GetParam().message;
        return !filteredEntries({entry}, std::nullopt, GetParam().searchText).isEmpty();
    }
};

TEST_P(LogSearch, FindsWhatDiffersInCaseAndCompositionAlone) {
    EXPECT_EQ(isFound(), GetParam().isFound);
}

INSTANTIATE_TEST_SUITE_P(
    Each, LogSearch,
    ::testing::Values(
        SearchCase{"SharpS", u"Größe geändert"_qs, u"GRÖSSE"_qs, true},
        SearchCase{"SharpSOfCapitals", u"MASSE"_qs, u"maße"_qs, true},
        SearchCase{"CapitalSharpS", u"STRAẞE"_qs, u"straße"_qs, true},
        SearchCase{"DecomposedInTheMessage", u"Gro\u0308ße"_qs, u"größe"_qs, true},
        SearchCase{"DecomposedInTheSearch", u"Größe"_qs, u"GRO\u0308SSE"_qs, true},
        SearchCase{"OtherOrderOfMarks", u"a\u0323\u0302"_qs, u"\u00C2\u0323"_qs, true},
        SearchCase{"Ligature", u"office"_qs, u"O\uFB03CE"_qs, true},
        SearchCase{"FinalSigma", u"ΟΔΟΣ"_qs, u"οδος"_qs, true},
        SearchCase{"IotaBelow", u"\u1FB3"_qs, u"ΑΙ"_qs, true},
        SearchCase{"ACapitalThatNeverComposes", u"\u0390"_qs, u"\u03AA\u0301"_qs, true},
        SearchCase{"Cyrillic", u"ПРИВЕТ"_qs, u"привет"_qs, true},
        SearchCase{"BeyondTheBasicPlane", u"\U00010400"_qs, u"\U00010428"_qs, true},
        SearchCase{"HangulOfJamo", u"\u1112\u1161\u11AB"_qs, u"\uD55C"_qs, true},
        SearchCase{"ALetterLaterWithoutItsMark", u"x\u0302 and x"_qs, u"X"_qs, true},
        SearchCase{"NotALetterWithoutItsMark", u"Gro\u0308ße"_qs, u"gro"_qs, false},
        SearchCase{"NotALetterWithoutAMarkThatNeverComposes", u"x\u0302"_qs, u"x"_qs, false},
        SearchCase{"NotALetterWithItsMark", u"Grosse"_qs, u"größe"_qs, false},
        SearchCase{"NoSuperscript", u"m2"_qs, u"m²"_qs, false},
        SearchCase{"NoOtherSyllabary", u"か"_qs, u"カ"_qs, false},
        SearchCase{"NoWidth", u"abc"_qs, u"ａｂｃ"_qs, false},
        SearchCase{"DottedI", u"INFO"_qs, u"info"_qs, true},
        SearchCase{"NotDotlessI", u"INFO"_qs, u"ınfo"_qs, false}),
    [](const auto& test) { return std::string(test.param.name); });

// The user's language, for the length of a scope.
class LanguageScope {
public:
    explicit LanguageScope(QLocale::Language language) { QLocale::setDefault(QLocale(language)); }
    LanguageScope(const LanguageScope&) = delete;
    LanguageScope& operator=(const LanguageScope&) = delete;
    ~LanguageScope() { QLocale::setDefault(before_); }

private:
    QLocale before_;
};

class TurkicLogSearch : public LogSearch {
protected:
    LanguageScope turkish{QLocale::Turkish};
};

TEST_P(TurkicLogSearch, TellsTheTwoLettersIApart) {
    EXPECT_EQ(isFound(), GetParam().isFound);
}

INSTANTIATE_TEST_SUITE_P(
    Each, TurkicLogSearch,
    ::testing::Values(SearchCase{"Dotless", u"KIRIK"_qs, u"kırık"_qs, true},
                      SearchCase{"Dotted", u"İZİN"_qs, u"izin"_qs, true},
                      SearchCase{"DottedDecomposed", u"I\u0307zin"_qs, u"izin"_qs, true},
                      SearchCase{"DottedIsNotDotless", u"izin"_qs, u"IZIN"_qs, false},
                      SearchCase{"OthersAsEverywhere", u"Größe"_qs, u"GRÖSSE"_qs, true}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_F(FilteredEntries, MustPassBothTests) {
    EXPECT_THAT(passing(Category::usernoted, u"legacy"_qs),
                ElementsAre(u"poll of the legacy kind"_qs));
    EXPECT_THAT(passing(Category::ax, u"records"_qs), IsEmpty());
}

TEST_F(FilteredEntries, AreSearchedForABlankAsForAnyText) {
    EXPECT_THAT(passing(Category::legacy, u" "_qs), IsEmpty());
    EXPECT_THAT(passing(Category::ax, u" "_qs), ElementsAre(u"banner scanned"_qs));
}

TEST(DiagnosticEntryRecord, HasAFreshIdentity) {
    EXPECT_NE(DiagnosticEntry().id, DiagnosticEntry().id);
}

} // namespace
} // namespace tessarine
