#include "diagnosticsview/DiagnosticsLog.h"

#include "diagnostics/DiagnosticsStore.h"
#include "diagnosticsview/ViewColour.h"

namespace tessarine {

DiagnosticsLog::DiagnosticsLog(DiagnosticsStore& store, QObject* parent)
    : QObject(parent)
    , store_(store) {
    connect(&store_, &DiagnosticsStore::entriesChanged, this, &DiagnosticsLog::followStore);
    lines_.follow(store_.entries());
}

void DiagnosticsLog::followStore() {
    const bool showedNothing = showsNothing();
    lines_.follow(store_.entries());
    if (showsNothing() || showedNothing)
        Q_EMIT linesChanged();
}

void DiagnosticsLog::setSearchText(const QString& text) {
    searchText_ = text;
    applyFilter();
}

void DiagnosticsLog::tapPill(int index) {
    const auto tapped = Category(index);
    selectedCategory_ = selectedCategory_ == tapped ? std::nullopt : std::optional(tapped);
    applyFilter();
}

void DiagnosticsLog::applyFilter() {
    lines_.setFilter(selectedCategory_, searchText_);
    Q_EMIT filterChanged();
    Q_EMIT linesChanged();
}

bool DiagnosticsLog::hidesAll() const {
    return showsNothing() && !store_.entries().isEmpty();
}

QList<CategoryPillContent> DiagnosticsLog::categories() {
    QList<CategoryPillContent> pills;
    for (const Category category :
         {Category::ax, Category::usernoted, Category::legacy, Category::hoard, Category::system})
        pills.append({rawValue(category), viewColour(colour(category))});
    return pills;
}

void DiagnosticsLog::clear() {
    store_.clearEntries();
}

} // namespace tessarine
