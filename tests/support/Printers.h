#pragma once

#include <QByteArray>
#include <QString>

#include <ostream>

// How failed comparisons show Qt's texts. Include it in every test file of a program, or in none.

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << (text.isNull() ? "(null) " : "") << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out) {
    *out << '"' << bytes.toPercentEncoding(" \n").toStdString() << '"';
}
