#include "platform/linux/bus/PrivateBus.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace tessarine::testing {

namespace {

constexpr char configuration[] =
    R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>%1</listen>
  <auth>EXTERNAL</auth>
  <servicedir>%2</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
    %3
  </policy>
  <limit name="max_incoming_bytes">1000000000</limit>
  <limit name="max_outgoing_bytes">1000000000</limit>
  <limit name="max_message_size">1000000000</limit>
  <limit name="max_replies_per_connection">50000</limit>
</busconfig>
)";

void write(const QString& path, const QString& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
}

} // namespace

PrivateBus::PrivateBus(const QString& policy) {
    QDir(folder_.path()).mkdir(QStringLiteral("services"));
    write(folder_.filePath(QStringLiteral("bus.conf")),
          QString::fromLatin1(configuration)
              .arg(QString::fromStdString(address()), folder_.filePath(QStringLiteral("services")),
                   policy));
}

PrivateBus::~PrivateBus() {
    crash();
}

void PrivateBus::addService(const QString& name, const QString& commandLine) {
    write(folder_.filePath(QStringLiteral("services/%1.service").arg(name)),
          QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2\n").arg(name, commandLine));
}

void PrivateBus::start() {
    const QString file = folder_.filePath(QStringLiteral("bus.conf"));
    const std::string line = daemon_.startAndAwaitLine(
        {"dbus-daemon", "--config-file=" + file.toStdString(), "--nofork", "--print-address"});
    ASSERT_FALSE(line.empty()) << "dbus-daemon must say that it listens";
}

void PrivateBus::crash() {
    daemon_.kill();
}

std::string PrivateBus::address() const {
    return "unix:path=" + folder_.filePath(QStringLiteral("socket")).toStdString();
}

} // namespace tessarine::testing
