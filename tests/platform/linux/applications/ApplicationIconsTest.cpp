#include "platform/linux/applications/LinuxApplicationIcons.h"
#include "support/Printers.h"
#include "support/SimulatedApplicationIcons.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::square;

// Two real themes in a folder of the test's own: "Own" inherits from "Parent".
class ApplicationIconsTest : public ::testing::Test {
protected:
    ApplicationIconsTest() {
        write(u"icons/Own/index.theme"_qs,
              "[Icon Theme]\nName=Own\nInherits=Parent,hicolor\n"
              "Directories=16x16/apps,48x48/apps,256x256/apps,scalable/apps\n"
              "ScaledDirectories=48x48@2x/apps\n"
              "[16x16/apps]\nSize=16\nType=Fixed\n[48x48/apps]\nSize=48\nType=Fixed\n"
              "[48x48@2x/apps]\nSize=48\nScale=2\nType=Fixed\n"
              "[256x256/apps]\nSize=256\nType=Fixed\n"
              "[scalable/apps]\nSize=64\nMinSize=8\nMaxSize=512\nType=Scalable\n");
        write(u"icons/Parent/index.theme"_qs,
              "[Icon Theme]\nName=Parent\nInherits=Own\nDirectories=32x32/apps\n"
              "[32x32/apps]\nSize=32\nType=Fixed\n");
        write(u"icons/hicolor/index.theme"_qs,
              "[Icon Theme]\nName=Hicolor\nDirectories=64x64/apps\n"
              "[64x64/apps]\nSize=64\nType=Fixed\n");
    }

    QString write(const QString& file, const QByteArray& content) const {
        QString path = root.filePath(file);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile written(path);
        EXPECT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(content);
        return path;
    }

    QString paint(const QString& file, const QImage& picture) const {
        QString path = root.filePath(file);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        EXPECT_TRUE(picture.save(path));
        return path;
    }

    QImage iconOf(const QString& icon) const {
        const QString entry = write(u"app.desktop"_qs, "[Desktop Entry]\nType=Application\n"
                                                       "Name=App\nExec=app\nIcon=" +
                                                           icon.toUtf8() + '\n');
        return icons().iconForFile(entry);
    }

    LinuxApplicationIcons icons() const {
        return LinuxApplicationIcons(
            IconTheme(u"Own"_qs, {root.filePath(u"icons"_qs)}, {root.filePath(u"pixmaps"_qs)}));
    }

    static QColor middle(const QImage& icon) {
        return icon.pixelColor(icon.width() / 2, icon.height() / 2);
    }

    QTemporaryDir root;
};

const QByteArray redDrawing = "<svg xmlns='http://www.w3.org/2000/svg' width='16' height='16'>"
                              "<rect width='16' height='16' fill='#ff0000'/></svg>";

TEST_F(ApplicationIconsTest, DrawsADrawingForEverySizeAsLargeAsItIsShown) {
    write(u"icons/Own/scalable/apps/app.svg"_qs, redDrawing);
    paint(u"icons/Own/256x256/apps/app.png"_qs, square(256, Qt::blue));
    const QImage icon = iconOf(u"app"_qs);
    EXPECT_EQ(middle(icon), QColor(Qt::red));
    EXPECT_EQ(icon.size(), QSize(144, 144));
}

TEST_F(ApplicationIconsTest, TakesNoDrawingThatWasMadeForAFarSmallerSize) {
    write(u"icons/Own/16x16/apps/app.svg"_qs, redDrawing);
    write(u"icons/Own/48x48/apps/app.svg"_qs, QByteArray(redDrawing).replace("ff0000", "0000ff"));
    const QImage icon = iconOf(u"app"_qs);
    EXPECT_EQ(middle(icon), QColor(Qt::blue));
    EXPECT_EQ(icon.size(), QSize(144, 144));
}

TEST_F(ApplicationIconsTest, TakesThePictureThatIsClosestInPixels) {
    paint(u"icons/Own/16x16/apps/app.png"_qs, square(16, Qt::red));
    paint(u"icons/Own/48x48/apps/app.png"_qs, square(48, Qt::blue));
    paint(u"icons/Own/48x48@2x/apps/app.png"_qs, square(96, Qt::green));
    EXPECT_EQ(iconOf(u"app"_qs).width(), 96);
}

TEST_F(ApplicationIconsTest, TellsASmallIconByItsWidth) {
    paint(u"icons/Own/16x16/apps/app.png"_qs, square(16, Qt::red));
    EXPECT_EQ(iconOf(u"app"_qs).deviceIndependentSize().width(), 16);
}

TEST_F(ApplicationIconsTest, PrefersTheThemeToItsParentAndThatToHicolor) {
    paint(u"icons/hicolor/64x64/apps/app.png"_qs, square(64, Qt::red));
    EXPECT_EQ(middle(iconOf(u"app"_qs)), QColor(Qt::red));
    paint(u"icons/Parent/32x32/apps/app.png"_qs, square(32, Qt::green));
    EXPECT_EQ(middle(iconOf(u"app"_qs)), QColor(Qt::green));
    paint(u"icons/Own/16x16/apps/app.png"_qs, square(16, Qt::blue));
    EXPECT_EQ(middle(iconOf(u"app"_qs)), QColor(Qt::blue));
}

TEST_F(ApplicationIconsTest, FindsAPictureOutsideTheThemes) {
    paint(u"pixmaps/app.png"_qs, square(40, Qt::red));
    EXPECT_EQ(iconOf(u"app"_qs).width(), 40);
    EXPECT_EQ(iconOf(u"app.png"_qs).width(), 40); // with an ending, as some write it
}

TEST_F(ApplicationIconsTest, TakesAPath) {
    EXPECT_EQ(iconOf(paint(u"elsewhere/my icon.png"_qs, square(40, Qt::red))).width(), 40);
    EXPECT_EQ(iconOf(write(u"elsewhere/drawn.svg"_qs, redDrawing)).width(), 144);
}

TEST_F(ApplicationIconsTest, CentresAPictureThatIsNotSquare) {
    QImage wide(60, 20, QImage::Format_ARGB32);
    wide.fill(Qt::red);
    const QImage icon = iconOf(paint(u"wide.png"_qs, wide));
    EXPECT_EQ(icon.size(), QSize(60, 60));
    EXPECT_EQ(icon.pixelColor(30, 30), QColor(Qt::red));
    EXPECT_EQ(icon.pixelColor(30, 10).alpha(), 0);
}

TEST_F(ApplicationIconsTest, HasNoneWhereThereIsNoPicture) {
    EXPECT_TRUE(iconOf(u"app"_qs).isNull());
    EXPECT_TRUE(iconOf({}).isNull());
    EXPECT_TRUE(iconOf(u"/no/such.png"_qs).isNull());
    EXPECT_TRUE(iconOf(u"../Parent/32x32/apps/app"_qs).isNull());
    EXPECT_TRUE(iconOf(write(u"broken.png"_qs, "no picture")).isNull());
    EXPECT_TRUE(iconOf(write(u"broken.svg"_qs, "no drawing")).isNull());
    EXPECT_TRUE(icons().iconForFile(u"/no/such.desktop"_qs).isNull());
}

TEST_F(ApplicationIconsTest, TakesTheIconOfAnyProgramForNone) {
    const QString any =
        paint(u"icons/Own/48x48/apps/application-x-executable.png"_qs, square(48, Qt::red));
    EXPECT_TRUE(iconOf(u"application-x-executable"_qs).isNull());
    EXPECT_TRUE(iconOf(u"application-x-executable.png"_qs).isNull());
    ASSERT_TRUE(QFile::link(any, root.filePath(u"icons/Own/48x48/apps/linked.png"_qs)));
    EXPECT_TRUE(iconOf(u"linked"_qs).isNull());
    paint(u"icons/Own/48x48/apps/own.png"_qs, square(48, Qt::red));
    EXPECT_FALSE(iconOf(u"own"_qs).isNull());
}

TEST_F(ApplicationIconsTest, HasNoGenericOneThoughAThemeHas) {
    paint(u"icons/Own/48x48/apps/application-x-executable.png"_qs, square(48, Qt::red));
    EXPECT_TRUE(icons().genericApplicationIcon().isNull());
}

TEST_F(ApplicationIconsTest, HasTheOneOfARunningApplicationByItsEntry) {
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", QFile::encodeName(root.path()));
    write(u"applications/org.example.App.desktop"_qs,
          "[Desktop Entry]\nType=Application\nName=My App\nExec=app\nIcon=app\n");
    paint(u"icons/Own/16x16/apps/app.png"_qs, square(16, Qt::red));
    const LinuxApplicationIcons running(
        IconTheme(u"Own"_qs, {root.filePath(u"icons"_qs)}, QStringList()));
    qputenv("XDG_DATA_HOME", before);
    EXPECT_EQ(running.iconForRunningApplication({1, u"my.app"_qs, std::nullopt}).width(), 16);
    EXPECT_TRUE(running.iconForRunningApplication({1, u"other"_qs, std::nullopt}).isNull());
}

} // namespace
} // namespace tessarine
