#include "help/HelpSection.h"

#include <QCoreApplication>

namespace tessarine {

namespace {

struct Row {
    HelpSection section;
    const char* rawValue;
    const char* icon;
    const char* titleKey;
    const char* view;
};

constexpr std::array rows{
    Row{HelpSection::howItWorks, "howItWorks", "bell.and.waves.left.and.right",
        "help.howItWorks.title", "sections/HowItWorksSection.qml"},
    Row{HelpSection::theHoard, "theHoard", "tray.full", "help.hoard.title",
        "sections/TheHoardSection.qml"},
    Row{HelpSection::searchFilter, "searchFilter", "magnifyingglass", "help.search.title",
        "sections/SearchFilterSection.qml"},
    Row{HelpSection::selectDelete, "selectDelete", "checkmark.circle", "help.selectDelete.title",
        "sections/SelectDeleteSection.qml"},
    Row{HelpSection::exporting, "exporting", "square.and.arrow.up", "help.exporting.title",
        "sections/ExportingSection.qml"},
    Row{HelpSection::preferences, "preferences", "gearshape", "help.prefs.title",
        "sections/PreferencesHelpSection.qml"},
    Row{HelpSection::privacy, "privacy", "lock.shield", "help.privacy.title",
        "sections/PrivacySection.qml"},
    Row{HelpSection::menuBar, "menuBar", "menubar.rectangle", "help.menuBar.title",
        "sections/MenuBarSection.qml"},
    Row{HelpSection::diagnostics, "diagnostics", "antenna.radiowaves.left.and.right",
        "help.diagnostics.title", "sections/DiagnosticsHelpSection.qml"},
    Row{HelpSection::iphone, "iphone", "iphone.and.arrow.forward", "help.iphone.title",
        "sections/IPhoneCoverageSection.qml"},
    Row{HelpSection::macosSettings, "macosSettings", "switch.2", "help.macos.title",
        "sections/MacOSSettingsSection.qml"},
    Row{HelpSection::tips, "tips", "lightbulb", "help.tips.title", "sections/TipsSection.qml"},
    Row{HelpSection::limitations, "limitations", "exclamationmark.triangle",
        "help.limitations.title", "sections/KnownLimitationsSection.qml"},
    Row{HelpSection::about, "about", "info.circle", "help.about.title",
        "sections/AboutSection.qml"},
};
static_assert(rows.size() == allHelpSections.size());

const Row& rowOf(HelpSection section) {
    return rows[std::size_t(section)];
}

} // namespace

QString rawValue(HelpSection section) {
    return QLatin1StringView(rowOf(section).rawValue);
}

QString iconName(HelpSection section) {
    return QLatin1StringView(rowOf(section).icon);
}

QString titleKey(HelpSection section) {
    return QLatin1StringView(rowOf(section).titleKey);
}

QString viewFile(HelpSection section) {
    return QLatin1StringView(rowOf(section).view);
}

HelpSectionEntry entryOf(HelpSection section) {
    return {rawValue(section), iconName(section), qtTrId(rowOf(section).titleKey),
            viewFile(section)};
}

} // namespace tessarine
