#include "export/ExportFormat.h"

namespace tessarine {

namespace {

struct Traits {
    QString rawValue;
    QString fileExtension;
    QString iconName;
    QString descriptionKey;
};

const Traits& traits(ExportFormat format) {
    static const std::array<Traits, allExportFormats.size()> all{
        Traits{QStringLiteral("Text"), QStringLiteral("txt"), QStringLiteral("doc.text"),
               QStringLiteral("export.format.txt.desc")},
        Traits{QStringLiteral("CSV"), QStringLiteral("csv"), QStringLiteral("tablecells"),
               QStringLiteral("export.format.csv.desc")},
        Traits{QStringLiteral("PDF Report"), QStringLiteral("pdf"),
               QStringLiteral("doc.richtext.fill"), QStringLiteral("export.format.pdf.desc")}};
    return all[static_cast<std::size_t>(format)];
}

} // namespace

QString rawValue(ExportFormat format) {
    return traits(format).rawValue;
}

QString fileExtension(ExportFormat format) {
    return traits(format).fileExtension;
}

QString iconName(ExportFormat format) {
    return traits(format).iconName;
}

QString descriptionKey(ExportFormat format) {
    return traits(format).descriptionKey;
}

} // namespace tessarine
