#include "shared/BundleId.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

TEST(DerivedBundleId, IsTheNameInLowerCaseWithDotsForBlanks) {
    EXPECT_EQ(derivedBundleId(u"Google Chrome"_qs), u"google.chrome"_qs);
    EXPECT_EQ(derivedBundleId(u"Mail"_qs), u"mail"_qs);
}

TEST(DerivedBundleId, HasADotForEachBlank) {
    EXPECT_EQ(derivedBundleId(u" A  b "_qs), u".a..b."_qs);
}

TEST(DerivedBundleId, KeepsOtherSpaces) {
    EXPECT_EQ(derivedBundleId(u"A\tB\u00A0C"_qs), u"a\tb\u00A0c"_qs);
}

TEST(DerivedBundleId, LowersLettersOfAnyScript) {
    EXPECT_EQ(derivedBundleId(u"ÜBER STADT"_qs), u"über.stadt"_qs);
    EXPECT_EQ(derivedBundleId(u"ЯНДЕКС"_qs), u"яндекс"_qs);
}

TEST(DerivedBundleId, KnowsNoLocale) {
    EXPECT_EQ(derivedBundleId(u"TITLE"_qs), u"title"_qs);
}

TEST(DerivedBundleId, IsEmptyForTheEmptyName) {
    EXPECT_EQ(derivedBundleId(QString()), QString());
}

TEST(UnresolvedBundleId, NamesTheNumberOfTheDatabase) {
    EXPECT_EQ(unresolvedBundleId(7), u"app_id_7"_qs);
    EXPECT_EQ(unresolvedBundleId(-1), u"app_id_-1"_qs);
    EXPECT_EQ(unresolvedBundleId(9223372036854775807), u"app_id_9223372036854775807"_qs);
}

TEST(UnresolvedBundleId, IsToldFromOtherIds) {
    EXPECT_TRUE(isUnresolvedBundleId(u"app_id_7"_qs));
    EXPECT_FALSE(isUnresolvedBundleId(u"com.example.app_id_7"_qs));
    EXPECT_FALSE(isUnresolvedBundleId(u"App_id_7"_qs));
    EXPECT_FALSE(isUnresolvedBundleId(QString()));
}

} // namespace
} // namespace tessarine
