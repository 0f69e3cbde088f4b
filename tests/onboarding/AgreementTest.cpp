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

TEST(Agreement, IsThereInEachLanguageWithTheSameParagraphs) {
    const qsizetype paragraphs = agreementText({u"en"_qs}).count(u"\n\n"_qs);
    for (const QString& language : {u"de-AT"_qs, u"it"_qs, u"fr-CA"_qs}) {
        const QString text = agreementText({language});
        EXPECT_NE(text, agreementText({u"en"_qs}));
        EXPECT_EQ(text.count(u"\n\n"_qs), paragraphs);
    }
}

TEST(Agreement, IsAsLongAsItsPageWasMadeFor) {
    EXPECT_NEAR(double(agreementText({u"en"_qs}).size()), 4200, 400);
}

} // namespace
} // namespace tessarine
