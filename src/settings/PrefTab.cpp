#include "settings/PrefTab.h"

namespace tessarine {

namespace {

struct TabRecord {
    const char* rawValue;
    const char* icon;
    int height;
};

const TabRecord& recordOf(PrefTab tab) {
    static constexpr std::array<TabRecord, allPrefTabs.size()> records{{
        {"general", "gearshape", 533},
        {"storage", "cylinder", 333},
        {"privacy", "lock.shield", 433},
        {"permissions", "hand.raised.fill", 313},
    }};
    return records.at(std::size_t(tab));
}

} // namespace

QString rawValue(PrefTab tab) {
    return QString::fromLatin1(recordOf(tab).rawValue);
}

QString iconName(PrefTab tab) {
    return QString::fromLatin1(recordOf(tab).icon);
}

QString label(PrefTab tab) {
    switch (tab) {
    case PrefTab::general:
        return qtTrId("prefs.tab.general");
    case PrefTab::storage:
        return qtTrId("prefs.tab.storage");
    case PrefTab::privacy:
        return qtTrId("prefs.tab.privacy");
    case PrefTab::permissions:
        return QStringLiteral("Permissions");
    }
    Q_UNREACHABLE();
}

int windowHeight(PrefTab tab) {
    return recordOf(tab).height;
}

QList<PrefTabFace> prefTabFaces() {
    QList<PrefTabFace> faces;
    for (const PrefTab tab : allPrefTabs)
        faces.append({label(tab), iconName(tab)});
    return faces;
}

} // namespace tessarine
