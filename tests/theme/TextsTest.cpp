#include "theme/Texts.h"

#include "support/Printers.h"

#include <QCoreApplication>
#include <QTranslator>

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

TEST(Texts, EachLanguageThatThereAreTextsInIsFoundByItsCode) {
    EXPECT_EQ(languageOf({u"de-AT"_qs, u"en"_qs}), u"de"_qs);
    EXPECT_EQ(languageOf({u"fr-CA"_qs}), u"fr"_qs);
    EXPECT_EQ(languageOf({u"it"_qs}), u"it"_qs);
    EXPECT_EQ(languageOf({u"pt"_qs, u"it"_qs}), u"it"_qs);
    EXPECT_EQ(languageOf({u"pt-BR"_qs, u"pt"_qs, u"de-Latn-CH"_qs, u"fr"_qs}), u"de"_qs);
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

// While it lives, the application speaks a language.
class LanguageScope {
public:
    explicit LanguageScope(const QString& language) { installTexts({language}); }
    ~LanguageScope() { installTexts({}); }
    LanguageScope(const LanguageScope&) = delete;
    LanguageScope& operator=(const LanguageScope&) = delete;
};

TEST(Texts, AreThoseOfTheLanguageAndOfTheSystemInIt) {
    const LanguageScope language(u"de-AT"_qs);
    EXPECT_EQ(qtTrId("menu.openHoard"), u"Hort öffnen"_qs);
    EXPECT_EQ(qtTrId("launchAtLogin.info.silentStart"),
              u"Es startet ohne Fenster. Du siehst nur seine Glocke."_qs);
}

TEST(Texts, TakeThePlaceOfThoseBefore) {
    installTexts({u"de"_qs});
    const qsizetype german = QCoreApplication::instance()->findChildren<QTranslator*>().size();
    installTexts({u"fr"_qs});
    EXPECT_EQ(QCoreApplication::instance()->findChildren<QTranslator*>().size(), german);
    installTexts({});
    EXPECT_EQ(qtTrId("menu.openHoard"), u"Open Hoard"_qs);
    EXPECT_LT(QCoreApplication::instance()->findChildren<QTranslator*>().size(), german);
}

TEST(Texts, CountInTheFormsOfTheLanguage) {
    const LanguageScope language(u"it"_qs);
    EXPECT_EQ(qtTrId("export.count", 1), u"1 notifica"_qs);
    EXPECT_EQ(qtTrId("export.count", 2), u"2 notifiche"_qs);
}

// In French, nothing is counted as one.
TEST(Texts, CountNothingAsTheLanguageDoes) {
    const LanguageScope language(u"fr"_qs);
    EXPECT_EQ(qtTrId("export.count", 0), u"0 notification"_qs);
    EXPECT_EQ(qtTrId("export.count", 1), u"1 notification"_qs);
    EXPECT_EQ(qtTrId("export.count", 2), u"2 notifications"_qs);
}

// A translator that knows one text alone, as a language with gaps does.
class OneText : public QTranslator {
public:
    QString translate(const char*, const char* source, const char*, int) const override {
        return QLatin1StringView(source) == u"menu.openHoard"_qs ? u"Only this"_qs : QString();
    }
    bool isEmpty() const override { return false; }
};

TEST(Texts, WhatALanguageLacksIsSaidInEnglish) {
    installTexts({});
    OneText gaps;
    QCoreApplication::installTranslator(&gaps);
    EXPECT_EQ(qtTrId("menu.openHoard"), u"Only this"_qs);
    EXPECT_EQ(qtTrId("action.cancel"), u"Cancel"_qs);
    QCoreApplication::removeTranslator(&gaps);
}

} // namespace
} // namespace tessarine
