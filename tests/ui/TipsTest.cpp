#include "support/EventLoop.h"
#include "ui/UiFixture.h"

#include <QCursor>
#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

// The lines of help under the pointer, which here come without a delay.
class TipsTest : public UiTest {
protected:
    TipsTest() {
        showHoard(30);
        QTest::mouseMove(window->window(), QPoint(1, 1));
        draw();
    }

    // The tip of an item that the pointer has been over.
    static QObject& tipOf(const QQuickItem& item) {
        for (QObject* child : item.findChildren<QObject*>()) {
            if (child->inherits("QQuickToolTip"))
                return *child;
        }
        for (const QQuickItem* child : item.childItems()) {
            for (QObject* deeper : child->findChildren<QObject*>()) {
                if (deeper->inherits("QQuickToolTip"))
                    return *deeper;
            }
        }
        qFatal("there is no tip");
    }

    void rest(const QPoint& place) {
        QCursor::setPos(window->window()->mapToGlobal(place));
        QTest::mouseMove(window->window(), place);
        draw();
    }

    void leave() { rest(QPoint(1, 1)); }

    // Comes to the item by a first step, which makes the tip, and a second one to the place in it.
    QObject& restOn(const QQuickItem& item, const QPointF& place) {
        rest(item.mapToScene(place).toPoint() + QPoint(1, 0));
        QObject& tip = tipOf(item);
        leave();
        tip.setProperty("delay", 0);
        rest(item.mapToScene(place).toPoint() + QPoint(1, 0));
        return tip;
    }

    static bool isSeen(const QObject& tip) { return tip.property("visible").toBool(); }

    QRectF placeOf(const QObject& tip) const {
        const auto* face = tip.property("background").value<QQuickItem*>();
        return face->mapRectToScene(face->boundingRect());
    }

    static QRectF placeOf(const QQuickItem& item) {
        return item.mapRectToScene(item.boundingRect());
    }

    QRectF windowRoom() const { return {QPointF(), QSizeF(window->window()->size())}; }

    // The last row that is in sight, if only in part.
    QQuickItem& lowestRow() const {
        for (int number = 1; number <= 30; ++number) {
            if (QQuickItem* found = row(u"Title %1"_qs.arg(number)))
                return *found;
        }
        qFatal("there is no row");
    }
};

TEST_F(TipsTest, ATipIsBelowItsRowAtThePointer) {
    const QQuickItem& explained = *row(u"Title 29"_qs);
    const QObject& tip = restOn(explained, QPointF(400, 20));
    ASSERT_TRUE(isSeen(tip));
    EXPECT_EQ(placeOf(tip).top(), placeOf(explained).bottom() + 4);
    EXPECT_NEAR(placeOf(tip).center().x(), 401, 1);
}

TEST_F(TipsTest, ATipIsAboveARowAtTheEndOfTheWindow) {
    const QQuickItem& explained = lowestRow();
    const QObject& tip = restOn(explained, QPointF(400, 10));
    ASSERT_TRUE(isSeen(tip));
    EXPECT_EQ(placeOf(tip).bottom(), placeOf(explained).top() - 4);
}

TEST_F(TipsTest, ATipStaysInTheWindow) {
    const QQuickItem& button = item(u"enterSelection"_qs);
    const QObject& tip = restOn(button, QPointF(20, 10));
    ASSERT_TRUE(isSeen(tip));
    EXPECT_TRUE(windowRoom().contains(placeOf(tip)));
    EXPECT_FALSE(placeOf(tip).intersects(placeOf(button)));
}

TEST_F(TipsTest, APressEndsItUntilThePointerComesAnew) {
    const QQuickItem& explained = *row(u"Title 29"_qs);
    const QPoint place = explained.mapToScene(QPointF(400, 20)).toPoint();
    const QObject& tip = restOn(explained, QPointF(400, 20));
    ASSERT_TRUE(isSeen(tip));
    QTest::mouseClick(window->window(), Qt::LeftButton, {}, place);
    EXPECT_FALSE(isSeen(tip));
    rest(place + QPoint(5, 2));
    EXPECT_FALSE(isSeen(tip));
    leave();
    rest(place);
    EXPECT_TRUE(isSeen(tip));
}

TEST_F(TipsTest, ThereIsNoneUnderWhatLiesOverTheWindow) {
    const QQuickItem& explained = *row(u"Title 29"_qs);
    click(*row(u"Title 28"_qs));
    const QObject& tip = restOn(explained, QPointF(400, 20));
    ASSERT_TRUE(isSeen(tip));
    press(Qt::Key_Space);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"preview"_qs); }));
    EXPECT_FALSE(isSeen(tip));
    rest(explained.mapToScene(QPointF(410, 22)).toPoint());
    EXPECT_FALSE(isSeen(tip));
}

TEST_F(TipsTest, ThereIsNoneUnderAMenuThatAKeyOpened) {
    const QQuickItem& explained = *row(u"Title 29"_qs);
    click(*row(u"Title 28"_qs));
    const QObject& tip = restOn(explained, QPointF(400, 20));
    ASSERT_TRUE(isSeen(tip));
    press(Qt::Key_Menu);
    ASSERT_TRUE(turnsUntil([&] { return isShown(u"rowMenu"_qs); }));
    EXPECT_FALSE(isSeen(tip));
}

} // namespace
} // namespace tessarine::testing
