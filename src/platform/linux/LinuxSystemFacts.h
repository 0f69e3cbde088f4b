#pragma once

#include "platform/SystemFacts.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace tessarine {

// The distribution by its pretty name (os-release) and the kernel.
class LinuxSystemFacts : public SystemFacts {
public:
    // The first of the files that can be read describes the distribution.
    explicit LinuxSystemFacts(QStringList descriptions = standardDescriptions());

    QString programVersion() const override;
    QString programBuild() const override;
    QString systemLabel() const override;
    QString systemVersion() const override;

    static QStringList standardDescriptions();

private:
    QStringList descriptions_;
};

// The value of PRETTY_NAME in a file of shell assignments, without quotes and escapes, on one line;
// empty where it has none.
QString prettyName(const QByteArray& description);

} // namespace tessarine
