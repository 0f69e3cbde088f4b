#include "tools/WriterConsole.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <limits>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace tessarine::tools {

namespace {

// Unix time of 2001-01-01 00:00:00 UTC.
constexpr double referenceDateUnixSeconds = 978'307'200.0;
// A century is as good as forever and keeps the clock's count from overflowing.
constexpr double longestWaitSeconds = 100.0 * 365 * 86'400;
constexpr std::array endingSignals{SIGTERM, SIGINT, SIGHUP};

std::atomic<bool> endRequested{false};
// A byte in this pipe ends the waits; a flag alone could be set just before a wait begins.
std::array<int, 2> wakePipe{-1, -1};

void requestEnd(int /*signal*/) {
    const int savedErrno = errno;
    endRequested = true;
    [[maybe_unused]] const auto written = write(wakePipe[1], "x", 1);
    errno = savedErrno;
}

void handleSignals(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : endingSignals) {
        sigaction(signal, &action, nullptr);
    }
}

void printLine(std::FILE* stream, const QString& line) {
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}

// For `poll`: up to a whole millisecond, so that no wait ends early, and never negative.
int millisecondsUntil(std::chrono::steady_clock::time_point moment) {
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(moment - std::chrono::steady_clock::now());
    return static_cast<int>(
        std::clamp<std::int64_t>(left.count(), 0, std::numeric_limits<int>::max()));
}

} // namespace

WriterConsole::WriterConsole() {
    if (pipe(wakePipe.data()) == 0) {
        for (const int end : wakePipe) {
            fcntl(end, F_SETFD, FD_CLOEXEC);
            fcntl(end, F_SETFL, O_NONBLOCK);
        }
    }
    handleSignals(requestEnd);
}

WriterConsole::~WriterConsole() {
    handleSignals(SIG_DFL);
    close(wakePipe[0]);
    close(wakePipe[1]);
}

void WriterConsole::print(const QString& line) const {
    printLine(stdout, line);
}

void WriterConsole::complain(const QString& line) const {
    printLine(stderr, QCoreApplication::applicationName() + QStringLiteral(": ") + line);
}

bool WriterConsole::interrupted() const {
    return endRequested;
}

std::optional<QString> WriterConsole::readLine() {
    qsizetype end = unread_.indexOf('\n');
    while (end < 0) {
        const Input input = readMore();
        if (input == Input::Interrupted || (input == Input::End && unread_.isEmpty())) {
            return std::nullopt;
        }
        end = input == Input::End ? unread_.size() : unread_.indexOf('\n');
    }
    const QString line = QString::fromUtf8(unread_.first(end));
    unread_.remove(0, end + 1);
    return line;
}

void WriterConsole::waitForEndOfInput() {
    while (readMore() == Input::Bytes) {
        unread_.clear();
    }
}

void WriterConsole::hold(double seconds) {
    if (seconds < 0) {
        waitForEndOfInput();
        return;
    }
    const std::chrono::duration<double> wait(std::min(seconds, longestWaitSeconds));
    waitUntil(std::chrono::steady_clock::now() +
              std::chrono::duration_cast<std::chrono::steady_clock::duration>(wait));
}

bool WriterConsole::waitUntil(std::chrono::steady_clock::time_point moment) {
    while (!interrupted() && std::chrono::steady_clock::now() < moment) {
        pollfd wake{wakePipe[0], POLLIN, 0};
        poll(&wake, 1, millisecondsUntil(moment));
    }
    return !interrupted();
}

WriterConsole::Input WriterConsole::readMore() {
    while (!interrupted()) {
        if (ended_) {
            return Input::End;
        }
        std::array<pollfd, 2> waits{pollfd{wakePipe[0], POLLIN, 0},
                                    pollfd{STDIN_FILENO, POLLIN, 0}};
        if (poll(waits.data(), waits.size(), -1) < 0 || waits[1].revents == 0) {
            continue;
        }
        std::array<char, 4096> bytes{};
        const auto count = read(STDIN_FILENO, bytes.data(), bytes.size());
        if (count > 0) {
            unread_.append(bytes.data(), count);
            return Input::Bytes;
        }
        ended_ = count == 0 || errno != EINTR;
    }
    return Input::Interrupted;
}

qint64 unixMicroseconds() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::microseconds>(now).count();
}

QString unixTimeText(qint64 microseconds) {
    constexpr qint64 perSecond = 1'000'000;
    return QStringLiteral("%1.%2")
        .arg(microseconds / perSecond)
        .arg(microseconds % perSecond, 6, 10, QLatin1Char('0'));
}

double secondsSinceReferenceDate() {
    const std::chrono::duration<double> now = std::chrono::system_clock::now().time_since_epoch();
    return now.count() - referenceDateUnixSeconds;
}

} // namespace tessarine::tools
