#include "export/UnicodeMaps.h"

#include <QChar>
#include <QString>

namespace tessarine {

namespace {

constexpr char mapStart[] = "beginbfrange";
constexpr char mapEnd[] = "endbfrange";
constexpr qsizetype codeLength = 6; // "<2F47>"

// The character that stands for all that look like it.
QString plainText(char16_t code) {
    if (code == u'\t' || code == u'\u00A0')
        return QStringLiteral(" ");
    return QString(QChar(code)).normalized(QString::NormalizationForm_KC);
}

void renameCode(QByteArray& pdf, qsizetype at) {
    bool isNumber = false;
    const ushort code = pdf.mid(at + 1, 4).toUShort(&isNumber, 16);
    if (!isNumber || pdf[at + codeLength - 1] != '>')
        return;
    const QString text = plainText(code);
    if (text.size() == 1) { // more letters than one would need more room
        const QByteArray digits = QByteArray::number(text[0].unicode(), 16).toUpper();
        pdf.replace(at + 1, 4, digits.rightJustified(4, '0'));
    }
}

} // namespace

void nameGlyphsByTheirText(QByteArray& pdf) {
    for (qsizetype start = pdf.indexOf(mapStart); start >= 0;
         start = pdf.indexOf(mapStart, start + 1)) {
        const qsizetype end = pdf.indexOf(mapEnd, start);
        // Lists only: before them stand the glyphs' own numbers.
        for (qsizetype list = pdf.indexOf('[', start); list >= 0 && list < end;
             list = pdf.indexOf('[', list + 1)) {
            const qsizetype listEnd = pdf.indexOf(']', list);
            for (qsizetype at = pdf.indexOf('<', list); at >= 0 && at < listEnd;
                 at = pdf.indexOf('<', at + 1))
                renameCode(pdf, at);
        }
    }
}

} // namespace tessarine
