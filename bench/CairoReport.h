#pragma once

#include "export/PdfReport.h"

#include <QByteArray>

namespace tessarine::bench {

// The report's drawing calls made through cairo: the same pages, texts in the same faces and
// places, the same shapes. Texts are cut where they leave their width, not at words.
QByteArray cairoReport(const std::vector<PDFRow>& rows);

} // namespace tessarine::bench
