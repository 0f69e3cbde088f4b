#include "support/EventLoop.h"
#include "ui/UiFixture.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QTest>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

QRectF inWindow(const QQuickItem& item) {
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

// The visible items below another whose type begins so.
QList<QQuickItem*> itemsOfType(const QQuickItem& top, const QByteArray& type) {
    QList<QQuickItem*> found;
    for (QQuickItem* child : top.childItems()) {
        if (!child->isVisible())
            continue;
        if (QByteArray(child->metaObject()->className()).startsWith(type))
            found << child;
        found << itemsOfType(*child, type);
    }
    return found;
}

class ListColumnTest : public UiTest {
protected:
    void showIn(int width) {
        makeWindow();
        publish(numbered(60));
        window->window()->resize(width, 520);
        show();
        resizeTo(width, 520);
        draw();
    }

    QRectF card() const {
        return inWindow(*itemsOfType(*row(u"Title 60"_qs), "RowBackground").front());
    }
};

TEST_F(ListColumnTest, FieldCaptionsAndCardsBeginAtOneEdge) {
    for (const int width : {720, 1100, 1600}) {
        showIn(width);
        const double edge = card().left();
        EXPECT_EQ(inWindow(item(u"searchField"_qs)).left(), edge) << width;
        EXPECT_EQ(inWindow(*itemsOfType(root(), "CaptionedControl").front()).left(), edge) << width;
        EXPECT_EQ(inWindow(item(u"counter"_qs)).right(), card().right()) << width;
        window.reset();
    }
}

TEST_F(ListColumnTest, GrowsNoWiderThanLinesCanBeRead) {
    showIn(1600);
    EXPECT_EQ(card().width(), 704); // 720 with 8 on each side
    EXPECT_NEAR(card().center().x(), 800, 1);
}

TEST_F(ListColumnTest, HasTheScrollThumbBesideTheCards) {
    showIn(720);
    const double edge = card().right();
    QQuickItem& thumb = *itemsOfType(root(), "ThinScrollBar").front();
    EXPECT_GT(inWindow(thumb).width(), 0);
    EXPECT_GE(inWindow(thumb).left(), edge);
    const double resting = thumb.property("thickness").toDouble();
    QTest::mousePress(window->window(), Qt::LeftButton, {}, inWindow(thumb).center().toPoint());
    EXPECT_TRUE(thumb.property("inUse").toBool());
    EXPECT_GT(thumb.property("thickness").toDouble(), resting);
    EXPECT_GE(inWindow(thumb).left(), edge);
    QTest::mouseRelease(window->window(), Qt::LeftButton, {}, inWindow(thumb).center().toPoint());
}

TEST_F(ListColumnTest, HasALineUnderThePinnedHeaderAlone) {
    makeWindow();
    publish(numbered(60));
    view().list()->setGroupMode(GroupMode::app);
    show();
    draw();
    EXPECT_EQ(findItem(u"pinnedLine"_qs), nullptr);
    list().setProperty("contentY", 300.0);
    draw();
    const QRectF line = inWindow(item(u"pinnedLine"_qs));
    EXPECT_EQ(line.top(), inWindow(item(u"pinnedHeader"_qs)).bottom());
    EXPECT_EQ(line.height(), 1);
}

TEST_F(ListColumnTest, CountsInDigitsOfOneWidth) {
    showIn(720);
    EXPECT_EQ(item(u"counter"_qs).property("font").value<QFont>().family(), theme.tabularFamily());
    const QFontMetricsF metrics(item(u"counter"_qs).property("font").value<QFont>());
    for (const QChar digit : u"0123456789"_qs)
        EXPECT_EQ(metrics.horizontalAdvance(digit), metrics.horizontalAdvance(u'0'));
}

// The language is one that is written from right to left.
class MirroredWindowTest : public ListColumnTest {
public:
    ~MirroredWindowTest() override { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

protected:
    MirroredWindowTest() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
};

TEST_F(MirroredWindowTest, HasTheToolbarTheOtherWayRound) {
    showIn(720);
    const QRectF counter = inWindow(item(u"counter"_qs));
    EXPECT_EQ(counter.left(), 8);
    EXPECT_GE(inWindow(item(u"groupButtons"_qs)).left(), counter.right());
    EXPECT_GE(inWindow(item(u"appPicker"_qs)).left(), inWindow(item(u"sortPicker"_qs)).right());
}

TEST_F(MirroredWindowTest, HasTheSelectionBarTheOtherWayRound) {
    showIn(720);
    view().selection()->enterSelectionMode();
    draw();
    EXPECT_EQ(inWindow(item(u"cancelSelection"_qs)).right(), 712);
    EXPECT_EQ(inWindow(item(u"deleteAll"_qs)).left(), 8);
    EXPECT_GE(inWindow(item(u"selectAll"_qs)).left(), inWindow(item(u"deleteSelected"_qs)).right());
}

// Rows of both directions in a window that goes from left to right.
class MixedRowsTest : public UiTest {
protected:
    MixedRowsTest() {
        NotificationList rows = numbered(2);
        rows[0].title = u"תזכורת"_qs;
        for (CapturedNotification& row : rows)
            row.pinned = true;
        makeWindow();
        publish(rows);
        window->window()->resize(720, 520);
        show();
        resizeTo(720, 520);
        draw();
    }

    QRectF icon(const QString& title) const {
        return inWindow(*itemsOfType(*row(title), "AppIconTile").front());
    }
    QRectF badge(const QString& title) const {
        return inWindow(*itemsOfType(*row(title), "IconBadge").front());
    }
};

TEST_F(MixedRowsTest, ARowFromRightToLeftHasItsIconAtTheRight) {
    EXPECT_EQ(icon(u"תזכורת"_qs).right(), 720 - 8 - 10);
    EXPECT_EQ(badge(u"תזכורת"_qs).left(), icon(u"תזכורת"_qs).left());
}

TEST_F(MixedRowsTest, TheBarsOfAMaskBeginWhereTheTextDoes) {
    preferences.setGlobalPrivacyMode(true);
    draw();
    const auto bars = [this](const QString& title) {
        return itemsOfType(*row(title), "RowMask").front()->childItems();
    };
    for (const QQuickItem* bar : bars(u"תזכורת"_qs))
        EXPECT_EQ(inWindow(*bar).right(), icon(u"תזכורת"_qs).left() - 10);
    for (const QQuickItem* bar : bars(u"Title 1"_qs))
        EXPECT_EQ(inWindow(*bar).left(), icon(u"Title 1"_qs).right() + 10);
}

TEST_F(MixedRowsTest, AnotherRowKeepsItAtTheLeft) {
    EXPECT_EQ(icon(u"Title 1"_qs).left(), 8 + 10);
    EXPECT_EQ(badge(u"Title 1"_qs).right(), icon(u"Title 1"_qs).right());
}

} // namespace
} // namespace tessarine::testing
