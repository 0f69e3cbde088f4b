#include "preferences/PreferencesStore.h"

#include "support/Printers.h"
#include "support/SimulatedPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

using Texts = std::set<QString>;

class PreferencesStoreTest : public ::testing::Test {
protected:
    testing::SimulatedDefaults defaults;
};

TEST_F(PreferencesStoreTest, StartsFromTheDefaultsOfACleanDomain) {
    const PreferencesStore store(defaults);
    EXPECT_EQ(store.retentionDays(), 0);
    EXPECT_FALSE(store.globalPrivacyMode());
    EXPECT_THAT(store.privacyApps(), IsEmpty());
    EXPECT_FALSE(store.launchLoginPromptSuppressed());
    EXPECT_FALSE(store.hasSeenPrivacyNotice());
    EXPECT_FALSE(store.hasAcceptedEULA());
    EXPECT_FALSE(store.hasSeenOnboarding());
    EXPECT_EQ(store.otpRetentionHours(), 0);
    EXPECT_THAT(store.excludedBundleIds(), IsEmpty());
    EXPECT_EQ(store.appearanceMode(), u"auto"_qs);
}

TEST_F(PreferencesStoreTest, WritesNothingWhenItIsMade) {
    const PreferencesStore store(defaults);
    EXPECT_THAT(defaults.values, IsEmpty());
}

TEST_F(PreferencesStoreTest, ReadsEveryFieldUnderItsOwnName) {
    defaults.values = {{u"retentionDays"_qs, qint64(90)},
                       {u"globalPrivacyMode"_qs, true},
                       {u"privacyApps"_qs, QStringList{u"a.b"_qs, u"c.d"_qs}},
                       {u"launchLoginPromptSuppressed"_qs, true},
                       {u"hasSeenPrivacyNotice"_qs, true},
                       {u"hasAcceptedEULA"_qs, true},
                       {u"hasSeenOnboarding"_qs, true},
                       {u"otpRetentionHours"_qs, qint64(4)},
                       {u"excludedBundleIds"_qs, QStringList{u"e.f"_qs}},
                       {u"appearanceMode"_qs, u"dark"_qs}};
    const PreferencesStore store(defaults);
    EXPECT_EQ(store.retentionDays(), 90);
    EXPECT_TRUE(store.globalPrivacyMode());
    EXPECT_THAT(store.privacyApps(), UnorderedElementsAre(u"a.b"_qs, u"c.d"_qs));
    EXPECT_TRUE(store.launchLoginPromptSuppressed());
    EXPECT_TRUE(store.hasSeenPrivacyNotice());
    EXPECT_TRUE(store.hasAcceptedEULA());
    EXPECT_TRUE(store.hasSeenOnboarding());
    EXPECT_EQ(store.otpRetentionHours(), 4);
    EXPECT_THAT(store.excludedBundleIds(), UnorderedElementsAre(u"e.f"_qs));
    EXPECT_EQ(store.appearanceMode(), u"dark"_qs);
}

TEST_F(PreferencesStoreTest, ReadsValuesOfAnotherTypeAsAbsent) {
    defaults.values = {{u"retentionDays"_qs, u"thirty"_qs},
                       {u"globalPrivacyMode"_qs, u"garbage"_qs},
                       {u"privacyApps"_qs, QByteArray("a.b")},
                       {u"hasAcceptedEULA"_qs, QStringList{u"true"_qs, u"true"_qs}},
                       {u"otpRetentionHours"_qs, true},
                       {u"excludedBundleIds"_qs, QVariantList{u"a"_qs, QByteArray("b")}},
                       {u"appearanceMode"_qs, QStringList{u"dark"_qs, u"light"_qs}}};
    const PreferencesStore store(defaults);
    EXPECT_EQ(store.retentionDays(), 0);
    EXPECT_FALSE(store.globalPrivacyMode());
    EXPECT_THAT(store.privacyApps(), IsEmpty());
    EXPECT_FALSE(store.hasAcceptedEULA());
    EXPECT_EQ(store.otpRetentionHours(), 0);
    EXPECT_THAT(store.excludedBundleIds(), IsEmpty());
    EXPECT_EQ(store.appearanceMode(), u"auto"_qs);
}

TEST_F(PreferencesStoreTest, PassesANegativeRetentionThrough) {
    defaults.values = {{u"retentionDays"_qs, qint64(-1)}};
    EXPECT_EQ(PreferencesStore(defaults).retentionDays(), -1);
}

TEST_F(PreferencesStoreTest, KeepsAnUnknownAppearanceAsItIs) {
    defaults.values = {{u"appearanceMode"_qs, u"sepia"_qs}};
    PreferencesStore store(defaults);
    EXPECT_EQ(store.appearanceMode(), u"sepia"_qs);
    EXPECT_EQ(defaults.text(u"appearanceMode"_qs), u"sepia"_qs);
    store.setAppearanceMode(u"blue"_qs);
    EXPECT_EQ(defaults.text(u"appearanceMode"_qs), u"blue"_qs);
}

TEST_F(PreferencesStoreTest, KeepsAnEmptyAppearanceAsItIs) {
    defaults.values = {{u"appearanceMode"_qs, QString(u""_qs)}};
    EXPECT_EQ(PreferencesStore(defaults).appearanceMode(), QString());
}

TEST_F(PreferencesStoreTest, HasTheRawArrayOfExcludedAppsAtOnce) {
    PreferencesStore store(defaults);
    store.setExcludedBundleIds({u"com.b"_qs, u"com.a"_qs, u"com.c"_qs});
    EXPECT_THAT(defaults.textList(u"excludedBundleIds"_qs),
                UnorderedElementsAre(u"com.a"_qs, u"com.b"_qs, u"com.c"_qs));
}

TEST_F(PreferencesStoreTest, FoldsARepeatedAppOnReading) {
    defaults.values = {{u"privacyApps"_qs, QStringList{u"a"_qs, u"a"_qs}}};
    EXPECT_THAT(PreferencesStore(defaults).privacyApps(), ElementsAre(u"a"_qs));
}

TEST_F(PreferencesStoreTest, TakesBackItsOwnSet) {
    PreferencesStore store(defaults);
    store.setPrivacyApps({u"a"_qs, u"b"_qs});
    store.setPrivacyApps(store.privacyApps());
    EXPECT_THAT(store.privacyApps(), ElementsAre(u"a"_qs, u"b"_qs));
}

TEST_F(PreferencesStoreTest, DoesNotNoticeADomainThatChangesUnderIt) {
    const PreferencesStore store(defaults);
    defaults.setInteger(u"retentionDays"_qs, 7);
    EXPECT_EQ(store.retentionDays(), 0);
}

TEST_F(PreferencesStoreTest, LeavesTheKeysOfOthersAlone) {
    defaults.values = {{u"lastSeenUsernotedRecId"_qs, qint64(12)}, {u"fdaSkipped"_qs, true}};
    PreferencesStore store(defaults);
    store.setRetentionDays(30);
    EXPECT_EQ(defaults.integer(u"lastSeenUsernotedRecId"_qs), 12);
    EXPECT_TRUE(defaults.boolean(u"fdaSkipped"_qs));
}

// Masking

TEST_F(PreferencesStoreTest, MasksNothingByItself) {
    EXPECT_FALSE(PreferencesStore(defaults).isPrivate(u"a.b"_qs));
}

TEST_F(PreferencesStoreTest, MasksEveryAppInPrivacyModeAlsoTheEmptyId) {
    PreferencesStore store(defaults);
    store.setGlobalPrivacyMode(true);
    EXPECT_TRUE(store.isPrivate(u"a.b"_qs));
    EXPECT_TRUE(store.isPrivate(QString()));
}

TEST_F(PreferencesStoreTest, MasksTheListedAppsOnly) {
    PreferencesStore store(defaults);
    store.setPrivacyApps({u"org.example.Mail"_qs});
    EXPECT_TRUE(store.isPrivate(u"org.example.Mail"_qs));
    EXPECT_FALSE(store.isPrivate(u"org.example.Chat"_qs));
    EXPECT_FALSE(store.isPrivate(u"org.example"_qs));
    EXPECT_FALSE(store.isPrivate(QString()));
}

TEST_F(PreferencesStoreTest, ComparesIdsWithTheirCase) {
    PreferencesStore store(defaults);
    store.setPrivacyApps({u"org.example.Mail"_qs});
    EXPECT_FALSE(store.isPrivate(u"org.example.mail"_qs));
}

TEST_F(PreferencesStoreTest, StopsMaskingWhenAnAppLeavesTheSet) {
    PreferencesStore store(defaults);
    store.setPrivacyApps({u"a"_qs});
    store.setPrivacyApps({});
    EXPECT_FALSE(store.isPrivate(u"a"_qs));
    EXPECT_TRUE(defaults.contains(u"privacyApps"_qs));
}

// The same promises for each field

struct Field {
    const char* key;
    QVariant value;
    void (*assign)(PreferencesStore&);
    QVariant (*current)(const PreferencesStore&);
};

template <typename Value>
Field field(const char* key, Value value, void (*assign)(PreferencesStore&),
            QVariant (*current)(const PreferencesStore&)) {
    return {key, QVariant::fromValue(value), assign, current};
}

QVariant listed(const Texts& texts) {
    return QStringList(texts.begin(), texts.end());
}

const Field fields[] = {
    field(
        "retentionDays", qint64(30), [](PreferencesStore& s) { s.setRetentionDays(30); },
        [](const PreferencesStore& s) { return QVariant(s.retentionDays()); }),
    field(
        "globalPrivacyMode", true, [](PreferencesStore& s) { s.setGlobalPrivacyMode(true); },
        [](const PreferencesStore& s) { return QVariant(s.globalPrivacyMode()); }),
    field(
        "privacyApps", QStringList{QStringLiteral("a.b")},
        [](PreferencesStore& s) { s.setPrivacyApps({QStringLiteral("a.b")}); },
        [](const PreferencesStore& s) { return listed(s.privacyApps()); }),
    field(
        "launchLoginPromptSuppressed", true,
        [](PreferencesStore& s) { s.setLaunchLoginPromptSuppressed(true); },
        [](const PreferencesStore& s) { return QVariant(s.launchLoginPromptSuppressed()); }),
    field(
        "hasSeenPrivacyNotice", true, [](PreferencesStore& s) { s.setHasSeenPrivacyNotice(true); },
        [](const PreferencesStore& s) { return QVariant(s.hasSeenPrivacyNotice()); }),
    field(
        "hasAcceptedEULA", true, [](PreferencesStore& s) { s.setHasAcceptedEULA(true); },
        [](const PreferencesStore& s) { return QVariant(s.hasAcceptedEULA()); }),
    field(
        "hasSeenOnboarding", true, [](PreferencesStore& s) { s.setHasSeenOnboarding(true); },
        [](const PreferencesStore& s) { return QVariant(s.hasSeenOnboarding()); }),
    field(
        "otpRetentionHours", qint64(24), [](PreferencesStore& s) { s.setOtpRetentionHours(24); },
        [](const PreferencesStore& s) { return QVariant(s.otpRetentionHours()); }),
    field(
        "excludedBundleIds", QStringList{QStringLiteral("c.d")},
        [](PreferencesStore& s) { s.setExcludedBundleIds({QStringLiteral("c.d")}); },
        [](const PreferencesStore& s) { return listed(s.excludedBundleIds()); }),
    field(
        "appearanceMode", QStringLiteral("light"),
        [](PreferencesStore& s) { s.setAppearanceMode(QStringLiteral("light")); },
        [](const PreferencesStore& s) { return QVariant(s.appearanceMode()); }),
};

class PreferenceField : public ::testing::TestWithParam<Field> {
protected:
    QString key() const { return QString::fromLatin1(GetParam().key); }
    void assign() { GetParam().assign(store); }
    QVariant current() const { return GetParam().current(store); }
    QVariant onDisk() const {
        const auto found = defaults.values.find(key());
        return found == defaults.values.end() ? QVariant() : found->second;
    }

    testing::SimulatedDefaults defaults;
    PreferencesStore store{defaults};
};

TEST_P(PreferenceField, IsWrittenThroughUnderItsOwnNameAndType) {
    assign();
    EXPECT_EQ(current(), GetParam().value);
    ASSERT_EQ(defaults.values.size(), 1U);
    EXPECT_EQ(onDisk(), GetParam().value);
    EXPECT_EQ(onDisk().typeId(), GetParam().value.typeId());
}

TEST_P(PreferenceField, TellsFirstThenHoldsTheValueThenWritesThenTellsAgain) {
    const QVariant before = current();
    QStringList order;
    QObject::connect(&store, &PreferencesStore::objectWillChange, &store, [&] {
        order.append(u"objectWillChange"_qs);
        EXPECT_EQ(current(), before);
        EXPECT_FALSE(onDisk().isValid());
    });
    QObject::connect(&store, &PreferencesStore::changed, &store, [&] {
        order.append(u"changed"_qs);
        EXPECT_EQ(current(), GetParam().value);
        EXPECT_EQ(onDisk(), GetParam().value);
    });
    assign();
    EXPECT_THAT(order, ElementsAre(u"objectWillChange"_qs, u"changed"_qs));
}

TEST_P(PreferenceField, IsWrittenAndToldAgainWhenTheValueIsTheSame) {
    assign();
    defaults.values.clear();
    int told = 0;
    QObject::connect(&store, &PreferencesStore::objectWillChange, &store, [&] { ++told; });
    assign();
    EXPECT_EQ(onDisk(), GetParam().value);
    EXPECT_EQ(told, 1);
}

TEST_P(PreferenceField, IsThereForTheNextStore) {
    assign();
    EXPECT_EQ(GetParam().current(PreferencesStore(defaults)), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Each, PreferenceField, ::testing::ValuesIn(fields),
                         [](const auto& test) { return std::string(test.param.key); });

// The value is published before it is written: a write that looks back sees the new one.

class LookingDefaults : public testing::SimulatedDefaults {
public:
    void setInteger(const QString& key, qint64 value) override {
        seenWhileWriting = store->retentionDays();
        SimulatedDefaults::setInteger(key, value);
    }

    const PreferencesStore* store = nullptr;
    qint64 seenWhileWriting = -1;
};

TEST(PreferencesStoreOrder, HoldsTheNewValueWhileItIsWritten) {
    LookingDefaults defaults;
    PreferencesStore store(defaults);
    defaults.store = &store;
    store.setRetentionDays(60);
    EXPECT_EQ(defaults.seenWhileWriting, 60);
}

} // namespace
} // namespace tessarine
