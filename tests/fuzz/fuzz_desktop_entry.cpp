// Any file in place of a desktop entry; and any text as a value, which comes back as it was.

#include "platform/linux/applications/DesktopEntryFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessarine;
    const QByteArray content(reinterpret_cast<const char*>(data), qsizetype(size));
    const DesktopEntryKeys keys = desktopEntryKeys(content);
    for (auto key = keys.begin(); key != keys.end(); ++key)
        if (key.key().isEmpty())
            std::abort();
    const QString text = QString::fromUtf8(content);
    const QByteArray entry = "[Desktop Entry]\nName=" + escapedValue(text).toUtf8() + "\n";
    if (desktopEntryKeys(entry).value(QStringLiteral("Name")) != text)
        std::abort();
    return 0;
}
