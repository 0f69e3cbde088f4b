#pragma once

#include <QFont>
#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// How wide several texts are in one font, for something that shall be as wide as the widest of them
// although it builds only what is in sight.
class TextWidths : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QString> texts MEMBER texts_ NOTIFY changed REQUIRED)
    Q_PROPERTY(QFont font MEMBER font_ NOTIFY changed REQUIRED)
    Q_PROPERTY(int widest READ widest NOTIFY changed)

public:
    // In points, rounded up; 0 without texts.
    int widest() const;

Q_SIGNALS:
    void changed();

private:
    QStringList texts_;
    QFont font_;
};

} // namespace tessarine
