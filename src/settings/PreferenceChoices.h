#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <array>

namespace tessarine {

// The values that the preferences offer, and what is said of those that are stored, which may be
// any. Free of state.

inline constexpr std::array<qint64, 8> retentionChoices{0, 365, 180, 90, 60, 30, 14, 7}; // days
inline constexpr std::array<qint64, 4> otpChoices{0, 1, 4, 24};                          // hours
inline const QStringList appearanceChoices{QStringLiteral("auto"), QStringLiteral("light"),
                                           QStringLiteral("dark")};

// The line below a choice: a text, perhaps a symbol, and what it is like.
struct PreferenceNote {
    Q_GADGET
    QML_VALUE_TYPE(preferenceNote)
    Q_PROPERTY(QString text MEMBER text CONSTANT)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(bool isGood MEMBER isGood CONSTANT)
    Q_PROPERTY(bool isWarning MEMBER isWarning CONSTANT)

public:
    QString text; // empty: there is no note
    QString symbol;
    bool isGood = false;
    bool isWarning = false;

    bool operator==(const PreferenceNote&) const = default;
};

// The texts to choose from, in the order of the choices above.
QStringList retentionTexts();
QStringList otpTexts();
QStringList appearanceTexts();

// Where a value stands among them; -1 for one that is not offered.
int retentionIndex(qint64 days);
int otpIndex(qint64 hours);

// A value in words, also one that is not offered.
QString retentionText(qint64 days);
QString otpText(qint64 hours);

PreferenceNote retentionNote(qint64 days);
PreferenceNote otpNote(qint64 hours); // for the values that are offered, 0 apart

} // namespace tessarine
