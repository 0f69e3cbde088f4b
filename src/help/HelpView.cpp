#include "help/HelpView.h"

#include <QCoreApplication>

#include <utility>

namespace tessarine {

namespace {

QList<HelpSectionEntry> allEntries() {
    QList<HelpSectionEntry> entries;
    for (const HelpSection section : allHelpSections)
        entries << entryOf(section);
    return entries;
}

} // namespace

HelpView::HelpView(Services services)
    : services_(std::move(services))
    , sections_(allEntries())
    , walkthrough_(services_.scheduler) {}

void HelpView::setSelectedSection(HelpSection section) {
    endSearch();
    if (std::exchange(selectedSection_, section) == section)
        return;
    Q_EMIT selectedSectionChanged();
    changePages();
}

void HelpView::setSelectedIndex(int index) {
    if (index >= 0 && index < int(allHelpSections.size()))
        setSelectedSection(allHelpSections[std::size_t(index)]);
}

QList<HelpSectionEntry> HelpView::shownSections() const {
    return isSearching() ? sections_ : QList{sections_[selectedIndex()]};
}

void HelpView::setSearchText(const QString& text) {
    if (searchText_ == text)
        return;
    const bool wasSearching = isSearching();
    searchText_ = text;
    Q_EMIT searchTextChanged();
    if (isSearching() != wasSearching)
        changePages();
}

// A view that is given up lives on for a moment; nothing may move on it.
void HelpView::changePages() {
    walkthrough_.stop();
    Q_EMIT shownSectionsChanged();
}

bool HelpView::endSearch() {
    const bool wasThere = !searchText_.isEmpty();
    setSearchText({});
    return wasThere;
}

QString HelpView::version() const {
    return QCoreApplication::applicationVersion();
}

void HelpView::showPrivacyNotice() const {
    if (services_.showPrivacyNotice)
        services_.showPrivacyNotice();
}

} // namespace tessarine
