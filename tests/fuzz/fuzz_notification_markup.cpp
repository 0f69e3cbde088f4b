// Any body, to be kept up to the number of characters that its first byte says: the start of the
// whole text without its markup.

#include "platform/linux/banners/NotificationMarkup.h"
#include "shared/Text.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessarine;
    if (size == 0)
        return 0;
    const qsizetype limit = 1 + data[0];
    const QByteArrayView bytes(reinterpret_cast<const char*>(data) + 1,
                               static_cast<qsizetype>(size) - 1);
    const std::string body =
        QString::fromUtf8(bytes).toStdString(); // the bus lets nothing else through
    const QString whole = withoutMarkup(body, 1000000);
    const QString kept = withoutMarkup(body, limit);
    const qsizetype end = endOfCharacters(whole, limit);
    const QString start = end < whole.size() ? whole.first(end) + u'…' : whole;
    const bool isTooBig = end > limit * 16;
    if (isTooBig ? kept.size() > limit * 16 + 1 : kept != start)
        std::abort();
    return 0;
}
