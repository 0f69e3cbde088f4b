#include "theme/Texts.h"

#include "support/Printers.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

TEST(Texts, AnyKindOfALanguageIsThatLanguage) {
    EXPECT_EQ(languageOf({u"en-GB"_qs}), u"en"_qs);
    EXPECT_EQ(languageOf({u"en_GB"_qs}), u"en"_qs);
    EXPECT_EQ(languageOf({u"en-Latn-US"_qs}), u"en"_qs);
}

TEST(Texts, TheFirstLanguageThatThereAreTextsInIsTaken) {
    EXPECT_EQ(languageOf({u"tlh"_qs, u"en-US"_qs, u"tlh-US"_qs}), u"en"_qs);
}

TEST(Texts, WithoutAnyOfThemItIsEnglish) {
    EXPECT_EQ(languageOf({}), u"en"_qs);
    EXPECT_EQ(languageOf({u"tlh"_qs, u"C"_qs, QString(), u"../../etc"_qs}), u"en"_qs);
}

TEST(Texts, WhereTheSystemHasAWordingOfItsOwnThatIsTaken) {
    installTexts({});
    EXPECT_EQ(qtTrId("launchAtLogin.info.silentStart"),
              u"It starts without a window. You see nothing but its bell."_qs);
    EXPECT_EQ(qtTrId("menu.openHoard"), u"Open Hoard"_qs);
}

} // namespace
} // namespace tessarine
