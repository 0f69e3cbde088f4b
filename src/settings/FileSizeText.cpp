#include "settings/FileSizeText.h"

#include <QCoreApplication>
#include <QLocale>

#include <array>
#include <cmath>

namespace tessarine {

namespace {

constexpr double step = 1000;

struct SizeUnit {
    const char* textId;
    int decimals;
};

constexpr std::array<SizeUnit, 4> units{{
    {"prefs.storage.size.kilobytes", 0},
    {"prefs.storage.size.megabytes", 1},
    {"prefs.storage.size.gigabytes", 2},
    {"prefs.storage.size.terabytes", 2},
}};

double rounded(double value, int decimals) {
    const double scale = std::pow(10.0, decimals);
    return std::round(value * scale) / scale;
}

QString inUnit(double value, const SizeUnit& unit) {
    QLocale locale;
    const QString number = locale.toString(value, 'f', QLocale::FloatingPointShortest);
    return qtTrId(unit.textId).arg(number);
}

} // namespace

QString fileSizeText(qint64 bytes) {
    if (bytes < 1)
        return qtTrId("prefs.storage.size.zero");
    if (double(bytes) < step)
        return qtTrId("prefs.storage.size.bytes", int(bytes));
    double value = double(bytes) / step;
    std::size_t unit = 0;
    while (unit + 1 < units.size() && rounded(value, units[unit].decimals) >= step) {
        value /= step;
        ++unit;
    }
    return inUnit(rounded(value, units[unit].decimals), units[unit]);
}

} // namespace tessarine
