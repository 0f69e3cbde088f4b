#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <array>

namespace tessarine {

enum class HelpSection {
    howItWorks,
    theHoard,
    searchFilter,
    selectDelete,
    exporting,
    preferences,
    privacy,
    menuBar,
    diagnostics,
    iphone,
    macosSettings,
    tips,
    limitations,
    about,
};

// In the order of the sidebar.
inline constexpr std::array allHelpSections{
    HelpSection::howItWorks,   HelpSection::theHoard,      HelpSection::searchFilter,
    HelpSection::selectDelete, HelpSection::exporting,     HelpSection::preferences,
    HelpSection::privacy,      HelpSection::menuBar,       HelpSection::diagnostics,
    HelpSection::iphone,       HelpSection::macosSettings, HelpSection::tips,
    HelpSection::limitations,  HelpSection::about};

QString rawValue(HelpSection section);
QString iconName(HelpSection section); // a symbol
QString titleKey(HelpSection section);
QString viewFile(HelpSection section); // beside the window's view

// What the views show of a section.
struct HelpSectionEntry {
    Q_GADGET
    QML_VALUE_TYPE(helpSectionEntry)
    Q_PROPERTY(QString rawValue MEMBER rawValue CONSTANT)
    Q_PROPERTY(QString icon MEMBER icon CONSTANT)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString view MEMBER view CONSTANT)

public:
    bool operator==(const HelpSectionEntry&) const = default;

    QString rawValue;
    QString icon;
    QString title;
    QString view;
};

HelpSectionEntry entryOf(HelpSection section);

} // namespace tessarine
