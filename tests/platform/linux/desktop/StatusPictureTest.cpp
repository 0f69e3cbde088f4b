#include "platform/linux/desktop/StatusPicture.h"

#include "platform/linux/desktop/LinuxSymbols.h"

#include <QDir>
#include <QIcon>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

QImage statusImage(int size, bool dark, const QString& title = {}) {
    return statusIcon(LinuxSymbols(), u"bell.fill"_qs, title, dark)
        .pixmap(QSize(size, size), 1.0)
        .toImage();
}

// What a tray of this colour shows.
QImage onTray(const QImage& picture, const QColor& tray) {
    QImage image(picture.size(), QImage::Format_RGB32);
    image.fill(tray);
    QPainter(&image).drawImage(0, 0, picture);
    return image;
}

// Relative luminance and contrast as the Web Content Accessibility Guidelines 2 define them.
double luminanceOf(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(double(colour.redF())) + 0.7152 * linear(double(colour.greenF())) +
           0.0722 * linear(double(colour.blueF()));
}

double contrastOf(const QColor& left, const QColor& right) {
    const double a = luminanceOf(left) + 0.05;
    const double b = luminanceOf(right) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

// How many columns of the picture have a pixel that stands out from the tray.
int readableColumns(const QImage& image, const QColor& tray) {
    int columns = 0;
    for (int x = 0; x < image.width(); ++x) {
        bool isReadable = false;
        for (int y = 0; y < image.height(); ++y)
            isReadable = isReadable || contrastOf(image.pixelColor(x, y), tray) >= 3.0;
        columns += isReadable ? 1 : 0;
    }
    return columns;
}

using Tray = std::tuple<int, bool, int>; // size, dark, the tray's grey

class StatusPictureTest : public ::testing::TestWithParam<Tray> {};

TEST_P(StatusPictureTest, StandsOutFromTheTrayInItsWholeWidth) {
    const auto [size, dark, grey] = GetParam();
    const QColor tray(grey, grey, grey);
    const QImage image = onTray(statusImage(size, dark), tray);
    // The bell is 13 of 16 wide, and its outermost pixels are half covered.
    EXPECT_GE(readableColumns(image, tray), size * 10 / 16);
}

std::string trayName(const ::testing::TestParamInfo<Tray>& info) {
    const auto [size, dark, grey] = info.param;
    return std::to_string(size) + (dark ? "Dark" : "Light") + "On" + std::to_string(grey);
}

INSTANTIATE_TEST_SUITE_P(Trays, StatusPictureTest,
                         ::testing::Combine(::testing::Values(16, 22, 24, 32, 48, 64),
                                            ::testing::Bool(),
                                            ::testing::Values(0, 48, 96, 118, 160, 208, 255)),
                         trayName);

TEST(StatusPictureSheet, IsSavedToBeLookedAt) {
    QImage sheet(640, 320, QImage::Format_RGB32);
    QPainter painter(&sheet);
    for (int column = 0; column < 8; ++column) {
        const int grey = column * 255 / 7;
        painter.fillRect(column * 80, 0, 80, 320, QColor(grey, grey, grey));
        int y = 6;
        for (const int size : {16, 22, 24, 32, 48}) {
            painter.drawImage(column * 80 + 4, y, statusImage(size, false, u" 5"_qs));
            painter.drawImage(column * 80 + 4, y + 160, statusImage(size, true));
            y += size + 4;
        }
    }
    painter.end();
    QDir().mkpath(QStringLiteral(PICTURES_FOLDER));
    EXPECT_TRUE(sheet.save(QDir(QStringLiteral(PICTURES_FOLDER)).filePath(u"tray.png"_qs)));
}

TEST(StatusPicture, ATagAppearsOnlyWithATitle) {
    const auto corner = [](const QString& title) {
        return statusImage(24, true, title).pixelColor(22, 19);
    };
    EXPECT_EQ(corner({}).alpha(), 0);
    EXPECT_EQ(corner(u" 5"_qs), QColor(0xd8, 0x2c, 0x2c));
}

TEST(StatusPicture, ATagStandsApartFromTheSymbol) {
    const QImage image = statusImage(64, true, u" 5"_qs);
    // The tag is 35 a side in the lower right corner; the bell passes above its upper edge.
    EXPECT_GT(statusImage(64, true).pixelColor(32, 27).alpha(), 0);
    EXPECT_EQ(image.pixelColor(46, 27).alpha(), 0);
}

} // namespace
} // namespace tessarine
