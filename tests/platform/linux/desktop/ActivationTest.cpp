#include "platform/linux/desktop/LinuxDesktop.h"
#include "platform/linux/desktop/X11Windows.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

// Startup notifications

TEST(StartupNotification, NamesTheTimeAtItsEnd) {
    EXPECT_EQ(timeOfStartup("host_panel/7-0-host_TIME123456"), 123456U);
    EXPECT_EQ(timeOfStartup("a_TIME1_TIME4294967295"), 4294967295U);
    EXPECT_EQ(timeOfStartup("a_TIME0"), 0U);
}

TEST(StartupNotification, NamesNoTimeInAnotherForm) {
    for (const char* odd : {"", "token", "a_TIME", "a_TIME-1", "a_TIME12x", "a_TIME4294967296"})
        EXPECT_EQ(timeOfStartup(odd), 0U) << odd;
}

// The answer to a request, elsewhere than on X11

TEST(LinuxApplicationControlTest, ATokenIsInTheEnvironmentWhileItsRequestIsAnswered) {
    LinuxApplicationControl control;
    QByteArray seen;
    control.answer(u"token-1"_qs, [&] { seen = qgetenv("XDG_ACTIVATION_TOKEN"); });
    EXPECT_EQ(seen, "token-1");
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

TEST(LinuxApplicationControlTest, TheTokenOfTheOwnStartIsKeptForAWindowToCome) {
    qputenv("XDG_ACTIVATION_TOKEN", "own");
    LinuxApplicationControl control;
    control.answer(u"own"_qs, [] {});
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "own");
    control.answer(u"other"_qs, [] { qunsetenv("XDG_ACTIVATION_TOKEN"); }); // a window took it
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

TEST(LinuxApplicationControlTest, ARequestWithoutATokenIsAnsweredToo) {
    LinuxApplicationControl control;
    bool isAnswered = false;
    control.answer({}, [&] { isAnswered = !qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"); });
    EXPECT_TRUE(isAnswered);
}

} // namespace
} // namespace tessarine
