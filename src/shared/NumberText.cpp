#include "shared/NumberText.h"

#include <unicode/numfmt.h>

#include <memory>

namespace tessarine {

// In plain digits where ICU lacks its data.
QString groupedNumber(qint64 number, const QByteArray& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberFormat> format(
        icu::NumberFormat::createInstance(icu::Locale(locale.constData()), status));
    if (U_FAILURE(status))
        return QString::number(number);
    icu::UnicodeString text;
    format->format(int64_t(number), text);
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

} // namespace tessarine
