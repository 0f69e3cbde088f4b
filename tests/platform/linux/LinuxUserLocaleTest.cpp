#include "shared/UserLocale.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

class UserDateLocaleTest : public ::testing::Test {
public:
    UserDateLocaleTest() {
        for (const char* name : names_)
            qunsetenv(name);
    }
    ~UserDateLocaleTest() override {
        for (std::size_t i = 0; i < std::size(names_); ++i)
            qputenv(names_[i], before_[i]);
    }

private:
    static constexpr const char* names_[]{"LC_ALL", "LC_TIME", "LANG"};
    const QByteArray before_[3]{qgetenv("LC_ALL"), qgetenv("LC_TIME"), qgetenv("LANG")};
};

TEST_F(UserDateLocaleTest, TheMoreSpecialVariableWins) {
    qputenv("LANG", "en_US.UTF-8");
    EXPECT_EQ(userDateLocale(), QByteArray("en_US"));
    qputenv("LC_TIME", "de_DE@euro");
    EXPECT_EQ(userDateLocale(), QByteArray("de_DE"));
    qputenv("LC_ALL", "sv_SE");
    EXPECT_EQ(userDateLocale(), QByteArray("sv_SE"));
    qputenv("LC_ALL", "");
    EXPECT_EQ(userDateLocale(), QByteArray("de_DE"));
}

struct Variant {
    const char* name;
    const char* posix;
    const char* icu;
};

class VariantTest : public UserDateLocaleTest, public ::testing::WithParamInterface<Variant> {};

TEST_P(VariantTest, KeepsItsScript) {
    qputenv("LC_TIME", GetParam().posix);
    EXPECT_EQ(userDateLocale(), QByteArray(GetParam().icu));
}

// The names of scripts are those of ISO 15924.
INSTANTIATE_TEST_SUITE_P(
    Names, VariantTest,
    ::testing::Values(
        Variant{"Plain", "sr_RS.UTF-8", "sr_RS"}, Variant{"Serbian", "sr_RS@latin", "sr_Latn_RS"},
        Variant{"EncodingBefore", "sr_RS.UTF-8@latin", "sr_Latn_RS"},
        Variant{"EncodingBehind", "sr_RS@latin.UTF-8", "sr_Latn_RS"},
        Variant{"Uzbek", "uz_UZ@cyrillic", "uz_Cyrl_UZ"},
        Variant{"Kashmiri", "ks_IN.UTF-8@devanagari", "ks_Deva_IN"},
        Variant{"WithoutCountry", "sr@latin", "sr_Latn"},
        Variant{"TheUsualScript", "de_DE@latin", "de_DE"},
        Variant{"TheUsualOneOfTheCountry", "sd_IN@devanagari", "sd_IN"},
        // ICU has neither in Latin letters; it would show Cyrillic ones.
        Variant{"Belarusian", "be_BY@latin", "en_BY"}, Variant{"Tatar", "tt_RU@iqtelif", "en_RU"},
        Variant{"Valencian", "ca_ES@valencia", "ca_ES"}, Variant{"Currency", "de_DE@euro", "de_DE"},
        Variant{"Unknown", "xx_YY@zz", "xx_YY"}, Variant{"EmptyModifier", "de@", "de"},
        Variant{"C", "C.UTF-8", "C"}),
    [](const auto& test) { return std::string(test.param.name); });

} // namespace
} // namespace tessarine
