// Any command line of a desktop entry: what is started for it, written as a line again, starts the
// same; and any words come back from the line that is made of them.

#include "platform/linux/applications/DesktopEntries.h"
#include "platform/linux/applications/ExecLine.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

using namespace tessarine;

QString lineOf(const QStringList& words) {
    QStringList written;
    for (const QString& word : words)
        written << execWord(word);
    return written.join(u' ');
}

std::optional<QStringList> commandFor(const QString& exec) {
    DesktopEntry entry;
    entry.name = QStringLiteral("A name");
    entry.icon = QStringLiteral("icon");
    entry.path = QStringLiteral("/usr/share/applications/a b.desktop");
    entry.exec = exec;
    return commandOf(entry);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    const std::optional<QStringList> command = commandFor(text);
    if (command && commandFor(lineOf(*command)) != command)
        std::abort();
    const QStringList words = text.split(u'\n');
    if (!words.front().isEmpty() && commandFor(lineOf(words)) != words)
        std::abort();
    return 0;
}
