#include "platform/linux/LinuxUserDefaults.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

TEST(LinuxUserDefaultsThreads, LoseNothingOfWhatSeveralThreadsWrite) {
    constexpr int threadCount = 8;
    constexpr int each = 10;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.conf"_qs);
    {
        LinuxUserDefaults defaults(path);
        std::vector<std::thread> threads;
        threads.reserve(threadCount);
        for (int number = 0; number < threadCount; ++number) {
            threads.emplace_back([&defaults, number] {
                const QString own = u"key%1"_qs.arg(number);
                for (int i = 1; i <= each; ++i) {
                    defaults.setInteger(own, number * 100 + i);
                    EXPECT_EQ(defaults.integer(own), number * 100 + i);
                    defaults.setTextList(u"shared"_qs, {own});
                    EXPECT_EQ(defaults.textList(u"shared"_qs).size(), 1);
                }
            });
        }
        for (std::thread& thread : threads)
            thread.join();
    }
    const LinuxUserDefaults reopened(path);
    for (int number = 0; number < threadCount; ++number)
        EXPECT_EQ(reopened.integer(u"key%1"_qs.arg(number)), number * 100 + each);
}

} // namespace
} // namespace tessarine
