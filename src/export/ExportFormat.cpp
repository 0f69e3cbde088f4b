#include "export/ExportFormat.h"

namespace tessarine {

namespace {

struct Texts {
    const char16_t* rawValue;
    const char16_t* fileExtension;
    const char16_t* iconName;
    const char16_t* descriptionKey;
};

constexpr std::array<Texts, allExportFormats.size()> formatTexts{{
    {u"Text", u"txt", u"doc.text", u"export.format.txt.desc"},
    {u"CSV", u"csv", u"tablecells", u"export.format.csv.desc"},
    {u"PDF Report", u"pdf", u"doc.richtext.fill", u"export.format.pdf.desc"},
}};

const Texts& texts(ExportFormat format) {
    return formatTexts.at(static_cast<std::size_t>(format));
}

} // namespace

QString rawValue(ExportFormat format) {
    return QString::fromUtf16(texts(format).rawValue);
}

QString fileExtension(ExportFormat format) {
    return QString::fromUtf16(texts(format).fileExtension);
}

QString iconName(ExportFormat format) {
    return QString::fromUtf16(texts(format).iconName);
}

QString descriptionKey(ExportFormat format) {
    return QString::fromUtf16(texts(format).descriptionKey);
}

} // namespace tessarine
