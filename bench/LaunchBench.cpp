// From the start of the process to the list on the screen, with a hoard of so many rows: the real
// services and the real window, shown at once. Prints when each stage was reached, as medians over
// several processes, and the resident memory at the end.
//
// usage: bench_launch [ROWS] [PROCESSES]

#include "bench/linux/ResidentMemory.h"
#include "browser/MainWindow.h"
#include "core/ViewServices.h"
#include "windows/ViewEngine.h"

#include <QApplication>
#include <QProcess>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>

#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <vector>

namespace {

using namespace tessarine;

double wallClock() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration<double, std::milli>(now).count();
}

void reached(const char* stage, double start) {
    std::printf("%s %.1f\n", stage, wallClock() - start);
}

int runChild(int argc, char** argv, double start) {
    reached("1-main", start);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const std::unique_ptr<Platform> platform = makePlatform();
    const std::unique_ptr<Desktop> desktop = makeDesktop();
    registerUi();
    Services services(*platform);
    ViewServices views(services, *desktop, [](const QString&) {});
    reached("2-services", start);
    MainWindow window(views.browser(), *platform->userDefaults, *views.engine);
    reached("3-window-built", start);
    window.showAndMakeKey();
    services.listener->start();
    bool loaded = false;
    QObject::connect(services.listener.get(), &NotificationListener::notificationsChanged, [&] {
        if (!loaded)
            reached("4-list-loaded", start);
        loaded = true;
    });
    QObject::connect(window.window(), &QQuickWindow::frameSwapped, window.window(), [&] {
        if (!loaded)
            return;
        reached("5-list-on-screen", start);
        std::printf("resident-MB %.1f\n", residentMegabytes());
        std::fflush(stdout);
        std::_Exit(EXIT_SUCCESS);
    });
    return QApplication::exec();
}

void makeHoard(const QString& home, const QByteArray& rows) {
    const QString folder = home + QStringLiteral("/.local/share");
    qputenv("HOME", home.toUtf8());
    qputenv("XDG_DATA_HOME", folder.toUtf8());
    qputenv("XDG_CONFIG_HOME", (home + QStringLiteral("/.config")).toUtf8());
    const std::unique_ptr<Platform> platform = makePlatform();
    HoardStore store(*platform->fileSystem, *platform->userDefaults, *platform->scheduler);
    store.open();
    sqlite3* bare = nullptr;
    sqlite3_open(store.path().toUtf8().constData(), &bare);
    const QByteArray fill =
        "WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n WHERE i < " + rows +
        ") INSERT INTO notifications(system_note_id, bundle_id, app_name, title, body, timestamp) "
        "SELECT i, 'com.example.app' || (i % 40), 'App ' || (i % 40), 'Title of ' || i, 'The body "
        "of message ' || i || ', as long as most bodies are', 700000000.0 + i FROM n";
    if (sqlite3_exec(bare, fill.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        std::abort();
    sqlite3_close(bare);
}

void runParent(const char* program, int processes) {
    std::map<QByteArray, std::vector<double>> stages;
    for (int i = 0; i < processes; ++i) {
        QProcess child;
        const double start = wallClock();
        child.start(QString::fromLocal8Bit(program),
                    {QStringLiteral("--child"), QString::number(start, 'f', 3)});
        child.waitForFinished(60000);
        for (const QByteArray& line : child.readAllStandardOutput().split('\n')) {
            const QList<QByteArray> words = line.split(' ');
            if (words.size() == 2)
                stages[words[0]].push_back(words[1].toDouble());
        }
    }
    for (auto& [stage, values] : stages) {
        std::sort(values.begin(), values.end());
        std::printf("%-18s median %8.1f   from %8.1f to %8.1f\n", stage.constData(),
                    values[values.size() / 2], values.front(), values.back());
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 3 && QByteArray(argv[1]) == "--child")
        return runChild(argc, argv, std::atof(argv[2]));
    const QByteArray rows = argc > 1 ? argv[1] : "1000000";
    const int processes = argc > 2 ? std::atoi(argv[2]) : 9;
    const QTemporaryDir home;
    const QCoreApplication application(argc, argv);
    makeHoard(home.path(), rows);
    std::printf("milliseconds from the start of the process, %s rows, %d processes\n",
                rows.constData(), processes);
    runParent(argv[0], processes);
    std::fflush(stdout);
    return EXIT_SUCCESS;
}
