// What a user of the diagnostics window waits on, over the real window on the screen that Qt finds:
// from asking for it to its first frame, and what a line of the log costs while a thousand come in
// a second.
//
// usage: bench_diagnostics [OPENINGS]

#include "core/ViewServices.h"
#include "diagnosticsview/DiagnosticsWindow.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"
#include "windows/ViewEngine.h"

#include <QApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

using namespace tessarine;
using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

void report(const char* what, std::vector<double> values, const char* unit) {
    std::sort(values.begin(), values.end());
    std::printf("%-46s median %8.3f   from %8.3f to %8.3f %s\n", what, values[values.size() / 2],
                values.front(), values.back(), unit);
}

struct Setting {
    Setting() {
        for (int i = 0; i < 200; ++i)
            log(i);
    }

    void log(int number) {
        services.diagnostics.log(
            QStringLiteral("Captured notification from [App %1]").arg(number % 40),
            Level(number % 4), Category(number % 5));
    }

    QTemporaryDir folder;
    testing::SimulatedPlatform system{folder.path()};
    testing::SimulatedDesktop desktop{makeSymbols()};
    Services services{system.platform};
    ViewServices views{services, desktop.desktop, [](const QString&) {}};
};

// Turns the event loop until the window has drawn so many frames more.
void drawFrames(QQuickWindow& window, int count) {
    int drawn = 0;
    const auto connection = QObject::connect(
        &window, &QQuickWindow::frameSwapped, &window, [&] { ++drawn; }, Qt::QueuedConnection);
    while (drawn < count) {
        window.update();
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QObject::disconnect(connection);
}

void measureOpening(Setting& setting, int openings) {
    std::vector<double> times;
    for (int i = 0; i < openings; ++i) {
        const auto start = Clock::now();
        ViewWindow& window = diagnosticsWindow(setting.views.diagnostics(), *setting.views.engine);
        window.showAndMakeKey();
        drawFrames(window.window(), 1);
        times.push_back(millisecondsSince(start));
        window.window().close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    std::printf("%-46s %8.3f ms\n", "first opening", times.front());
    report("opening, from asking to the first frame", times, "ms");
}

// A second's worth of lines, sixteen or seventeen a frame.
void measureLog(Setting& setting, const char* what, double scrolledTo) {
    constexpr int frames = 60;
    constexpr int lines = 1000;
    ViewWindow& window = diagnosticsWindow(setting.views.diagnostics(), *setting.views.engine);
    window.showAndMakeKey();
    drawFrames(window.window(), 3);
    auto* const list = window.root().findChild<QQuickItem*>(QStringLiteral("logList"));
    list->setProperty("contentY", scrolledTo);
    std::vector<double> logging;
    std::vector<double> drawing;
    int next = 0;
    for (int frame = 1; frame <= frames; ++frame) {
        const auto start = Clock::now();
        while (next < lines * frame / frames)
            setting.log(next++);
        logging.push_back(millisecondsSince(start));
        const auto logged = Clock::now();
        window.window().grabWindow();
        drawing.push_back(millisecondsSince(logged));
    }
    std::printf("%s\n", what);
    report("  16 or 17 lines into log and model", logging, "ms");
    report("  a frame with them (grabbed)", drawing, "ms");
    window.window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    registerUi();
    Setting setting;
    measureOpening(setting, argc > 1 ? std::atoi(argv[1]) : 20);
    measureLog(setting, "1,000 lines a second, at the top", 0.0);
    measureLog(setting, "1,000 lines a second, further down", 1000.0);
    return EXIT_SUCCESS;
}
