#include "platform/linux/applications/LinuxLoginItem.h"

#include "platform/PrivateFile.h"
#include "platform/linux/applications/DesktopEntries.h"
#include "platform/linux/applications/DesktopEntryFile.h"
#include "platform/linux/applications/ExecLine.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace tessarine {

namespace {

const QString entryName = QStringLiteral("com.zorvek.Tessarine.desktop");

QStringList listOf(const DesktopEntryKeys& keys, const QString& key) {
    return keys.value(key).split(u';', Qt::SkipEmptyParts);
}

bool haveOneInCommon(const QStringList& left, const QStringList& right) {
    return std::any_of(left.begin(), left.end(),
                       [&](const QString& text) { return right.contains(text); });
}

// What settings of desktops write where the user takes an entry out.
bool isSwitchedOff(const DesktopEntryKeys& keys) {
    if (isTrue(keys, QStringLiteral("Hidden")))
        return true;
    for (const char* key : {"X-GNOME-Autostart-enabled", "X-MATE-Autostart-enabled"})
        if (keys.value(QLatin1StringView(key)) == QStringLiteral("false"))
            return true;
    return false;
}

bool isForOtherDesktops(const DesktopEntryKeys& keys, const QStringList& desktops) {
    const QString onlyShowIn = QStringLiteral("OnlyShowIn");
    if (keys.contains(onlyShowIn) && !haveOneInCommon(desktops, listOf(keys, onlyShowIn)))
        return true;
    return haveOneInCommon(desktops, listOf(keys, QStringLiteral("NotShowIn")));
}

bool canStart(const DesktopEntryKeys& keys) {
    DesktopEntry entry;
    entry.exec = keys.value(QStringLiteral("Exec"));
    entry.tryExec = keys.value(QStringLiteral("TryExec"));
    const std::optional<QStringList> command = commandOf(entry);
    return entry.isInstalled() && command &&
           !QStandardPaths::findExecutable(command->first()).isEmpty();
}

LoginItem::Failure failure(const std::error_code& error) {
    return error ? std::optional(QString::fromStdString(error.message())) : std::nullopt;
}

// An image that mounts itself is another path at each start; it tells its own.
QString runningProgram() {
    const QString image = qEnvironmentVariable("APPIMAGE");
    return image.isEmpty() ? QCoreApplication::applicationFilePath() : image;
}

// The desktop passes over it in silence when the program has been removed.
QByteArray entryFor(const QString& command) {
    return QStringLiteral("[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=Tessarine\n"
                          "Exec=%1\n"
                          "TryExec=%2\n"
                          "Icon=com.zorvek.Tessarine\n"
                          "Terminal=false\n"
                          "X-GNOME-Autostart-enabled=true\n")
        .arg(escapedValue(execWord(command)), escapedValue(command))
        .toUtf8();
}

} // namespace

LinuxLoginItem::Setting LinuxLoginItem::settingOfSession() {
    const auto location = QStandardPaths::GenericConfigLocation;
    Setting setting;
    for (const QString& folder : QStandardPaths::standardLocations(location))
        setting.systemFolders << folder + QStringLiteral("/autostart");
    setting.userFolder = setting.systemFolders.takeFirst();
    setting.desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
    return setting;
}

LinuxLoginItem::LinuxLoginItem(Setting setting)
    : setting_(std::move(setting)) {}

LoginItemStatus LinuxLoginItem::status() const {
    const QString entry = QFile::exists(userEntry()) ? userEntry() : systemEntry();
    const auto keys = entry.isEmpty() ? std::nullopt : readDesktopEntryKeys(entry);
    if (!keys || keys->value(QStringLiteral("Type")) != QStringLiteral("Application"))
        return LoginItemStatus::notRegistered; // for the desktop it isn't there
    if (isSwitchedOff(*keys) || isForOtherDesktops(*keys, setting_.desktops))
        return LoginItemStatus::requiresApproval;
    return canStart(*keys) ? LoginItemStatus::enabled : LoginItemStatus::notFound;
}

LoginItem::Failure LinuxLoginItem::registerMainApp() {
    const QString program = runningProgram();
    if (!QFileInfo(program).isExecutable())
        return failure(std::make_error_code(std::errc::no_such_file_or_directory));
    QDir().mkpath(setting_.userFolder); // if that fails, so does the writing
    return failure(replacePrivately(userEntry(), entryFor(lastingCommand(program))));
}

LoginItem::Failure LinuxLoginItem::unregisterMainApp() {
    if (!systemEntry().isEmpty()) { // it can only be hidden
        QDir().mkpath(setting_.userFolder);
        return failure(replacePrivately(userEntry(), "[Desktop Entry]\nHidden=true\n"));
    }
    QFile entry(userEntry());
    const bool isThere = entry.exists() || QFileInfo(entry).isSymLink();
    return !isThere || entry.remove() ? std::nullopt : std::optional(entry.errorString());
}

QString LinuxLoginItem::userEntry() const {
    return setting_.userFolder + u'/' + entryName;
}

QString LinuxLoginItem::systemEntry() const {
    for (const QString& folder : setting_.systemFolders)
        if (QFile::exists(folder + u'/' + entryName))
            return folder + u'/' + entryName;
    return {};
}

QString lastingCommand(const QString& programPath) {
    const QFileInfo program(programPath);
    const QFileInfo found(QStandardPaths::findExecutable(program.fileName()));
    const bool isSame = found.exists() && found.canonicalFilePath() == program.canonicalFilePath();
    return isSame ? program.fileName() : program.absoluteFilePath();
}

} // namespace tessarine
