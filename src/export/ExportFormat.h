#pragma once

#include <QString>

#include <array>

namespace tessarine {

enum class ExportFormat { txt, csv, pdf };

// In the order in which they are offered.
inline constexpr std::array allExportFormats{ExportFormat::txt, ExportFormat::csv,
                                             ExportFormat::pdf};

QString rawValue(ExportFormat format); // also the name that the user sees
QString fileExtension(ExportFormat format);
QString iconName(ExportFormat format); // a symbol
QString descriptionKey(ExportFormat format);

} // namespace tessarine
