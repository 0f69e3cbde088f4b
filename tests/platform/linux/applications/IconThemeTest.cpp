#include "platform/linux/applications/IconTheme.h"

#include "support/Printers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// A theme with a folder of each kind. Which of the files it finds is worked out by hand from the
// Icon Theme Specification: first a folder of the size and the scale, else the smallest distance in
// pixels.
class IconThemeTest : public ::testing::Test {
protected:
    IconThemeTest() {
        write(u"icons/Theme/index.theme"_qs,
              "[Icon Theme]\nName=Theme\n"
              "Directories=16,19,32,48,128,260,range,wide,few\n"
              "ScaledDirectories=48@2,range@3\n"
              "[16]\nSize=16\nType=Fixed\n"
              "[19]\nSize=19\nType=Fixed\n"
              "[32]\nSize=32\n" // a threshold of 2
              "[48]\nSize=48\nType=Threshold\nThreshold=8\n"
              "[128]\nSize=128\nType=Fixed\n"
              "[260]\nSize=260\nType=Fixed\n"
              "[wide]\nSize=96\nMinSize=90\nMaxSize=110\nType=Scalable\n"
              "[range]\nSize=64\nMinSize=60\nMaxSize=80\nType=Scalable\n"
              "[few]\nSize=200\nType=Scalable\n" // a range of one size
              "[48@2]\nSize=48\nScale=2\nType=Fixed\n"
              "[range@3]\nSize=64\nScale=3\nMinSize=60\nMaxSize=80\nType=Scalable\n");
    }

    void write(const QString& file, const QByteArray& content) const {
        const QString path = root.filePath(file);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile written(path);
        EXPECT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(content);
    }

    // The files that there are, relative to the theme's folder.
    void layDown(const QStringList& files) const {
        for (const QString& file : files)
            write(u"icons/Theme/"_qs + file, {});
    }

    // The file that is found, relative to the theme's folder.
    QString found(const IconSize& size) const {
        const QString path =
            IconTheme(u"Theme"_qs, {root.filePath(u"icons"_qs)}, {root.filePath(u"pixmaps"_qs)})
                .find(u"app"_qs, size);
        return path.isEmpty() ? path
                              : QDir(root.filePath(u"icons/Theme"_qs)).relativeFilePath(path);
    }

    QTemporaryDir root;
};

struct SizeCase {
    const char* name;
    QStringList files;
    IconSize size;
    QString found;
};

class IconSizeTest : public IconThemeTest, public ::testing::WithParamInterface<SizeCase> {};

TEST_P(IconSizeTest, IsFoundByItsSize) {
    layDown(GetParam().files);
    EXPECT_EQ(found(GetParam().size), GetParam().found);
}

const QStringList drawings{u"16/app.svg"_qs, u"32/app.svg"_qs, u"48/app.svg"_qs, u"128/app.svg"_qs};
const QStringList ranges{u"48/app.png"_qs, u"128/app.png"_qs, u"range/app.svg"_qs};
const QStringList scaled{u"48/app.png"_qs, u"128/app.png"_qs, u"48@2/app.png"_qs,
                         u"range@3/app.svg"_qs};

INSTANTIATE_TEST_SUITE_P(
    Each, IconSizeTest,
    ::testing::Values(
        // Drawings have a size as pictures have.
        SizeCase{"TheDrawingOfTheSize", drawings, {128, 1}, u"128/app.svg"_qs},
        SizeCase{"TheDrawingWithinTheThreshold", drawings, {34, 1}, u"32/app.svg"_qs},
        SizeCase{"TheDrawingWithinAWideThreshold", drawings, {40, 1}, u"48/app.svg"_qs},
        SizeCase{"TheDrawingWhoseThresholdIsCloser", drawings, {37, 1}, u"32/app.svg"_qs},
        SizeCase{"NoThresholdForAFixedSize",
                 {u"16/app.svg"_qs, u"19/app.svg"_qs},
                 {18, 1},
                 u"19/app.svg"_qs},
        SizeCase{"TheClosestDrawingThoughItIsSmaller", drawings, {80, 1}, u"48/app.svg"_qs},
        SizeCase{"TheClosestDrawingThoughItIsLarger", drawings, {100, 1}, u"128/app.svg"_qs},
        SizeCase{"TheLargestDrawingForWhatIsLarger", drawings, {512, 1}, u"128/app.svg"_qs},
        SizeCase{"TheSmallestDrawingForWhatIsSmaller", drawings, {8, 1}, u"16/app.svg"_qs},
        // A range fits where it reaches.
        SizeCase{"TheRangeWithinIt", ranges, {80, 1}, u"range/app.svg"_qs},
        SizeCase{"TheRangeWhereItIsCloser", ranges, {90, 1}, u"range/app.svg"_qs},
        SizeCase{"APictureBeyondTheRange", ranges, {120, 1}, u"128/app.png"_qs},
        SizeCase{"APictureBelowTheRange", ranges, {56, 1}, u"48/app.png"_qs},
        SizeCase{"ARangeOfOneSizeWithinIt",
                 {u"128/app.png"_qs, u"few/app.svg"_qs},
                 {200, 1},
                 u"few/app.svg"_qs},
        SizeCase{"ARangeOfOneSizeBeyondIt",
                 {u"128/app.png"_qs, u"few/app.svg"_qs},
                 {150, 1},
                 u"128/app.png"_qs},
        SizeCase{"ARangeOfOneSizeFarBeyondIt",
                 {u"260/app.png"_qs, u"few/app.svg"_qs},
                 {250, 1},
                 u"260/app.png"_qs},
        // The scale
        SizeCase{"TheScaleThatWasAskedFor", scaled, {48, 2}, u"48@2/app.png"_qs},
        SizeCase{"TheScaleBeforeARangeThatReachesItsPixels",
                 {u"wide/app.svg"_qs, u"48@2/app.png"_qs},
                 {48, 2},
                 u"48@2/app.png"_qs},
        SizeCase{"NoOtherScaleOfTheSize", scaled, {48, 1}, u"48/app.png"_qs},
        SizeCase{"ARangeAtItsScale", scaled, {70, 3}, u"range@3/app.svg"_qs},
        SizeCase{"TheClosestInPixelsAtAnyScale", scaled, {50, 2}, u"48@2/app.png"_qs},
        SizeCase{"TheClosestInPixelsWithoutAScale", scaled, {60, 2}, u"128/app.png"_qs},
        SizeCase{"ARangeInPixels",
                 {u"128/app.png"_qs, u"range/app.svg"_qs},
                 {35, 2},
                 u"range/app.svg"_qs},
        // Of one folder
        SizeCase{"APictureBeforeADrawing",
                 {u"48/app.svg"_qs, u"48/app.png"_qs},
                 {48, 1},
                 u"48/app.png"_qs},
        SizeCase{"ADrawingBeforeAnOldPicture",
                 {u"48/app.svg"_qs, u"48/app.xpm"_qs},
                 {48, 1},
                 u"48/app.svg"_qs},
        SizeCase{"NothingOfWhatIsNotThere", {}, {48, 1}, QString()},
        SizeCase{"NoOtherKind", {u"48/app.jpg"_qs}, {48, 1}, QString()}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_F(IconThemeTest, TakesTheFirstOfTwoThatAreEquallyClose) {
    layDown({u"48/app.png"_qs, u"few/app.png"_qs}); // 72 pixels away, each
    EXPECT_EQ(found({128, 1}), u"48/app.png"_qs);
}

TEST_F(IconThemeTest, LooksInNoFolderThatTheIndexDoesNotName) {
    layDown({u"64/app.png"_qs});
    EXPECT_EQ(found({64, 1}), QString());
}

TEST_F(IconThemeTest, PrefersTheFirstPlaceOfAThemeThatLiesInTwo) {
    layDown({u"48/app.png"_qs});
    write(u"mine/Theme/48/app.svg"_qs, {});
    const IconTheme theme(u"Theme"_qs, {root.filePath(u"mine"_qs), root.filePath(u"icons"_qs)}, {});
    EXPECT_EQ(theme.find(u"app"_qs, {48, 1}), root.filePath(u"mine/Theme/48/app.svg"_qs));
}

TEST_F(IconThemeTest, SurvivesAnIndexOfNonsense) {
    write(u"icons/Theme/index.theme"_qs,
          "[Icon Theme]\nDirectories=a,b,,a\nInherits=Theme\n"
          "[a]\nSize=-2147483648\nScale=2147483647\nThreshold=2147483647\n"
          "[b]\nSize=99999999999\nMinSize=x\nMaxSize=-1\nType=Scalable\n");
    layDown({u"a/app.png"_qs, u"b/app.png"_qs});
    EXPECT_NE(found({48, 3}), QString());
}

} // namespace
} // namespace tessarine
