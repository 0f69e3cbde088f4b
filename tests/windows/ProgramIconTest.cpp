#include "theme/ProgramIcon.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

class ProgramIconTest : public ::testing::TestWithParam<int> {};

TEST_P(ProgramIconTest, IsDrawnAtTheSizeAskedForOnAClearGround) {
    const int size = GetParam();
    const QImage image = programIcon().pixmap(QSize(size, size), 1.0).toImage();
    ASSERT_EQ(image.size(), QSize(size, size));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(image.pixelColor(size - 1, size - 1).alpha(), 0);
    EXPECT_GT(image.pixelColor(size / 2, size / 2).lightness(), 200); // the bell
    const QColor ground = image.pixelColor(size / 5, size / 2);
    EXPECT_EQ(ground.alpha(), 255);
    EXPECT_GT(ground.blue(), ground.red() + 80);
}

INSTANTIATE_TEST_SUITE_P(Sizes, ProgramIconTest, ::testing::Values(16, 24, 32, 48, 64, 128, 256));

TEST(ProgramIcon, IsTheOneOfAllWindows) {
    EXPECT_EQ(QGuiApplication::windowIcon().pixmap(QSize(48, 48), 1.0).toImage(),
              programIcon().pixmap(QSize(48, 48), 1.0).toImage());
}

// A shell that tints a symbolic icon expects one colour.
TEST(ProgramIcon, HasASymbolicFormInOneColour) {
    QFile file(QStringLiteral(ICONS_FOLDER "/com.zorvek.Tessarine-symbolic.svg"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString drawing = QString::fromUtf8(file.readAll());
    QSet<QString> colours;
    auto matches = QRegularExpression(u"#[0-9a-f]{6}"_qs).globalMatch(drawing);
    while (matches.hasNext())
        colours.insert(matches.next().captured());
    EXPECT_EQ(colours, QSet<QString>({u"#2e3436"_qs}));
    EXPECT_FALSE(QIcon(file.fileName()).pixmap(16).isNull());
}

TEST(ProgramIcon, IsSavedToBeLookedAt) {
    QImage sheet(600, 300, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.fillRect(0, 150, 600, 150, QColor(0x1d, 0x1d, 0x1f));
    for (const int top : {8, 158}) {
        int x = 8;
        for (const int size : {16, 24, 32, 48, 64, 128}) {
            painter.drawPixmap(x, top, programIcon().pixmap(QSize(size, size), 1.0));
            x += size + 12;
        }
        painter.drawPixmap(
            x, top,
            QIcon(QStringLiteral(ICONS_FOLDER "/com.zorvek.Tessarine-symbolic.svg")).pixmap(64));
    }
    painter.end();
    QDir().mkpath(QStringLiteral(PICTURES_FOLDER));
    EXPECT_TRUE(sheet.save(QDir(QStringLiteral(PICTURES_FOLDER)).filePath(u"icon.png"_qs)));
}

} // namespace
} // namespace tessarine
