#include "onboarding/Agreement.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

TEST(Agreement, IsThereInEnglishAndForThoseWhoseLanguageWeDoNotSpeak) {
    const QString text = agreementText({u"en-GB"_qs});
    EXPECT_TRUE(text.startsWith(u"Agreement between you and the makers of Tessarine\n"_qs));
    EXPECT_EQ(agreementText({u"tlh"_qs}), text);
    EXPECT_EQ(agreementText({}), text);
}

TEST(Agreement, IsAsLongAsItsPageWasMadeFor) {
    EXPECT_NEAR(double(agreementText({u"en"_qs}).size()), 4200, 400);
}

} // namespace
} // namespace tessarine
