#include "platform/linux/banners/NotificationMarkup.h"

#include "support/Printers.h"
#include "support/ProcessorTime.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ostream>

namespace tessarine {
namespace {

struct MarkupCase {
    const char* name;
    QStringView body;
    QStringView shown;
};

void PrintTo(const MarkupCase& markup, std::ostream* stream) {
    *stream << markup.name << ": " << markup.body.toString().toStdString();
}

// All of it.
QString shown(QStringView body) {
    return withoutMarkup(body.toUtf8().toStdString(), 10000000);
}

class NotificationMarkup : public ::testing::TestWithParam<MarkupCase> {};

TEST_P(NotificationMarkup, IsShownAsPlainText) {
    EXPECT_EQ(shown(GetParam().body), GetParam().shown.toString());
}

const MarkupCase tags[] = {
    {"Empty", u"", u""},
    {"Plain", u"Lunch at noon", u"Lunch at noon"},
    {"Bold", u"<b>Lunch</b> at noon", u"Lunch at noon"},
    {"Italic", u"an <i>old</i> friend", u"an old friend"},
    {"Underlined", u"<u>now</u>", u"now"},
    {"Link", u"see <a href=\"https://example.org/?a=1&amp;b=2\">the page</a>.", u"see the page."},
    {"Image", u"a <img src=\"cat.png\" alt=\"a cat\"/> here", u"a  here"},
    {"ImageWithoutSlash", u"a<img src='cat.png' alt='cat'>b", u"ab"},
    {"ImageAlone", u"<img src=\"x\" alt=\"y\"/>", u""},
    {"Nested", u"<b>one <i>two <u>three</u></i></b>", u"one two three"},
    {"WronglyNested", u"<b>one <i>two</b> three</i>", u"one two three"},
    {"NeverClosed", u"<b>all bold", u"all bold"},
    {"ClosedOnly", u"no start</b>", u"no start"},
    {"Empties", u"<b></b><i/>x<u />", u"x"},
    {"UpperCase", u"<B>Lunch</B> <A HREF='x'>there</A><IMG SRC='y'>", u"Lunch there"},
    {"BlanksInTags", u"<b  >x</b \t>y<a\nhref = \"z\" >w</a\r\n>", u"xyw"},
    {"AttributesOfOtherScripts", u"<a größe=\"x\" href='ü'>w</a>", u"w"},
    {"SeveralAttributes", u"<a href=\"x\" class='y' id=z>w</a>", u"w"},
    {"WordValue", u"<img src=cat.png/>x", u"x"},
    {"BracketInDoubleQuotes", u"<a href=\"a>b\">x</a>", u"x"},
    {"BracketInSingleQuotes", u"<img alt='a > b' src=\"c\"/>x", u"x"},
    {"TagInQuotes", u"<img alt=\"<b>\"/>x", u"x"},
    {"QuoteInOtherQuotes", u"<a href='say \"hi\"'>x</a>", u"x"},
    {"ValueOverLines", u"<a href=\"a\nb\">x</a>", u"x"},
    {"EmptyValue", u"<a href=\"\">x</a>", u"x"},
    {"TagAfterTagLike", u"<<b>x</b>>", u"<x>"},
};
INSTANTIATE_TEST_SUITE_P(Tags, NotificationMarkup, ::testing::ValuesIn(tags),
                         [](const auto& info) { return info.param.name; });

const MarkupCase kept[] = {
    {"Comparison", u"1 < 2 & <3", u"1 < 2 & <3"},
    {"Arrow", u"a -> b <- c", u"a -> b <- c"},
    {"OtherTags", u"<p>one</p><br/>two<br><span>x</span>", u"<p>one</p><br/>two<br><span>x</span>"},
    {"LongerNames", u"<bold>x</bold><img2><ui>", u"<bold>x</bold><img2><ui>"},
    {"BlankBeforeName", u"< b>x</ b>", u"< b>x</ b>"},
    {"WithoutEnd", u"x <b", u"x <b"},
    {"WithoutEndAfterAttribute", u"x <a href=\"y\"", u"x <a href=\"y\""},
    {"OpenQuote", u"<a href=\"x>text</a>", u"<a href=\"x>text"},
    {"WordsBehindName", u"if a <b and c> d", u"if a <b and c> d"},
    {"MissingValue", u"<a href=>x", u"<a href=>x"},
    {"AttributesTouch", u"<a href=\"x\"id=\"y\">z", u"<a href=\"x\"id=\"y\">z"},
    {"ClosingWithAttribute", u"</a href=\"x\">", u"</a href=\"x\">"},
    {"DoubleSlash", u"<b//>", u"<b//>"},
    {"BracketOnly", u"<", u"<"},
    {"ClosingBracketOnly", u"</", u"</"},
    {"AmpersandOnly", u"&", u"&"},
    {"EmptyTag", u"<></>", u"<></>"},
    {"Comment", u"<!-- b -->", u"<!-- b -->"},
    {"LettersOfOtherScripts", u"<bé>x</bé><б>y</б><İ>", u"<bé>x</bé><б>y</б><İ>"},
    {"SignsOfOtherScripts", u"<b—>x<a—b>y<a href=\"z\"—>", u"<b—>x<a—b>y<a href=\"z\"—>"},
    {"BlanksOfOtherScripts", u"<b\u00A0>x<\u00A0b>", u"<b\u00A0>x<\u00A0b>"},
};
INSTANTIATE_TEST_SUITE_P(Kept, NotificationMarkup, ::testing::ValuesIn(kept),
                         [](const auto& info) { return info.param.name; });

const MarkupCase entities[] = {
    {"AllFive", u"&amp;&lt;&gt;&quot;&apos;", u"&<>\"'"},
    {"OnceOnly", u"&amp;lt;b&amp;gt;", u"&lt;b&gt;"},
    {"AmpersandOfNumeric", u"&amp;#65;", u"&#65;"},
    {"MadeTagStays", u"&lt;b&gt;x&lt;/b&gt;", u"<b>x</b>"},
    {"InsideTags", u"<b>A&amp;B</b>", u"A&B"},
    {"UpperCaseName", u"&AMP;&Lt;", u"&AMP;&Lt;"},
    {"UnknownName", u"&nbsp;&eacute;", u"&nbsp;&eacute;"},
    {"WithoutSemicolon", u"&amp &lt b", u"&amp &lt b"},
    {"CutOff", u"&am", u"&am"},
    {"Decimal", u"&#65;&#8364;", u"A€"},
    {"Hexadecimal", u"&#x41;&#X20ac;&#x20AC;", u"A€€"},
    {"LeadingZeros", u"&#0000065;&#x00041;", u"AA"},
    {"BeyondThePlane", u"&#128512;&#x1F600;", u"😀😀"},
    {"LastCharacter", u"&#x10FFFF;", u"\U0010FFFF"},
    {"BeyondTheLast", u"&#x110000;&#1114112;", u"&#x110000;&#1114112;"},
    {"FarBeyond", u"&#99999999999999999999;", u"&#99999999999999999999;"},
    {"WrapsAround", u"&#4294967361;&#x100000041;", u"&#4294967361;&#x100000041;"},
    {"Nul", u"&#0;&#x0;&#x000;", u"&#0;&#x0;&#x000;"},
    {"Surrogates", u"&#xD83D;&#xDE00;&#55296;&#57343;", u"&#xD83D;&#xDE00;&#55296;&#57343;"},
    {"BesideSurrogates", u"&#xD7FF;&#xE000;", u"\uD7FF\uE000"},
    {"LineFeed", u"a&#10;b&#xA;c", u"a\nb\nc"},
    {"NoDigits", u"&#;&#x;", u"&#;&#x;"},
    {"WrongDigits", u"&#12a;&#x12g;&#-5;&# 5;", u"&#12a;&#x12g;&#-5;&# 5;"},
    {"DigitsOfOtherScripts", u"&#٦٥;", u"&#٦٥;"},
    {"NumericWithoutSemicolon", u"&#65 &#x41", u"&#65 &#x41"},
    {"NumericAtTheEnd", u"&#65", u"&#65"},
    {"NumericTagStays", u"&#60;b&#62;", u"<b>"},
};
INSTANTIATE_TEST_SUITE_P(Entities, NotificationMarkup, ::testing::ValuesIn(entities),
                         [](const auto& info) { return info.param.name; });

// Texts whose every place looks like the start of a tag that never ends. A reader that walked each
// one to the end of the text would need hours.
class HostileMarkup : public ::testing::TestWithParam<MarkupCase> {};

TEST_P(HostileMarkup, TakesTimeInProportionToItsLength) {
    const QString body = GetParam().body.toString().repeated(1000000 / GetParam().body.size());
    const auto start = testing::processorTime();
    EXPECT_EQ(shown(body), body);
    EXPECT_LT(testing::processorTime() - start, std::chrono::seconds(20));
}

const MarkupCase hostile[] = {
    {"Brackets", u"<", {}},
    {"Starts", u"<b ", {}},
    {"Attributes", u"<a b=c ", {}},
    {"ManyAttributes", u" b=c d=e f=\"g\"<a", {}},
    {"InterlockedQuotes", u"<a b=\" c='\" d=' ", {}},
    {"QuotedTags", u"<a b='\"<a b=\"' ", {}},
    {"Entities", u"&#", {}},
    {"Digits", u"&#111111111111111111111111", {}},
};
INSTANTIATE_TEST_SUITE_P(Bodies, HostileMarkup, ::testing::ValuesIn(hostile),
                         [](const auto& info) { return info.param.name; });

TEST(NotificationMarkupOfBigBodies, LeavesAMegabyteOfTextAsItIs) {
    const QString body = QStringLiteral("Zwölf Boxkämpfer & 🥊\n").repeated(50000);
    EXPECT_EQ(shown(body), body);
}

TEST(NotificationMarkupOfBigBodies, TakesAnImageOfAMegabyteOut) {
    const QString image = QStringLiteral("<img src=\"data:image/png;base64,") +
                          QStringLiteral("iVBORw0KGgo").repeated(100000) + QStringLiteral("\"/>");
    EXPECT_EQ(shown(QStringLiteral("a") + image + QStringLiteral("b")), QStringLiteral("ab"));
}

TEST(NotificationMarkupOfBigBodies, KeepsAsManyCharactersAsAskedFor) {
    EXPECT_EQ(withoutMarkup("<b>Grüße</b> &amp; more", 7), QStringLiteral("Grüße &…"));
    EXPECT_EQ(withoutMarkup("<b>Grüße</b> &amp;<i></i>", 7), QStringLiteral("Grüße &"));
    EXPECT_EQ(withoutMarkup("<b>Grüße</b> 1 < 2", 7), QStringLiteral("Grüße 1…"));
}

// The family takes more bytes than are decoded at first for three characters.
TEST(NotificationMarkupOfBigBodies, TakesNoPartOfACharacterForOne) {
    EXPECT_EQ(withoutMarkup("ab👨\u200D👩", 3), QStringLiteral("ab👨\u200D👩"));
    EXPECT_EQ(withoutMarkup("a👨\u200D👩&amp;", 2), QStringLiteral("a👨\u200D👩…"));
}

// Fifty megabytes of entities would take seconds to decode under the sanitizers.
TEST(NotificationMarkupOfBigBodies, DecodesNoMoreThanIsKept) {
    std::string body;
    for (int i = 0; i < 10000000; ++i)
        body += "&amp;";
    const auto start = testing::processorTime();
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(withoutMarkup(body, 20), QString(20, u'&') + u'…');
    EXPECT_LT(testing::processorTime() - start, std::chrono::seconds(20));
}

TEST(NotificationMarkupOfBigBodies, FindsTextBehindMegabytesOfTags) {
    std::string body;
    for (int i = 0; i < 1000000; ++i)
        body += "<b></b>";
    EXPECT_EQ(withoutMarkup(body + "end", 20), QStringLiteral("end"));
}

} // namespace
} // namespace tessarine
