// The power is cut at any moment: whatever part of the writes the disk has kept, the hoard is
// sound, and what the store has said to be stored is there.

#include "store/CuttableDisk.h"
#include "store/HoardFixture.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;
using testing::CuttableDisk;
using testing::DiskImage;

// How many cuts a test plays; TESSARINE_POWER_CUTS asks for more.
int cutsToPlay() {
    bool isNumber = false;
    const int asked = qEnvironmentVariableIntValue("TESSARINE_POWER_CUTS", &isNumber);
    return isNumber ? asked : 60;
}

// Rows as the judge writes them.
class ExpectedRows {
public:
    void insert(const CapturedNotification& notification) {
        rows_[++lastId_] = {notification.appName, notification.body.size(), false};
    }
    void togglePin(qint64 id) { rows_[id].isPinned = !rows_[id].isPinned; }
    void remove(qint64 id) { rows_.erase(id); }
    void removeApp(const QString& name) {
        std::erase_if(rows_, [&](const auto& row) { return row.second.appName == name; });
    }

    qint64 count() const { return static_cast<qint64>(rows_.size()); }
    qint64 idAt(qint64 place) const { return std::next(rows_.begin(), place)->first; }

    QString text() const {
        QString text = u"ok"_qs;
        for (const auto& [id, row] : rows_)
            text += u" %1:%2:%3:%4"_qs.arg(id).arg(row.appName).arg(row.length).arg(row.isPinned);
        return text;
    }

private:
    struct Row {
        QString appName;
        qint64 length;
        bool isPinned;
    };

    std::map<qint64, Row> rows_;
    qint64 lastId_ = 0;
};

// Python's SQLite, asked again and again.
class Judge {
public:
    Judge() { python_.start(u"python3"_qs, {QStringLiteral(POWER_CUT_JUDGE)}); }
    ~Judge() {
        python_.closeWriteChannel();
        python_.waitForFinished(-1);
    }

    QString verdict(const QString& path) {
        python_.write(path.toUtf8() + '\n');
        while (!python_.canReadLine() && python_.waitForReadyRead(-1)) {
        }
        return QString::fromUtf8(python_.readLine()).trimmed();
    }

private:
    QProcess python_;
};

struct Findings {
    int cuts = 0;
    int unsound = 0; // hoards
    int lost = 0;    // hoards that don't hold what they should
    int unusable = 0;
    QStringList texts;
};

class PowerCut : public testing::HoardFixture {
protected:
    // Plays so many cuts, in lives of a store that follow one another.
    Findings play(int cuts, CuttableDisk::Syncs syncs) {
        for (int life = 1; findings_.cuts < cuts; ++life)
            playLife(static_cast<unsigned>(life), cuts, syncs);
        return findings_;
    }

private:
    static constexpr int operations = 60;
    static constexpr double cutsPerEvent = 0.03;

    void playLife(unsigned seed, int cuts, CuttableDisk::Syncs syncs) {
        random_.seed(seed);
        QDir(folder()).removeRecursively();
        rows_ = {};
        before_ = u"ok none"_qs;
        after_ = rows_.text();
        CuttableDisk disk(folder(), syncs);
        disk.onEvent([&] {
            if (!isJudging_ && findings_.cuts < cuts && chance() < cutsPerEvent)
                cut(disk.imageAfterCut(random_));
        });
        start();
        before_ = after_;
        for (int number = 1; number <= operations && findings_.cuts < cuts; ++number)
            operate(number);
        store.reset();
    }

    double chance() { return std::uniform_real_distribution(0.0, 1.0)(random_); }

    // One operation, and what the hoard holds once it has returned.
    void operate(int number) {
        const double choice = chance();
        if (choice < 0.7 || rows_.count() == 0)
            insert(number);
        else if (choice < 0.88)
            changeRow(choice);
        else if (choice < 0.94)
            store->checkpoint();
        else
            reopen();
        before_ = after_;
    }

    void insert(int number) {
        CapturedNotification added = capture(number, 700000000.0 + number);
        added.appName = u"App%1"_qs.arg(number % 4);
        added.title = u"Title %1"_qs.arg(number);
        added.body = QString(chance() < 0.2 ? 60000 : 40, u'x');
        rows_.insert(added);
        after_ = rows_.text();
        ASSERT_TRUE(number % 2 == 0 ? store->insert(added) : store->insertDeduplicated(added));
    }

    void changeRow(double choice) {
        const auto place = std::uniform_int_distribution<qint64>(0, rows_.count() - 1)(random_);
        const qint64 id = rows_.idAt(place);
        if (choice < 0.78) {
            rows_.togglePin(id);
            after_ = rows_.text();
            store->togglePin(id);
        } else if (choice < 0.86) {
            rows_.remove(id);
            after_ = rows_.text();
            store->deleteNotification(id);
        } else {
            rows_.removeApp(u"App1"_qs);
            after_ = rows_.text();
            store->deleteApp(u"App1"_qs);
        }
    }

    void reopen() {
        store.reset();
        start();
    }

    void cut(const DiskImage& image) {
        isJudging_ = true;
        ++findings_.cuts;
        const QTemporaryDir place;
        const QString path = place.path() + u"/Library/Application Support/Tessarine"_qs;
        writeImage(image, path);
        const QTemporaryDir judged; // reading cleans up, which the store is to do by itself
        writeImage(image, judged.path());
        const QString verdict = judge_.verdict(judged.filePath(u"hoard.db"_qs));
        if (!verdict.startsWith(u"ok"_qs))
            note(findings_.unsound, verdict);
        else if (verdict != before_ && verdict != after_)
            note(findings_.lost, verdict + u" instead of "_qs + before_ + u" or "_qs + after_);
        else if (!storeWorks(place.path(), verdict))
            note(findings_.unusable, verdict);
        isJudging_ = false;
    }

    void note(int& count, const QString& text) {
        ++count;
        findings_.texts << u"cut %1: "_qs.arg(findings_.cuts) + text.left(2000);
    }

    static void writeImage(const DiskImage& image, const QString& path) {
        QDir().mkpath(path);
        for (const auto& [name, bytes] : image)
            writeFile(path + u'/' + name, bytes);
    }

    // A store that finds this after the start of the machine has the rows, and stores another one.
    bool storeWorks(const QString& homePath, const QString& verdict) {
        testing::SimulatedFileSystem files(homePath);
        HoardStore after(files, defaults, scheduler);
        const bool isSound = after.isUsable() && after.integrityCheck() == u"ok"_qs;
        const qint64 rows = after.totalCount();
        const qint64 expected = verdict == u"ok none"_qs ? 0 : verdict.count(u' ');
        return isSound && rows == expected && after.insert(capture(1000000));
    }

    std::mt19937 random_;
    Judge judge_;
    ExpectedRows rows_;
    QString before_; // what the hoard may hold: before the operation that runs, or after it
    QString after_;
    bool isJudging_ = false;
    Findings findings_;
};

TEST_F(PowerCut, LosesNothingThatWasStored) {
    const Findings findings = play(cutsToPlay(), CuttableDisk::Syncs::kept);
    EXPECT_EQ(findings.texts, QStringList());
    EXPECT_EQ(findings.cuts, cutsToPlay());
}

// The test would see it: a disk that doesn't do what a sync asks for loses rows and spoils files.
TEST_F(PowerCut, OnADiskThatIgnoresSyncsIsSeen) {
    const Findings findings = play(cutsToPlay(), CuttableDisk::Syncs::ignored);
    EXPECT_GT(findings.lost, 0);
    EXPECT_GT(findings.unsound, 0);
}

} // namespace
} // namespace tessarine
