#include "platform/linux/applications/ApplicationStart.h"

#include "platform/linux/applications/DesktopEntries.h"
#include "platform/linux/applications/ExecLine.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include <dbus/dbus.h>

#include <array>
#include <memory>

namespace tessarine {

namespace {

constexpr int startOverBusMs = 25000; // the bus starts the program meanwhile
constexpr int raiseOverBusMs = 3000;  // it runs already

struct CloseConnection {
    void operator()(DBusConnection* connection) const {
        dbus_connection_close(connection);
        dbus_connection_unref(connection);
    }
};
using Connection = std::unique_ptr<DBusConnection, CloseConnection>;

struct Unref {
    void operator()(DBusMessage* message) const { dbus_message_unref(message); }
};
using Message = std::unique_ptr<DBusMessage, Unref>;

Connection connectTo(const std::string& bus) {
    if (bus.empty())
        return nullptr;
    Connection connection(dbus_connection_open_private(bus.c_str(), nullptr));
    if (!connection)
        return nullptr;
    dbus_connection_set_exit_on_disconnect(connection.get(), FALSE);
    return dbus_bus_register(connection.get(), nullptr) ? std::move(connection) : nullptr;
}

// An empty dictionary as a call's last argument.
void appendNoOptions(DBusMessage& call) {
    DBusMessageIter arguments;
    DBusMessageIter options;
    dbus_message_iter_init_append(&call, &arguments);
    dbus_message_iter_open_container(&arguments, DBUS_TYPE_ARRAY, "{sv}", &options);
    dbus_message_iter_close_container(&arguments, &options);
}

// The call that raises an application, which follows from its entry's id. Null where the id is no
// name for a bus.
Message activation(const DesktopEntry& entry) {
    const QByteArray name = entry.id.toUtf8();
    const QByteArray path = '/' + QByteArray(name).replace('.', '/').replace('-', '_');
    if (!dbus_validate_bus_name(name.constData(), nullptr) ||
        !dbus_validate_path(path.constData(), nullptr))
        return nullptr;
    Message call(dbus_message_new_method_call(name.constData(), path.constData(),
                                              "org.freedesktop.Application", "Activate"));
    dbus_message_set_auto_start(call.get(), entry.isBusActivatable);
    appendNoOptions(*call);
    return call;
}

Message portalCall(const QString& url) {
    Message call(dbus_message_new_method_call("org.freedesktop.portal.Desktop",
                                              "/org/freedesktop/portal/desktop",
                                              "org.freedesktop.portal.OpenURI", "OpenURI"));
    const QByteArray address = url.toUtf8();
    const char* const text = address.constData();
    const char* const window = ""; // none that a question would stand before
    dbus_message_append_args(call.get(), DBUS_TYPE_STRING, &window, DBUS_TYPE_STRING, &text,
                             DBUS_TYPE_INVALID);
    appendNoOptions(*call);
    return call;
}

// False where nobody on the bus answers for the entry. One that isn't made for the bus may answer
// all the same while it runs.
bool activateOverBus(const DesktopEntry& entry, const std::string& bus) {
    const Message call = activation(entry);
    const Connection connection = call ? connectTo(bus) : nullptr;
    if (!connection)
        return false;
    const int patience = entry.isBusActivatable ? startOverBusMs : raiseOverBusMs;
    const Message answer(
        dbus_connection_send_with_reply_and_block(connection.get(), call.get(), patience, nullptr));
    return answer != nullptr;
}

void startByCommand(const DesktopEntry& entry) {
    std::optional<QStringList> command = commandOf(entry);
    if (command && entry.wantsTerminal)
        command = inTerminal(*command);
    if (command)
        startDetached(*command, entry.workingFolder);
}

struct Terminal {
    const char* program;
    const char* beforeCommand; // the option that the command follows, if it takes one
};

// The one that the user chose stands first, then what the desktops bring, then what is common.
constexpr std::array<Terminal, 12> terminals{{{"xdg-terminal-exec", nullptr},
                                              {"x-terminal-emulator", "-e"},
                                              {"kgx", "--"},
                                              {"gnome-terminal", "--"},
                                              {"konsole", "-e"},
                                              {"xfce4-terminal", "-x"},
                                              {"mate-terminal", "-x"},
                                              {"foot", nullptr},
                                              {"kitty", nullptr},
                                              {"alacritty", "-e"},
                                              {"urxvt", "-e"},
                                              {"xterm", "-e"}}};

// What is meant for this process alone: the token of its own start.
QProcessEnvironment environmentOfChild() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DESKTOP_STARTUP_ID"));
    environment.remove(QStringLiteral("XDG_ACTIVATION_TOKEN"));
    return environment;
}

} // namespace

void startApplication(const DesktopEntry& entry, const std::string& sessionBus) {
    if (!activateOverBus(entry, sessionBus))
        startByCommand(entry);
}

void openWithDesktop(const QString& url) {
    if (!startDetached({QStringLiteral("xdg-open"), url}))
        startDetached({QStringLiteral("gio"), QStringLiteral("open"), url});
}

bool openWithPortal(const QString& url, const std::string& sessionBus) {
    const Connection connection = connectTo(sessionBus);
    if (!connection)
        return false;
    const Message answer(dbus_connection_send_with_reply_and_block(
        connection.get(), portalCall(url).get(), startOverBusMs, nullptr));
    return answer != nullptr;
}

std::optional<QStringList> inTerminal(const QStringList& command) {
    for (const Terminal& terminal : terminals) {
        const QString program = QString::fromLatin1(terminal.program);
        if (QStandardPaths::findExecutable(program).isEmpty())
            continue;
        QStringList words{program};
        if (terminal.beforeCommand)
            words << QString::fromLatin1(terminal.beforeCommand);
        return words + command;
    }
    return std::nullopt;
}

bool startDetached(const QStringList& command, const QString& folder) {
    QProcess process;
    process.setProgram(command.first());
    process.setArguments(command.sliced(1));
    process.setWorkingDirectory(folder.isEmpty() ? QDir::homePath() : folder);
    process.setProcessEnvironment(environmentOfChild());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

} // namespace tessarine
