#include "capture/RecordDecoding.h"

#include "support/PropertyListWriter.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using testing::PlistValue;
using testing::writeBinaryPropertyList;
using namespace Qt::StringLiterals;

using Entries = PlistValue::Dictionary;

PlistValue text(const QString& value) {
    return PlistValue::string(value);
}

DecodedTexts decoded(const PlistValue& root, DecoderVariant variant = DecoderVariant::poll) {
    return decodeUsernotedRecord(writeBinaryPropertyList(root), variant);
}

DecodedTexts decodedRequest(const Entries& request) {
    return decoded(PlistValue::dictionary({{u"req"_qs, PlistValue::dictionary(request)}}));
}

QByteArray archive(const PlistValue::Array& objects) {
    return writeBinaryPropertyList(
        PlistValue::dictionary({{u"$objects"_qs, PlistValue::array(objects)}}));
}

QString longest(const PlistValue::Array& objects, DecoderVariant variant = DecoderVariant::poll) {
    return longestArchiveText(archive(objects), variant);
}

// The request as a dictionary

TEST(RequestDictionary, GivesTitleAndBodyAndLosesTheSubtitleWhereAllAreThere) {
    EXPECT_EQ(decodedRequest({{u"titl"_qs, text(u"Title"_qs)},
                              {u"subt"_qs, text(u"Subtitle"_qs)},
                              {u"body"_qs, text(u"Body"_qs)}}),
              (DecodedTexts{u"Title"_qs, u"Body"_qs}));
}

TEST(RequestDictionary, GivesALoneSubtitleAsTitleAndAsBody) {
    EXPECT_EQ(decodedRequest({{u"subt"_qs, text(u"Alone"_qs)}}),
              (DecodedTexts{u"Alone"_qs, u"Alone"_qs}));
}

TEST(RequestDictionary, GivesTheSubtitleAsBodyBesideATitle) {
    EXPECT_EQ(decodedRequest({{u"titl"_qs, text(u"Title"_qs)}, {u"subt"_qs, text(u"Subtitle"_qs)}}),
              (DecodedTexts{u"Title"_qs, u"Subtitle"_qs}));
}

TEST(RequestDictionary, GivesTheSubtitleAsTitleBesideABody) {
    EXPECT_EQ(decodedRequest({{u"body"_qs, text(u"Body"_qs)}, {u"subt"_qs, text(u"Subtitle"_qs)}}),
              (DecodedTexts{u"Subtitle"_qs, u"Body"_qs}));
}

TEST(RequestDictionary, GivesATitleAlone) {
    EXPECT_EQ(decodedRequest({{u"titl"_qs, text(u"Title"_qs)}}), (DecodedTexts{u"Title"_qs, {}}));
}

TEST(RequestDictionary, CountsAValueOfAnotherTypeAsAbsent) {
    EXPECT_EQ(decodedRequest({{u"titl"_qs, PlistValue::integer(7)},
                              {u"subt"_qs, PlistValue::data("Subtitle")},
                              {u"body"_qs, text(u"Body"_qs)}}),
              (DecodedTexts{{}, u"Body"_qs}));
}

TEST(RequestDictionary, GivesWayToTheRootWhenItIsEmpty) {
    EXPECT_EQ(decoded(PlistValue::dictionary(
                  {{u"req"_qs, PlistValue::dictionary({})}, {u"titl"_qs, text(u"Root"_qs)}})),
              (DecodedTexts{u"Root"_qs, {}}));
}

TEST(RequestDictionary, WinsOverTheRootWhenItHasAText) {
    EXPECT_EQ(decoded(PlistValue::dictionary(
                  {{u"req"_qs, PlistValue::dictionary({{u"body"_qs, text(u"Body"_qs)}})},
                   {u"titl"_qs, text(u"Root"_qs)}})),
              (DecodedTexts{{}, u"Body"_qs}));
}

TEST(RequestDictionary, KeepsNulSurrogateHalvesAndDirectionMarks) {
    const QString odd = QString::fromUtf16(u"a\0b\xD800"
                                           u"c\x200F\xDC00",
                                           7);
    EXPECT_EQ(decodedRequest({{u"titl"_qs, text(odd)}, {u"body"_qs, text(u"Body"_qs)}}),
              (DecodedTexts{odd, u"Body"_qs}));
}

TEST(UsernotedPayload, IgnoresOtherKeysOfTheRoot) {
    EXPECT_EQ(decoded(PlistValue::dictionary(
                  {{u"app"_qs, text(u"com.example.other"_qs)},
                   {u"date"_qs, PlistValue::real(1)},
                   {u"req"_qs, PlistValue::dictionary({{u"titl"_qs, text(u"Title"_qs)}})}})),
              (DecodedTexts{u"Title"_qs, {}}));
}

// The request as an archive

TEST(RequestArchive, GivesItsSentenceAsBody) {
    const QByteArray request = archive({text(u"$null"_qs), text(u"NSMutableDictionary"_qs),
                                        text(u"four"_qs), text(u"Your parcel is on its way"_qs)});
    EXPECT_EQ(decoded(PlistValue::dictionary(
                  {{u"req"_qs, PlistValue::data(request)}, {u"titl"_qs, text(u"Parcel"_qs)}})),
              (DecodedTexts{u"Parcel"_qs, u"Your parcel is on its way"_qs}));
}

TEST(RequestArchive, TakesTheSubtitleOfTheRootAsTitle) {
    const QByteArray request = archive({text(u"A sentence"_qs)});
    EXPECT_EQ(decoded(PlistValue::dictionary(
                  {{u"req"_qs, PlistValue::data(request)}, {u"subt"_qs, text(u"Sub"_qs)}})),
              (DecodedTexts{u"Sub"_qs, u"A sentence"_qs}));
}

TEST(RequestArchive, GivesNullMarkerAsBodyWhenNothingBetterIsThere) {
    const QByteArray request = archive({text(u"$null"_qs)});
    EXPECT_EQ(decoded(PlistValue::dictionary({{u"req"_qs, PlistValue::data(request)}})),
              (DecodedTexts{{}, u"$null"_qs}));
}

TEST(RequestOfAnotherType, StillLeavesTheTextsOfTheRoot) {
    EXPECT_EQ(decoded(PlistValue::dictionary({{u"req"_qs, PlistValue::integer(1)},
                                              {u"titl"_qs, text(u"Title"_qs)},
                                              {u"subt"_qs, text(u"Subtitle"_qs)}})),
              (DecodedTexts{u"Title"_qs, u"Subtitle"_qs}));
}

TEST(RequestMissing, LeavesTheTextsOfTheRoot) {
    EXPECT_EQ(decoded(PlistValue::dictionary({{u"subt"_qs, text(u"Subtitle"_qs)}})),
              (DecodedTexts{u"Subtitle"_qs, u"Subtitle"_qs}));
}

// What is no payload

TEST(BadPayload, OfZeroBytesIsEmpty) {
    EXPECT_TRUE(decodeUsernotedRecord({}, DecoderVariant::poll).isEmpty());
}

TEST(BadPayload, ThatIsNoPropertyListIsEmpty) {
    EXPECT_TRUE(decodeUsernotedRecord("bplist00 but then nothing of the kind at all, really",
                                      DecoderVariant::poll)
                    .isEmpty());
}

TEST(BadPayload, WithAnArrayAsRootIsEmpty) {
    EXPECT_TRUE(decoded(PlistValue::array({text(u"titl"_qs), text(u"Title"_qs)})).isEmpty());
}

TEST(BadPayload, OfAHundredThousandContainersIsEmpty) {
    PlistValue nested = PlistValue::array({});
    for (int i = 0; i < 100000; ++i)
        nested = PlistValue::array({nested});
    EXPECT_TRUE(
        decoded(PlistValue::dictionary({{u"titl"_qs, text(u"Title"_qs)}, {u"req"_qs, nested}}))
            .isEmpty());
}

TEST(BadPayload, OfFiftyMegabytesOfTextIsReadLikeAnyOther) {
    const QString huge(50'000'000, u'x');
    EXPECT_EQ(decodedRequest({{u"titl"_qs, text(huge)}}).title.size(), 50'000'000);
}

TEST(BadPayload, OfFiftyMegabytesOfNothingIsEmpty) {
    EXPECT_TRUE(
        decodeUsernotedRecord(QByteArray(50'000'000, '\xA5'), DecoderVariant::poll).isEmpty());
}

// The longest text of an archive

TEST(LongestArchiveText, IsEmptyForBytesThatAreNoList) {
    EXPECT_EQ(longestArchiveText("nonsense", DecoderVariant::poll), QString());
}

TEST(LongestArchiveText, IsEmptyWithoutObjects) {
    EXPECT_EQ(longestArchiveText(writeBinaryPropertyList(PlistValue::dictionary({})),
                                 DecoderVariant::poll),
              QString());
}

TEST(LongestArchiveText, IsEmptyWhereTheObjectsAreNoArray) {
    EXPECT_EQ(longestArchiveText(writeBinaryPropertyList(PlistValue::dictionary(
                                     {{u"$objects"_qs, text(u"A sentence"_qs)}})),
                                 DecoderVariant::poll),
              QString());
}

TEST(LongestArchiveText, TakesTheFirstOfTwoOfEqualLength) {
    EXPECT_EQ(longest({text(u"first"_qs), text(u"later"_qs)}), u"first"_qs);
}

TEST(LongestArchiveText, RefusesFourCharactersAndTakesFive) {
    EXPECT_EQ(longest({text(u"four"_qs)}), QString());
    EXPECT_EQ(longest({text(u"fiver"_qs)}), u"fiver"_qs);
}

TEST(LongestArchiveText, CountsWhatAReaderSeesAsCharacters) {
    // Ten UTF-16 units, but only two characters and two more.
    EXPECT_EQ(longest({text(u"😀🇮🇹😀😀"_qs)}), QString());
    // Five flags are longer than four letters with their accents apart.
    EXPECT_EQ(longest({text(u"e\u0301e\u0301e\u0301e\u0301e\u0301"_qs), text(u"🇮🇹🇩🇪🇫🇷🇪🇸🇵🇹🇬🇷"_qs)}),
              u"🇮🇹🇩🇪🇫🇷🇪🇸🇵🇹🇬🇷"_qs);
}

class RefusedArchiveText : public ::testing::TestWithParam<const char16_t*> {};

TEST_P(RefusedArchiveText, GivesWayToAShorterSentence) {
    EXPECT_EQ(longest({text(QString::fromUtf16(GetParam())), text(u"Short"_qs)}), u"Short"_qs);
}

INSTANTIATE_TEST_SUITE_P(Rules, RefusedArchiveText,
                         ::testing::Values(u"NSMutableArray", u"UIImageView", u"com.example.app",
                                           u"UNMutableContent", u"kCIInputKey", u"XPCThing",
                                           u"CALayer", u"CFString", u"someIdentifier",
                                           u"someCategory", u"mainThread", u"someSound",
                                           u"someBadge", u"see https://example.org",
                                           u"a back\\slash"));

TEST(LongestArchiveText, ComparesPrefixesAsTheirCaseStands) {
    EXPECT_EQ(longest({text(u"nsomething"_qs)}), u"nsomething"_qs);
    EXPECT_EQ(longest({text(u"KCInput"_qs)}), u"KCInput"_qs);
}

class StartUpKeepsSuffix : public ::testing::TestWithParam<const char16_t*> {};

TEST_P(StartUpKeepsSuffix, WhichThePollRefuses) {
    const QString candidate = QString::fromUtf16(GetParam());
    EXPECT_EQ(longest({text(candidate)}, DecoderVariant::poll), QString());
    EXPECT_EQ(longest({text(candidate)}, DecoderVariant::startUp), candidate);
}

INSTANTIATE_TEST_SUITE_P(Rules, StartUpKeepsSuffix,
                         ::testing::Values(u"The Identifier", u"A Category", u"My Thread",
                                           u"No Sound", u"The Badge"));

TEST(LongestArchiveText, SkipsWhatIsNoText) {
    EXPECT_EQ(longest({PlistValue::data("a long run of bytes"), PlistValue::integer(1234567890),
                       text(u"Texts"_qs)}),
              u"Texts"_qs);
}

// References

struct ReferenceFixture {
    QByteArray bytes;
    std::optional<PropertyList> list;

    explicit ReferenceFixture(const PlistValue& value)
        : bytes(writeBinaryPropertyList(PlistValue::dictionary({{u"ref"_qs, value}})))
        , list(PropertyList::parse(bytes)) {}

    std::optional<qint64> index() const { return archiveReferenceIndex(list->root().find(u"ref")); }
};

TEST(ArchiveReference, IsTheValueOfAUid) {
    EXPECT_EQ(ReferenceFixture(PlistValue::uid(300)).index(), 300);
}

TEST(ArchiveReference, IsTheIntegerValueOfANumber) {
    EXPECT_EQ(ReferenceFixture(PlistValue::integer(4)).index(), 4);
    EXPECT_EQ(ReferenceFixture(PlistValue::real(4.9)).index(), 4);
}

TEST(ArchiveReference, IsReadFromADescription) {
    EXPECT_EQ(ReferenceFixture(text(u"<CFKeyedArchiverUID>{value = 12}"_qs)).index(), 12);
    EXPECT_EQ(ReferenceFixture(text(u"{value =  7 }{value = 9}"_qs)).index(), 7);
}

TEST(ArchiveReference, IsNothingWhereTheDescriptionHasNoNumber) {
    EXPECT_EQ(ReferenceFixture(text(u"value = 12"_qs)).index(), std::nullopt);
    EXPECT_EQ(ReferenceFixture(text(u"value = x}"_qs)).index(), std::nullopt);
    EXPECT_EQ(ReferenceFixture(text(u"12}"_qs)).index(), std::nullopt);
}

TEST(ArchiveReference, IsNothingForOtherTypes) {
    EXPECT_EQ(ReferenceFixture(PlistValue::data("1")).index(), std::nullopt);
    EXPECT_EQ(ReferenceFixture(PlistValue::array({})).index(), std::nullopt);
    EXPECT_EQ(archiveReferenceIndex(std::nullopt), std::nullopt);
}

class ArchiveLookup : public ::testing::Test {
protected:
    QByteArray bytes_ = writeBinaryPropertyList(PlistValue::dictionary(
        {{u"$objects"_qs,
          PlistValue::array({text(u"zero"_qs),
                             PlistValue::dictionary({{u"NS.time"_qs, PlistValue::real(1.5)}}),
                             PlistValue::dictionary({{u"NS.time"_qs, PlistValue::integer(3)}}),
                             PlistValue::integer(9)})},
         {u"first"_qs, PlistValue::uid(0)},
         {u"date"_qs, PlistValue::uid(1)},
         {u"wholeDate"_qs, PlistValue::uid(2)},
         {u"number"_qs, PlistValue::uid(3)},
         {u"past"_qs, PlistValue::uid(4)},
         {u"negative"_qs, PlistValue::integer(-1)}}));
    std::optional<PropertyList> list_ = PropertyList::parse(bytes_);
    PropertyList::Value objects_ = *archiveObjects(list_->root());

    std::optional<QString> string(QStringView key) {
        return archiveString(list_->root().find(key), objects_);
    }
    std::optional<double> date(QStringView key) {
        return archiveDate(list_->root().find(key), objects_);
    }
};

TEST_F(ArchiveLookup, FindsATextAndADate) {
    EXPECT_EQ(string(u"first"), u"zero"_qs);
    EXPECT_EQ(date(u"date"), 1.5);
}

TEST_F(ArchiveLookup, GivesNothingOfAnotherType) {
    EXPECT_EQ(string(u"number"), std::nullopt);
    EXPECT_EQ(string(u"date"), std::nullopt);
    EXPECT_EQ(date(u"first"), std::nullopt);
    EXPECT_EQ(date(u"wholeDate"), std::nullopt);
}

TEST_F(ArchiveLookup, GivesNothingPastTheEndOrBeforeTheBeginning) {
    EXPECT_EQ(string(u"past"), std::nullopt);
    EXPECT_EQ(string(u"negative"), std::nullopt);
    EXPECT_EQ(date(u"past"), std::nullopt);
    EXPECT_EQ(string(u"absent"), std::nullopt);
}

// Names

TEST(LastBundleComponent, IsWhatStandsBehindTheLastDot) {
    EXPECT_EQ(lastBundleComponent(u"com.tinyspeck.slackmacgap"_qs), u"slackmacgap"_qs);
}

TEST(LastBundleComponent, DropsEmptyPieces) {
    EXPECT_EQ(lastBundleComponent(u"com..mail."_qs), u"mail"_qs);
}

TEST(LastBundleComponent, LeavesATextWithoutPiecesAlone) {
    EXPECT_EQ(lastBundleComponent(u"Mail"_qs), u"Mail"_qs);
    EXPECT_EQ(lastBundleComponent(u".."_qs), u".."_qs);
    EXPECT_EQ(lastBundleComponent(QString()), QString());
}

} // namespace
} // namespace tessarine
