#include "shared/FreshId.h"

#include <QRandomGenerator>

#include <random>

namespace tessarine {

namespace {

constexpr quint64 versionBits = 0xf000;
constexpr quint64 version4 = 0x4000;
constexpr quint64 variantBits = quint64(0xc0) << 56;
constexpr quint64 variantRfc4122 = quint64(0x80) << 56;

quint64 seed() {
    return QRandomGenerator::system()->generate64();
}

uchar byteOf(quint64 value, int index) {
    return static_cast<uchar>(value >> (56 - 8 * index));
}

} // namespace

// The layout of the fields, their version and their variant: RFC 4122, sections 4.1 and 4.4.
QUuid freshId() {
    static thread_local std::mt19937_64 generator(seed());
    const quint64 high = (generator() & ~versionBits) | version4;
    const quint64 low = (generator() & ~variantBits) | variantRfc4122;
    return {static_cast<uint>(high >> 32),
            static_cast<ushort>(high >> 16),
            static_cast<ushort>(high),
            byteOf(low, 0),
            byteOf(low, 1),
            byteOf(low, 2),
            byteOf(low, 3),
            byteOf(low, 4),
            byteOf(low, 5),
            byteOf(low, 6),
            byteOf(low, 7)};
}

} // namespace tessarine
