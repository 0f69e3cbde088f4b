#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <array>

namespace tessarine {

// The tabs of the preferences, in their order.
enum class PrefTab { general, storage, privacy, permissions };

inline constexpr std::array allPrefTabs{PrefTab::general, PrefTab::storage, PrefTab::privacy,
                                        PrefTab::permissions};

QString rawValue(PrefTab tab);
QString iconName(PrefTab tab); // a symbol
QString label(PrefTab tab);    // in the user's language, as far as it has one
int windowHeight(PrefTab tab); // of the window's content, in points

// What the tab bar shows of one.
struct PrefTabFace {
    Q_GADGET
    QML_VALUE_TYPE(prefTabFace)
    Q_PROPERTY(QString label MEMBER label CONSTANT)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)

public:
    QString label;
    QString symbol;
};

QList<PrefTabFace> prefTabFaces();

} // namespace tessarine
