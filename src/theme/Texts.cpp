#include "theme/Texts.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

#include <utility>

// Qt's macro can't name a resource from inside a namespace.
static void initTextResources() {
    Q_INIT_RESOURCE(texts);
}

namespace tessarine {

namespace {

const QString english = QStringLiteral("en");

QString fileOf(const QString& set, const QString& language) {
    return QStringLiteral(":/texts/%1_%2.qm").arg(set, language);
}

// What is installed, as long as the application object lives.
QList<QPointer<QTranslator>>& installed() {
    static QList<QPointer<QTranslator>> translators;
    return translators;
}

void install(const QString& path) {
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(path))
        qFatal("The program was built without its texts");
    QCoreApplication::installTranslator(translator);
    installed().append(translator);
}

void installLanguage(const QString& language) {
    install(fileOf(QStringLiteral("tessarine"), language));
    install(fileOf(QStringLiteral(TESSARINE_SYSTEM), language));
}

} // namespace

QString languageOf(const QStringList& wanted) {
    initTextResources();
    for (const QString& name : wanted) {
        QString language = name.section(u'-', 0, 0).section(u'_', 0, 0);
        if (QFile::exists(fileOf(QStringLiteral("tessarine"), language)))
            return language;
    }
    return english;
}

void installTexts(const QStringList& wanted) {
    const QString language = languageOf(wanted);
    for (const QPointer<QTranslator>& before : std::exchange(installed(), {}))
        delete before.data();
    installLanguage(english);
    if (language != english)
        installLanguage(language);
}

} // namespace tessarine
