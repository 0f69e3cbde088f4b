#pragma once

#include <QString>

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>

#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tessarine::testing {

inline constexpr uid_t nobody = 65534;

// What the work gives when it runs as a user to whom file modes apply: in a child process as
// "nobody" where the tests run as root, and right here where they don't. The work must make its
// own connections and files; it starts no threads.
inline QString asOrdinaryUser(const std::function<QString()>& work) {
    if (geteuid() != 0)
        return work();
    std::array<int, 2> channel{};
    if (pipe(channel.data()) != 0)
        return QStringLiteral("no pipe");
    const pid_t child = fork();
    if (child < 0)
        return QStringLiteral("no child");
    if (child == 0) {
        close(channel[0]);
        const bool changed = setgid(nobody) == 0 && setuid(nobody) == 0;
        const QByteArray answer = changed ? work().toUtf8() : QByteArrayLiteral("still root");
        const ssize_t written =
            write(channel[1], answer.constData(), static_cast<std::size_t>(answer.size()));
        _exit(written == answer.size() ? 0 : 1);
    }
    close(channel[1]);
    std::string answer;
    std::array<char, 4096> part{};
    for (ssize_t size = 0; (size = read(channel[0], part.data(), part.size())) > 0;)
        answer.append(part.data(), static_cast<std::size_t>(size));
    close(channel[0]);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "the child ended with " << status;
    return QString::fromStdString(answer);
}

} // namespace tessarine::testing
