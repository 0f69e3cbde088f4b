// The three writers against bare ones: for CSV and text one that makes the same bytes with the C
// library and writes them by the same system calls, for the report the same drawing calls through
// cairo. For CSV and text also how much memory they take beyond their input, as a multiple of the
// output.

#include "bench/CairoReport.h"
#include "bench/RatioReporter.h"
#include "bench/linux/MemoryMeter.h"
#include "export/ExportManager.h"
#include "support/SimulatedDesktop.h"
#include "support/SimulatedPlatform.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <map>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace tessarine;

constexpr double unixSecondsAtReferenceDate = 978307200.0;

struct Setting {
    QTemporaryDir folder;
    testing::SimulatedPlatform system{folder.path()};
    PreferencesStore preferences{system.defaults};
    testing::SimulatedSavePanel panel;
    ExportManager manager{{preferences, system.scheduler, panel}};
    QString ours = folder.filePath(QStringLiteral("ours"));
    QString bare = folder.filePath(QStringLiteral("bare"));
};

Setting& setting() {
    static auto* const made = new Setting;
    return *made;
}

// Rows of 40 applications, 50 a day, newest first, as a hoard gives them.
const NotificationList& rows(qint64 count) {
    static std::map<qint64, NotificationList> lists;
    NotificationList& list = lists[count];
    for (auto i = qint64(list.size()); i < count; ++i) {
        CapturedNotification row;
        row.appBundleId = QStringLiteral("com.example.app%1").arg(i % 40);
        row.appName = QStringLiteral("App %1").arg(i % 40);
        row.title = QStringLiteral("Title of %1").arg(i);
        row.body = QStringLiteral("The body of message %1; as long as \"most\" are").arg(i);
        row.timestamp = 785000000.0 - double(i) * 1728;
        list.push_back(row);
    }
    return list;
}

// Bare writers

std::string formatted(double timestamp, const char* format) {
    const auto seconds = std::time_t(timestamp + unixSecondsAtReferenceDate);
    std::tm parts{};
    localtime_r(&seconds, &parts);
    char buffer[32];
    return {buffer, std::strftime(buffer, sizeof buffer, format, &parts)};
}

void appendField(std::string& bytes, const QString& text) {
    const QByteArray field = text.toUtf8();
    if (field.indexOf(';') < 0 && field.indexOf('"') < 0 && field.indexOf('\n') < 0 &&
        field.indexOf('\r') < 0) {
        bytes.append(field.constData(), std::size_t(field.size()));
        return;
    }
    bytes += '"';
    for (const char unit : field) {
        if (unit == '"')
            bytes += '"';
        bytes += unit;
    }
    bytes += '"';
}

void writeBare(const std::string& path, const std::string& bytes, int flags) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | flags, 0600);
    if (write(file, bytes.data(), bytes.size()) != ssize_t(bytes.size()))
        std::abort();
    if (flags & O_EXCL)
        fsync(file);
    close(file);
}

void bareCsv(const NotificationList& list) {
    std::string bytes = "\xEF\xBB\xBF"
                        "Date;Time;App;Bundle ID;Title;Body";
    for (const CapturedNotification& row : list) {
        bytes += '\n';
        bytes += formatted(row.timestamp, "%Y-%m-%d");
        bytes += ';';
        bytes += formatted(row.timestamp, "%H:%M:%S");
        for (const QString* text : {&row.appName, &row.appBundleId, &row.title, &row.body}) {
            bytes += ';';
            appendField(bytes, *text);
        }
    }
    writeBare(setting().bare.toStdString(), bytes, 0);
}

void bareText(const NotificationList& list) {
    std::map<std::string, std::vector<const CapturedNotification*>, std::greater<>> days;
    for (const CapturedNotification& row : list)
        days[formatted(row.timestamp, "%Y-%m-%d")].push_back(&row);
    std::string solid, dotted;
    for (int i = 0; i < 60; ++i) {
        solid += "─";
        dotted += "·";
    }
    std::string bytes = "Tessarine — Notification Archive\nGenerated : " +
                        formatted(setting().system.scheduler.now(), "%Y-%m-%d %H:%M:%S") +
                        "\nTotal     : " + std::to_string(list.size()) + " notifications\n" +
                        solid + "\n\n";
    for (const auto& [key, group] : days) {
        bytes += "▸ " + key + "  (" + std::to_string(group.size()) + " notification" +
                 (group.size() == 1 ? "" : "s") + ")\n" + dotted + '\n';
        for (const CapturedNotification* row : group) {
            bytes += formatted(row->timestamp, "%H:%M:%S") + "  [" + row->appName.toStdString() +
                     "]\n  " + row->title.toStdString() + "\n  " + row->body.toStdString() + "\n\n";
        }
    }
    bytes += solid + "\nEnd of report — Tessarine · zorvek.com";
    const std::string temporary = setting().bare.toStdString() + "-new";
    writeBare(temporary, bytes, O_EXCL);
    std::rename(temporary.c_str(), setting().bare.toStdString().c_str());
}

void bareReport(const NotificationList& list) {
    std::vector<PDFRow> reportRows;
    for (const CapturedNotification& row : list)
        reportRows.push_back({row.timestamp, row.appName, row.title, row.body});
    const QByteArray bytes = bench::cairoReport(reportRows);
    const std::string temporary = setting().bare.toStdString() + "-new";
    writeBare(temporary, bytes.toStdString(), O_EXCL);
    std::rename(temporary.c_str(), setting().bare.toStdString().c_str());
}

// Measuring

using OurWriter = ExportResult (ExportManager::*)(const NotificationList&, bool,
                                                  const QString&) const;

template <OurWriter write>
void ours(benchmark::State& state) {
    const NotificationList& list = rows(state.range(0));
    std::size_t peak = 0;
    for (auto _ : state) {
        bench::resetPeak();
        const std::size_t before = bench::allocatedBytes();
        if (!(setting().manager.*write)(list, false, setting().ours).isSuccess())
            state.SkipWithError("the export failed");
        peak = bench::peakAllocatedBytes() - before;
    }
    const auto output = double(QFileInfo(setting().ours).size());
    state.counters["memory/output"] = double(peak) / output;
}

template <void write(const NotificationList&)>
void bare(benchmark::State& state) {
    const NotificationList& list = rows(state.range(0));
    for (auto _ : state)
        write(list);
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A comparison with other bytes would compare nothing.
template <OurWriter write, void bareWrite(const NotificationList&)>
bool makeTheSame() {
    if (!(setting().manager.*write)(rows(500), false, setting().ours).isSuccess())
        return false;
    bareWrite(rows(500));
    return contentOf(setting().ours) == contentOf(setting().bare);
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(500)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(ours<&ExportManager::exportCSV>)->Name("csv/ours")->Apply(sizes);
BENCHMARK(bare<bareCsv>)->Name("csv/bare")->Apply(sizes);
BENCHMARK(ours<&ExportManager::exportTXT>)->Name("text/ours")->Apply(sizes);
BENCHMARK(bare<bareText>)->Name("text/bare")->Apply(sizes);
BENCHMARK(ours<&ExportManager::exportPDF>)->Name("report/ours")->Apply(sizes);
BENCHMARK(bare<bareReport>)->Name("report/bare")->Apply(sizes);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "en_US.UTF-8");
    const QGuiApplication application(argc, argv);
    if (!makeTheSame<&ExportManager::exportCSV, bareCsv>() ||
        !makeTheSame<&ExportManager::exportTXT, bareText>()) {
        std::fputs("the bare writers make other bytes\n", stderr);
        return EXIT_FAILURE;
    }
    return bench::runBenchmarks(argc, argv);
}
