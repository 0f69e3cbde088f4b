#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <optional>

namespace tessarine::tools {

// What a writing tool has to do with the world that started it: lines in, lines out, waiting, and
// the request to end (SIGTERM, SIGINT, SIGHUP), after which no wait lasts, so that the tool can
// close its database properly. One object for each process, on the main thread.
class WriterConsole {
public:
    WriterConsole();
    ~WriterConsole();
    WriterConsole(const WriterConsole&) = delete;
    WriterConsole& operator=(const WriterConsole&) = delete;

    // One line to standard output, which reaches a reader at once.
    void print(const QString& line) const;
    // One line to standard error, behind the name of the application.
    void complain(const QString& line) const;

    // Whether the process was asked to end.
    bool interrupted() const;

    // The next line of standard input without its end; nothing at the end of the input or when the
    // process was asked to end.
    std::optional<QString> readLine();
    // Waits for the end of the input, which is read and dropped, or for the request to end.
    void waitForEndOfInput();
    // What `--hold` means: some seconds, or with -1 until the end of the input. The request to end
    // cuts it short.
    void hold(double seconds);
    // False if the wait was cut short by the request to end.
    bool waitUntil(std::chrono::steady_clock::time_point moment);

private:
    enum class Input { Bytes, End, Interrupted };
    Input readMore();

    QByteArray unread_;
    bool ended_ = false;
};

// Now by the wall clock, in microseconds of Unix time.
[[nodiscard]] qint64 unixMicroseconds();
// Such a moment as seconds with six decimals.
[[nodiscard]] QString unixTimeText(qint64 microseconds);
// Now by the wall clock, in seconds since 2001-01-01 00:00:00 UTC.
[[nodiscard]] double secondsSinceReferenceDate();

} // namespace tessarine::tools
