#include "onboarding/Agreement.h"

#include "theme/Texts.h"

#include <QFile>

// Qt's macro can't name a resource from inside a namespace.
static void initAgreementResources() {
    Q_INIT_RESOURCE(agreement);
}

namespace tessarine {

namespace {

QString textIn(const QString& language) {
    QFile file(QStringLiteral(":/agreement/agreement_%1.txt").arg(language));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
}

} // namespace

QString agreementText(const QStringList& languages) {
    initAgreementResources();
    const QString text = textIn(languageOf(languages));
    return text.isEmpty() ? textIn(QStringLiteral("en")) : text;
}

} // namespace tessarine
