// Pictures of the window in its states, to be looked at; and that nothing in them reaches out.

#include "diagnosticsview/DiagnosticsFixture.h"
#include "support/EventLoop.h"

#include <QDir>
#include <QGuiApplication>

#include <cctype>
#include <string>
#include <tuple>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

enum class State { Empty, Full, Checking, Filtered, Smallest, Wide, Export, Focused };
enum class Desk { Light, Dark, Mirrored };

constexpr const char* nameOf(State state) {
    switch (state) {
    case State::Empty:
        return "empty";
    case State::Full:
        return "full";
    case State::Checking:
        return "checking";
    case State::Filtered:
        return "filtered";
    case State::Smallest:
        return "smallest";
    case State::Wide:
        return "wide";
    case State::Export:
        return "export";
    case State::Focused:
        return "focused";
    }
    return "";
}

constexpr const char* nameOf(Desk desk) {
    return desk == Desk::Light ? "light" : desk == Desk::Dark ? "dark" : "mirrored";
}

using Look = std::tuple<State, Desk>;

// Texts that reach out of the window.
QStringList textsBeyond(const QQuickItem& item, double width) {
    QStringList found;
    if (!item.isVisible())
        return found;
    const QString text = item.property("text").toString();
    const double painted = std::max(item.width(), item.property("paintedWidth").toDouble());
    const QRectF place = item.mapRectToScene(QRectF(0, 0, painted, item.height()));
    if (!text.isEmpty() && (place.left() < 0 || place.right() > width))
        found << text;
    for (const QQuickItem* child : item.childItems())
        found << textsBeyond(*child, width);
    return found;
}

class DiagnosticsPicturesTest : public DiagnosticsFixture,
                                public ::testing::WithParamInterface<Look> {
public:
    ~DiagnosticsPicturesTest() override { QGuiApplication::setLayoutDirection(direction_); }

protected:
    DiagnosticsPicturesTest()
        : direction_(QGuiApplication::layoutDirection()) {
        if (desk() == Desk::Mirrored)
            QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        views.theme.applyAppearance(desk() == Desk::Dark ? u"dark"_qs : u"light"_qs);
    }

    static State state() { return std::get<0>(GetParam()); }
    static Desk desk() { return std::get<1>(GetParam()); }

    void fill() {
        for (qint64 key = 1; key <= 30; ++key)
            hoard.insert(capture(key));
        diagnostics.setAxStatus(u"Observing banners (pid 4711)"_qs);
        diagnostics.setDbStatus(u"Watching, last poll read 3 records in 12 ms and stored 2"_qs);
        diagnostics.setCapturedTotal(1234);
        diagnostics.setLastSeenRecId(987654);
        diagnostics.startPollCountdown();
        for (int i = 0; i < 12; ++i) {
            log(u"Retention: Policy — deleteOlderThan(30d) → 12 deleted"_qs);
            log(u"Captured notification from [Mail]"_qs, Level::activity, Category::ax);
            system.scheduler.advance(0.713);
            log(u"Stored 3 records"_qs, Level::success, Category::usernoted);
            log(u"The database can't be opened: it is locked by another program, and what is said "
                u"of "
                "that takes more than one line, so that it has to be wrapped where the row ends"_qs,
                Level::warning, Category::legacy);
        }
        log(u"Integrity check found problems: row 7 missing from index idx_bundle\nrow 8 missing "
            "from index idx_bundle"_qs,
            Level::warning, Category::hoard);
    }

    void bringAbout() {
        if (state() == State::Checking) {
            system.scheduler.holdGlobalQueues(true);
            database().verifyIntegrity();
            database().createBackup();
            database().copyReport();
            database().exportReport();
        }
        if (state() == State::Filtered)
            view().log()->setSearchText(u"nowhere to be found"_qs);
        if (state() == State::Export)
            database().exportData();
        if (state() == State::Focused) {
            for (int i = 0; i < 5; ++i)
                press(Qt::Key_Tab);
            database().setIncludeNotifContent(true);
        }
    }

    QSize size() const {
        return state() == State::Smallest ? QSize(600, 480)
               : state() == State::Wide   ? QSize(1200, 800)
                                          : QSize(760, 640);
    }

    QImage stillPicture() const {
        QImage before;
        QImage picture = window().window().grabWindow();
        EXPECT_TRUE(turnsUntil([&] {
            turnFor(250);
            before = std::exchange(picture, window().window().grabWindow());
            return state() == State::Checking || before == picture; // where a wheel turns
        }));
        return picture;
    }

private:
    Qt::LayoutDirection direction_;
};

TEST_P(DiagnosticsPicturesTest, ShowTheStateWithoutCuttingIt) {
    if (state() != State::Empty)
        fill();
    show();
    window().window().resize(size());
    ASSERT_TRUE(turnsUntil([&] { return window().root().size() == QSizeF(size()); }));
    bringAbout();
    const QImage picture = stillPicture();
    EXPECT_EQ(textsBeyond(*window().window().contentItem(), size().width()), QStringList());
    const QString name = u"diagnostics-%1-%2@%3x.png"_qs
                             .arg(QLatin1String(nameOf(state())), QLatin1String(nameOf(desk())))
                             .arg(window().window().effectiveDevicePixelRatio());
    QDir().mkpath(QStringLiteral(PICTURES_FOLDER));
    EXPECT_TRUE(picture.save(QDir(QStringLiteral(PICTURES_FOLDER)).filePath(name)));
    system.scheduler.holdGlobalQueues(false);
    system.scheduler.settle();
}

std::string lookName(const ::testing::TestParamInfo<Look>& info) {
    std::string desk = nameOf(std::get<1>(info.param));
    desk.front() = char(std::toupper(desk.front()));
    return nameOf(std::get<0>(info.param)) + desk;
}

INSTANTIATE_TEST_SUITE_P(
    Pictures, DiagnosticsPicturesTest,
    ::testing::Combine(::testing::Values(State::Empty, State::Full, State::Checking,
                                         State::Filtered, State::Smallest, State::Wide,
                                         State::Export, State::Focused),
                       ::testing::Values(Desk::Light, Desk::Dark, Desk::Mirrored)),
    lookName);

} // namespace
} // namespace tessarine::testing
