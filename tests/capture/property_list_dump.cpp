// Prints what the program reads in binary property lists, for the judge of the reader: one line of
// JSON for each list.
//
//   property_list_dump FILE...           reads the files
//   property_list_dump --stream          reads lists from standard input, each after its length as
//                                        eight bytes, big end first
//
// Numbers that JSON can't hold are written as the digits of their bits, text as the digits of its
// UTF-16 units, so that nothing is lost on the way.

#include "capture/PropertyList.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cstdio>
#include <iostream>

using namespace Qt::StringLiterals;
using tessarine::PropertyList;
using Type = PropertyList::Type;

namespace {

// A list of shared values can be small and yet endless, and very deep, when written out.
constexpr qsizetype largestLine = 1 << 20;
constexpr int deepestLevel = 2 * PropertyList::maximumDepth;

QByteArray tagged(const char* tag, const QByteArray& text) {
    return QByteArray("{\"") + tag + "\":\"" + text + "\"}";
}

QByteArray bits(double number) {
    return QByteArray::number(std::bit_cast<quint64>(number), 16);
}

QByteArray units(const QString& text) {
    QByteArray bytes(2 * text.size(), Qt::Uninitialized);
    qToBigEndian<char16_t>(text.utf16(), text.size(), bytes.data());
    return bytes.toHex();
}

class Writer {
public:
    QByteArray write(const PropertyList& list) {
        append(list.root());
        return isTooLarge() ? "\"too large\"" : line_;
    }

private:
    bool isTooLarge() const { return line_.size() > largestLine || deepest_ > deepestLevel; }

    void append(const PropertyList::Value& value) {
        deepest_ = std::max(deepest_, ++level_);
        if (value.type() == Type::array)
            appendArray(value);
        else if (value.type() == Type::dictionary)
            appendDictionary(value);
        else
            line_ += scalar(value);
        --level_;
    }

    static QByteArray scalar(const PropertyList::Value& value) {
        switch (value.type()) {
        case Type::boolean:
            return *value.boolean() ? "true" : "false";
        case Type::integer: {
            const auto number = value.integer();
            return tagged("integer", number ? QByteArray::number(*number) : "beyond");
        }
        case Type::real:
            return tagged("real", bits(*value.real()));
        case Type::date:
            return tagged("date", bits(*value.date()));
        case Type::data:
            return tagged("data", value.data()->toByteArray().toHex());
        case Type::string:
            return tagged("string", units(*value.string()));
        case Type::uid:
            return tagged("uid", QByteArray::number(*value.uid()));
        case Type::set:
            return tagged("set", QByteArray::number(value.size()));
        default:
            return "null";
        }
    }

    void appendArray(const PropertyList::Value& array) {
        line_ += '[';
        for (qsizetype i = 0; i < array.size() && !isTooLarge(); ++i) {
            line_ += i > 0 ? "," : "";
            append(*array.at(i));
        }
        line_ += ']';
    }

    // Each entry as its key and what the key finds.
    void appendDictionary(const PropertyList::Value& dictionary) {
        line_ += "{\"dictionary\":[";
        for (qsizetype i = 0; i < dictionary.size() && !isTooLarge(); ++i) {
            const QString key = *dictionary.keyAt(i)->string();
            line_ += (i > 0 ? ",[\"" : "[\"") + units(key) + "\",";
            append(*dictionary.find(key));
            line_ += ']';
        }
        line_ += "]}";
    }

    QByteArray line_;
    int level_ = 0;
    int deepest_ = 0;
};

void print(QByteArrayView bytes) {
    const auto list = PropertyList::parse(bytes);
    const QByteArray line = list ? Writer().write(*list) : "\"refused\"";
    std::puts(line.constData());
}

int printStream() {
    char length[8];
    while (std::cin.read(length, sizeof length)) {
        QByteArray bytes(qFromBigEndian<qint64>(length), Qt::Uninitialized);
        if (!std::cin.read(bytes.data(), bytes.size()))
            return 1;
        print(bytes);
    }
    return 0;
}

int printFiles(int count, char** names) {
    for (int i = 0; i < count; ++i) {
        QFile file(QFile::decodeName(names[i]));
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "property_list_dump: %s can't be read\n", names[i]);
            return 1;
        }
        print(file.readAll());
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && qstrcmp(argv[1], "--stream") == 0)
        return printStream();
    if (argc < 2) {
        std::fputs("usage: property_list_dump FILE... | property_list_dump --stream\n", stderr);
        return 2;
    }
    return printFiles(argc - 1, argv + 1);
}
