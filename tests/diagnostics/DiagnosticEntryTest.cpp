#include "diagnostics/DiagnosticEntry.h"

#include "support/Printers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
    EXPECT_THAT(passing(std::nullopt, u"GRÖSSE"_qs.left(3)), ElementsAre(u"Größe geändert"_qs));
    EXPECT_THAT(passing(std::nullopt, u"sYsTeM"_qs), ElementsAre(u"Größe geändert"_qs));
}

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
