#include "platform/qt/StoredValue.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <random>
#include <string>

// The reading of numbers against the standard library's, which not every system has.

namespace tessarine {
namespace {

double standardReading(const std::string& text) {
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end && std::isfinite(number) ? number : 0;
}

double ownReading(const std::string& text) {
    return numberOf(QString::fromStdString(text));
}

TEST(StoredNumberTest, ReadsAnyTextLikeTheStandardLibrary) {
    const std::string characters = "0123456789.-+eE xinfa,";
    std::mt19937 random(20260101);
    int numbers = 0;
    for (int i = 0; i < 200000; ++i) {
        std::string text;
        for (std::size_t length = random() % 9; text.size() < length;)
            text += characters[random() % (random() % 2 ? 12 : characters.size())];
        EXPECT_EQ(ownReading(text), standardReading(text)) << '"' << text << '"';
        numbers += standardReading(text) != 0 ? 1 : 0;
    }
    EXPECT_GT(numbers, 10000);
}

TEST(StoredNumberTest, ReadsTheBordersLikeTheStandardLibrary) {
    for (const char* text : {"",
                             "-",
                             ".",
                             "-.",
                             "1.",
                             ".5",
                             "-.5",
                             "1e5",
                             "1e",
                             "1e+5",
                             "1e-400",
                             "1e400",
                             "-1e400",
                             "4.9e-324",
                             "2.4e-324",
                             "2.2250738585072014e-308",
                             "1.7976931348623157e308",
                             "1.7976931348623159e308",
                             "0x10",
                             "+1",
                             " 1",
                             "1 ",
                             "1\n",
                             "inf",
                             "-inf",
                             "nan",
                             "1,5",
                             "1,000",
                             "00012",
                             "-0",
                             "0.1",
                             "0.30000000000000004",
                             "123456789012345678901234567890"})
        EXPECT_EQ(ownReading(text), standardReading(text)) << '"' << text << '"';
}

} // namespace
} // namespace tessarine
