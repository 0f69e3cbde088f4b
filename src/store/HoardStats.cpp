#include "store/HoardStats.h"

#include "shared/Text.h"

namespace tessarine {

namespace {

constexpr qint64 kilobyte = 1024;
constexpr qint64 megabyte = 1024 * kilobyte;
constexpr qint64 gigabyte = 1024 * megabyte;

} // namespace

QString HoardStats::formattedSize() const {
    const auto in = [this](qint64 unit, int decimals, QStringView name) {
        const double amount = static_cast<double>(fileSizeBytes) / static_cast<double>(unit);
        return fixedText(amount, decimals) + name.toString();
    };
    if (fileSizeBytes < kilobyte)
        return in(1, 0, u" B");
    if (fileSizeBytes < megabyte)
        return in(kilobyte, 1, u" KB");
    if (fileSizeBytes < gigabyte)
        return in(megabyte, 2, u" MB");
    return in(gigabyte, 2, u" GB");
}

} // namespace tessarine
