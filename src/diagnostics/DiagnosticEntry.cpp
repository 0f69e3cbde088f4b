#include "diagnostics/DiagnosticEntry.h"

#include "shared/Text.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace tessarine {

namespace {

struct LevelStyle {
    const char16_t* glyph;
    const char16_t* colour; // null: the system's secondary colour
};

constexpr std::array<LevelStyle, 4> levelStyles{{
    {u"·", nullptr},
    {u"●", u"81C784"},
    {u"◆", u"FFB74D"},
    {u"▶", u"4FC3F7"},
}};

struct CategoryStyle {
    const char16_t* rawValue;
    const char16_t* colour;
};

constexpr std::array<CategoryStyle, 5> categoryStyles{{
    {u"AX", u"4FC3F7"},
    {u"DB", u"81C784"},
    {u"Legacy", u"FFB74D"},
    {u"Hoard", u"CE93D8"},
    {u"System", u"90A4AE"},
}};

const LevelStyle& style(Level level) {
    return levelStyles.at(static_cast<std::size_t>(level));
}

const CategoryStyle& style(Category category) {
    return categoryStyles.at(static_cast<std::size_t>(category));
}

// Both in their caseless form. A letter without its marks is another letter. (A collator would find
// more than was asked for: to it "²" is "2" and "か" is "カ", whatever their case.)
bool contains(const QString& text, const QString& part) {
    for (qsizetype at = 0; (at = text.indexOf(part, at)) >= 0; ++at) {
        const qsizetype end = at + part.size();
        if (end == text.size() || !text[end].isMark())
            return true;
    }
    return false;
}

} // namespace

QString glyph(Level level) {
    return QString::fromUtf16(style(level).glyph);
}

std::optional<Colour> colour(Level level) {
    const char16_t* const hex = style(level).colour;
    return hex ? std::optional(colourFromHex(hex)) : std::nullopt;
}

QString rawValue(Category category) {
    return QString::fromUtf16(style(category).rawValue);
}

Colour colour(Category category) {
    return colourFromHex(style(category).colour);
}

QList<DiagnosticEntry> filteredEntries(const QList<DiagnosticEntry>& entries,
                                       std::optional<Category> selectedCategory,
                                       const QString& searchText) {
    const QString searched = caselessForm(searchText);
    const auto passes = [&](const DiagnosticEntry& entry) {
        if (selectedCategory && entry.category != *selectedCategory)
            return false;
        return searchText.isEmpty() || contains(caselessForm(entry.message), searched) ||
               contains(caselessForm(rawValue(entry.category)), searched);
    };
    QList<DiagnosticEntry> passed;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(passed), passes);
    return passed;
}

} // namespace tessarine
