// What a user of the browser waits on: deriving the shown list from the loaded rows, a key press in
// the search field until the window is drawn, a frame of scrolling, and loading older rows. The
// window is the real one, drawn by Qt's software renderer without a screen.
//
//   bench_browser            every measurement
//   bench_browser ROWS...    loading older rows at these sizes of the hoard as well

#include "browser/MainWindow.h"
#include "core/ViewServices.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"
#include "windows/ViewEngine.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

using namespace tessarine;

constexpr int repetitions = 15;

// Milliseconds, in order.
class Times {
public:
    template <typename Work>
    void measure(const Work& work) {
        QElapsedTimer timer;
        timer.start();
        work();
        times_.push_back(double(timer.nsecsElapsed()) / 1e6);
    }

    double quantile(double share) {
        std::sort(times_.begin(), times_.end());
        return times_[std::size_t(share * double(times_.size() - 1))];
    }

    void print(const char* name) {
        std::printf("%-44s median %8.3f ms   p99 %8.3f ms   max %8.3f ms\n", name, quantile(0.5),
                    quantile(0.99), quantile(1));
    }

private:
    std::vector<double> times_;
};

NotificationList rows(int count) {
    NotificationList list;
    for (int i = 0; i < count; ++i) {
        CapturedNotification row;
        row.dbId = count - i;
        row.appBundleId = QStringLiteral("com.example.app%1").arg(i % 40);
        row.appName = QStringLiteral("App %1").arg(i % 40);
        row.title = QStringLiteral("Title of %1").arg(i);
        row.body = QStringLiteral("The body of message %1, as long as most bodies are").arg(i);
        row.timestamp = testing::ManualScheduler::startOfTime - 600.0 * i;
        list.push_back(row);
    }
    return list;
}

struct Browser {
    QTemporaryDir folder;
    testing::SimulatedPlatform system{folder.path()};
    testing::SimulatedDesktop desktop{makeSymbols()};
    Services services{system.platform};
    ViewServices views{services, desktop.desktop, [](const QString&) {}};
    HoardStore& hoard = services.hoard;
    std::shared_ptr<NotificationListener> listener = services.listener;
    MainWindow window{views.browser(), system.defaults, *views.engine};

    QQuickItem* list() const {
        return window.window()->contentItem()->findChild<QQuickItem*>(QStringLiteral("list"));
    }
};

void deriving(int count) {
    const NotificationList loaded = rows(count);
    Times plain;
    Times searching;
    Times grouping;
    for (int i = 0; i < repetitions; ++i) {
        plain.measure([&] { sortedBy(SortMode::newest, keepingMatches(loaded, {})); });
        searching.measure(
            [&] { sortedBy(SortMode::app, keepingMatches(loaded, QStringLiteral("message 1"))); });
        grouping.measure([&] { groupedByDate(sortedBy(SortMode::oldest, loaded)); });
    }
    const std::string of = " of " + std::to_string(count) + " rows";
    plain.print(("derive: sort" + of).c_str());
    searching.print(("derive: search, sort by app" + of).c_str());
    grouping.print(("derive: sort, group by day" + of).c_str());
}

void typing(int count) {
    Browser browser;
    browser.listener->setNotifications(rows(count));
    browser.window.window()->resize(720, 520);
    browser.window.showAndMakeKey();
    browser.window.window()->grabWindow();
    Times keys;
    for (int i = 0; i < repetitions; ++i) {
        for (const char* text : {"m", "me", "mes", "message 1", "message 12", ""}) {
            keys.measure([&] {
                browser.window.content().list()->setSearchText(QString::fromLatin1(text));
                browser.window.window()->grabWindow();
            });
        }
    }
    keys.print(("key press to drawn window, " + std::to_string(count) + " rows").c_str());
}

void scrolling(int count) {
    Browser browser;
    browser.listener->setNotifications(rows(count));
    browser.window.window()->resize(720, 520);
    browser.window.showAndMakeKey();
    browser.window.window()->grabWindow();
    QQuickItem* list = browser.list();
    Times frames;
    for (int step = 1; step <= 600; ++step) {
        frames.measure([&] {
            list->setProperty("contentY", step * 40.0);
            browser.window.window()->grabWindow();
        });
    }
    frames.print(("a frame of scrolling, " + std::to_string(count) + " rows").c_str());
}

void fill(const QString& path, qint64 count) {
    sqlite3* bare = nullptr;
    sqlite3_open(path.toUtf8().constData(), &bare);
    const std::string text =
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
        std::to_string(count) +
        ") INSERT INTO notifications(system_note_id, bundle_id, app_name, title, body, timestamp) "
        "SELECT i, 'com.example.app' || (i % 40), 'App ' || (i % 40), 'Title of ' || i, 'The body "
        "of message ' || i || ', as long as most bodies are', 700000000.0 + i FROM n";
    sqlite3_exec(bare, text.c_str(), nullptr, nullptr, nullptr);
    sqlite3_close(bare);
}

// The bare statement: its rows stepped through, the columns touched and thrown away.
void bareFetch(sqlite3* bare, int limit) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(bare,
                       "SELECT id, system_note_id, bundle_id, app_name, title, body, timestamp, "
                       "pinned\nFROM notifications\nORDER BY pinned DESC, timestamp DESC\nLIMIT ?;",
                       -1, &statement, nullptr);
    sqlite3_bind_int(statement, 1, limit);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int column = 0; column < 8; ++column)
            sqlite3_column_text(statement, column);
    }
    sqlite3_finalize(statement);
}

void loadingOlder(qint64 count) {
    Browser browser;
    browser.hoard.open();
    fill(browser.hoard.path(), count);
    browser.listener->setNotifications(browser.hoard.fetchRecent(500));
    browser.window.window()->resize(720, 520);
    browser.window.showAndMakeKey();
    browser.window.window()->grabWindow();
    sqlite3* bare = nullptr;
    sqlite3_open(browser.hoard.path().toUtf8().constData(), &bare);
    Times ours;
    Times statement;
    for (int limit = 1000; limit <= 3500; limit += 500) {
        ours.measure([&] {
            browser.window.content().list()->loadOlder();
            browser.window.window()->grabWindow();
        });
        statement.measure([&] { bareFetch(bare, limit); });
    }
    sqlite3_close(bare);
    ours.print(("loadOlder to drawn window, hoard of " + std::to_string(count)).c_str());
    statement.print("  the bare statement");
    std::printf("ratio loadOlder/%lld %.3f\n", static_cast<long long>(count),
                ours.quantile(0.5) / statement.quantile(0.5));
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QApplication application(argc, argv);
    registerUi();
    for (const int count : {500, 1500, 10000}) {
        deriving(count);
        typing(count);
    }
    scrolling(1500);
    for (int i = 1; i < argc; ++i)
        loadingOlder(std::stoll(argv[i]));
    return 0;
}
