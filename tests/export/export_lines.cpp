// Exports what it reads, for judges of another kind to look at the file.
//
//   export_lines FORMAT FILE [PRIVATE_ID...] <LINES
//
// Each line is a notification as a JSON object: "app", "id", "title", "body" and "time", in seconds
// since the reference date. The format is "txt", "csv" or "pdf". With ODD_DESKTOP_FONT in the
// environment the desktop's font is one that nobody would print with; with INCLUDE_PRIVATE private
// content is included.

#include "export/ExportManager.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"

#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <cstdio>

namespace {

using namespace tessarine;

CapturedNotification parsed(const QByteArray& line) {
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    CapturedNotification notification;
    notification.appName = object[QStringLiteral("app")].toString();
    notification.appBundleId = object[QStringLiteral("id")].toString();
    notification.title = object[QStringLiteral("title")].toString();
    notification.body = object[QStringLiteral("body")].toString();
    notification.timestamp = object[QStringLiteral("time")].toDouble();
    return notification;
}

NotificationList readInput() {
    QFile input;
    NotificationList list;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return list;
    const QList<QByteArray> lines = input.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (!line.isEmpty())
            list.push_back(parsed(line));
    }
    return list;
}

ExportResult exported(const ExportManager& manager, const QString& format, const QString& file) {
    const NotificationList list = readInput();
    const bool includePrivate = qEnvironmentVariableIsSet("INCLUDE_PRIVATE");
    if (format == fileExtension(ExportFormat::txt))
        return manager.exportTXT(list, includePrivate, file);
    if (format == fileExtension(ExportFormat::csv))
        return manager.exportCSV(list, includePrivate, file);
    if (format == fileExtension(ExportFormat::pdf))
        return manager.exportPDF(list, includePrivate, file);
    return ExportResult::failure(QStringLiteral("unknown format"));
}

QFont oddFont() {
    QFont font(QStringLiteral("DejaVu Serif"), 30, QFont::Black, true);
    font.setStyleName(QStringLiteral("Bold Italic"));
    font.setStretch(QFont::Condensed);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 5);
    font.setWordSpacing(5);
    font.setCapitalization(QFont::AllUppercase);
    font.setUnderline(true);
    font.setOverline(true);
    font.setStrikeOut(true);
    return font;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (qEnvironmentVariableIsSet("ODD_DESKTOP_FONT"))
        QGuiApplication::setFont(oddFont());
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 3)
        return 2;
    const QTemporaryDir home;
    testing::SimulatedPlatform system(home.path());
    PreferencesStore preferences(system.defaults);
    preferences.setPrivacyApps({arguments.begin() + 3, arguments.end()});
    testing::SimulatedSavePanel panel;
    const ExportManager manager({preferences, system.scheduler, panel});
    const ExportResult result = exported(manager, arguments[1], arguments[2]);
    if (!result.isSuccess())
        std::fprintf(stderr, "%s\n", qPrintable(result.failureText()));
    return result.isSuccess() ? 0 : 1;
}
