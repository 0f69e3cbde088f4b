#include "export/UnicodeMaps.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

QByteArray renamed(QByteArray bytes) {
    nameGlyphsByTheirText(bytes);
    return bytes;
}

QByteArray map(const QByteArray& list) {
    return "2 beginbfrange\n<0000> <0000> <0000>\n<0001> <0009> [" + list + " ]\nendbfrange\n";
}

TEST(UnicodeMaps, NameABlankAnIdeographAndALetterOfEachShape) {
    // A tab, the radical and the ideograph of "sun", an initial and the plain Arabic letter "lam".
    EXPECT_EQ(renamed(map("<0009> <2F47> <FEDF>")), map("<0020> <65E5> <0644>"));
}

TEST(UnicodeMaps, LeaveWhatIsPlainAlready) {
    const QByteArray plain = map("<0041> <00FC> <0416> <4E00> <AC00>");
    EXPECT_EQ(renamed(plain), plain);
}

TEST(UnicodeMaps, LeaveWhatStandsForSeveralLetters) {
    const QByteArray ligatures = map("<FB01> <FEFB> <00BD>"); // "fi", "lam alef", one half
    EXPECT_EQ(renamed(ligatures), ligatures);
}

TEST(UnicodeMaps, LeaveTheNumbersOfTheGlyphs) {
    const QByteArray numbers = "1 beginbfrange\n<0009> <2F47> <2F47>\nendbfrange\n";
    EXPECT_EQ(renamed(numbers), numbers);
}

TEST(UnicodeMaps, LeaveEverythingElse) {
    const QByteArray text = "[<0009> <2F47>] Tj\n" + map("<0041>") + "[<0009> <2F47>] Tj\n";
    EXPECT_EQ(renamed(text), text);
}

TEST(UnicodeMaps, SurviveWhatIsBroken) {
    for (const QByteArray& broken :
         {QByteArray(), QByteArray("beginbfrange"), QByteArray("beginbfrange ["),
          QByteArray("beginbfrange [<"), QByteArray("beginbfrange [<0009"),
          QByteArray("beginbfrange [<0009> ] endbfrang"), map("<zzzz> <09> <>")})
        EXPECT_EQ(renamed(broken).size(), broken.size());
}

} // namespace
} // namespace tessarine
