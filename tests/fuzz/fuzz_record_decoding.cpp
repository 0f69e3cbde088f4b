// Everything that reads the bytes of a payload: both variants of the decoder, the guessing from an
// archive, and the legacy form.

#include "capture/LegacyDecoding.h"
#include "capture/RecordDecoding.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tessarine;
    const QByteArrayView payload(data, static_cast<qsizetype>(size));
    decodeUsernotedRecord(payload, DecoderVariant::poll);
    decodeUsernotedRecord(payload, DecoderVariant::startUp);
    longestArchiveText(payload, DecoderVariant::poll);
    decodeLegacyPayload(payload);
    return 0;
}
