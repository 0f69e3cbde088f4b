#include "shared/UserLocale.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

class UserDateLocaleTest : public ::testing::Test {
protected:
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

} // namespace
} // namespace tessarine
