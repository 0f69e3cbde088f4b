#pragma once

#include "shared/Colour.h"
#include "shared/FreshId.h"

#include <QList>
#include <QString>

#include <optional>

namespace tessarine {

enum class Level { info, success, warning, activity };

enum class Category { ax, usernoted, legacy, hoard, system };

// One line of the live log.
struct DiagnosticEntry {
    QUuid id = freshId();
    double timestamp = 0; // of the logging, seconds since the reference date
    Level level = Level::info;
    Category category = Category::system;
    QString message;

    bool operator==(const DiagnosticEntry&) const = default;
};

QString glyph(Level level);                // the sign before a line: "·", "●", "◆", "▶"
std::optional<Colour> colour(Level level); // none for info: the system's secondary colour

QString rawValue(Category category); // what filters and reports show: "AX", "DB" ...
Colour colour(Category category);

// The entries of the category, if one is chosen, that hold the text, if there is one, in their
// message or in their category's raw value. Neither letter case, as the user's language has it, nor
// the composition of characters matters. Keeps the order.
QList<DiagnosticEntry> filteredEntries(const QList<DiagnosticEntry>& entries,
                                       std::optional<Category> selectedCategory,
                                       const QString& searchText);

} // namespace tessarine
