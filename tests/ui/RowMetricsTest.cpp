#include "support/EventLoop.h"
#include "ui/UiFixture.h"

#include <QTest>

#include <array>
#include <cmath>
#include <vector>

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

// A colour over another that hides what is below it.
QColor over(const QColor& below, QColor above, double opacity) {
    const auto mix = [&](int low, int high) {
        return int(std::lround(low + (high - low) * opacity));
    };
    return {mix(below.red(), above.red()), mix(below.green(), above.green()),
            mix(below.blue(), above.blue())};
}

bool isAlmost(const QColor& left, const QColor& right) {
    return std::abs(left.red() - right.red()) <= 2 && std::abs(left.green() - right.green()) <= 2 &&
           std::abs(left.blue() - right.blue()) <= 2;
}

// Where the parts of a row lie, and what it looks like in each of its states. All numbers are
// points; the row's own upper left corner is the origin.
class RowMetricsTest : public UiTest, public ::testing::WithParamInterface<bool> {
protected:
    RowMetricsTest() {
        theme.applyAppearance(GetParam() ? u"dark"_qs : u"light"_qs);
        showHoard(4);
        QTest::mouseMove(window->window(), QPoint(1, 519));
        draw();
    }

    QQuickItem& rowItem() const { return *row(u"Title 2"_qs); }
    const Palette& colours() const { return theme.colours(); }

    static std::vector<QQuickItem*> below(const QQuickItem& top) {
        std::vector<QQuickItem*> found;
        for (QQuickItem* child : top.childItems()) {
            if (!child->isVisible())
                continue;
            found.push_back(child);
            const auto deeper = below(*child);
            found.insert(found.end(), deeper.begin(), deeper.end());
        }
        return found;
    }

    // The visible part of the row of this type.
    QQuickItem& part(const char* type) const {
        for (QQuickItem* item : below(rowItem())) {
            if (QByteArray(item->metaObject()->className()).startsWith(type))
                return *item;
        }
        qFatal("the row shows no %s", type);
    }

    QQuickItem& text(const QString& text) const {
        for (QQuickItem* item : below(rowItem())) {
            if (item->inherits("QQuickText") && item->property("text") == text)
                return *item;
        }
        qFatal("the row shows no text %s", qPrintable(text));
    }

    QQuickItem& symbol(const QString& name) const {
        for (QQuickItem* item : below(rowItem())) {
            if (QByteArray(item->metaObject()->className()).startsWith("SymbolImage") &&
                item->property("symbol") == name)
                return *item;
        }
        qFatal("the row shows no symbol %s", qPrintable(name));
    }

    QRectF place(const QQuickItem& item) const {
        return item.mapRectToItem(&rowItem(), QRectF(0, 0, item.width(), item.height()));
    }

    static QFont font(const QQuickItem& text) { return text.property("font").value<QFont>(); }
    static QColor colour(const QQuickItem& item) { return item.property("color").value<QColor>(); }

    void mask() {
        preferences.setGlobalPrivacyMode(true);
        draw();
    }

    // The colour at a place in the row, as the window shows it.
    QColor shown(QPointF place) const {
        const QImage picture = window->window()->grabWindow();
        return picture.pixelColor(rowItem().mapToScene(place).toPoint());
    }

    // What lies so many pixels inside each edge of the card, in the middle of the edge.
    std::array<QColor, 4> edges(int inside) const {
        const QRect card = place(part("RowBackground")).toRect();
        return {shown(QPointF(card.center().x(), card.top() + inside)),
                shown(QPointF(card.center().x(), card.bottom() - inside)),
                shown(QPointF(card.left() + inside, card.center().y())),
                shown(QPointF(card.right() - inside, card.center().y()))};
    }

    void expectEdges(int inside, const QColor& expected) const {
        for (const QColor& edge : edges(inside))
            EXPECT_TRUE(isAlmost(edge, expected))
                << inside << " inside: " << edge.name().toStdString() << " and not "
                << expected.name().toStdString();
    }

    // What fills the card: pixels alone can't tell 0.13 from 0.14.
    void expectGround(const QColor& expected, double opacity) const {
        int grounds = 0;
        for (const QQuickItem* item : part("RowBackground").childItems()) {
            if (!item->isVisible() || !item->inherits("QQuickRectangle"))
                continue;
            ++grounds;
            EXPECT_EQ(colour(*item), expected);
            EXPECT_DOUBLE_EQ(item->opacity(), opacity);
            EXPECT_EQ(item->property("radius").toDouble(), 8);
        }
        EXPECT_EQ(grounds, 1);
    }

    void expectOutline(double width, double opacity) const {
        const QQuickItem& outline = part("tessarine::Outline");
        EXPECT_EQ(colour(outline), colours().accent);
        EXPECT_DOUBLE_EQ(outline.opacity(), opacity);
        EXPECT_DOUBLE_EQ(outline.property("strokeWidth").toDouble(), width);
        EXPECT_EQ(outline.property("radius").toDouble(), 8);
    }

    QColor fill() const {
        const QRectF card = place(part("RowBackground"));
        return shown({card.right() - 60, card.bottom() - 5});
    }

    QString tip() const {
        for (const QObject* child : rowItem().findChildren<QObject*>()) {
            if (child->inherits("QQuickToolTip"))
                return child->property("text").toString();
        }
        return u"none"_qs;
    }
};

// Places

TEST_P(RowMetricsTest, TheCardLeavesEightOnEachSide) {
    EXPECT_EQ(rowItem().width(), list().width());
    EXPECT_EQ(place(part("RowBackground")),
              QRectF(8, 0, rowItem().width() - 16, rowItem().height()));
}

TEST_P(RowMetricsTest, CardsStandFourApartWithFourAboveTheFirst) {
    EXPECT_EQ(row(u"Title 4"_qs)->mapToItem(&list(), QPointF(0, 0)).y(), 4);
    EXPECT_EQ(row(u"Title 3"_qs)->y(), row(u"Title 4"_qs)->y() + row(u"Title 4"_qs)->height() + 4);
    EXPECT_EQ(rowItem().height(), std::floor(rowItem().height())); // so that no edge is blurred
}

TEST_P(RowMetricsTest, TheIconIs36WideInsideThePadding) {
    EXPECT_EQ(place(part("AppIconTile")), QRectF(8 + 10, 6, 36, 36));
    EXPECT_EQ(part("AppIconTile").property("cornerRadius").toDouble(), 8);
}

TEST_P(RowMetricsTest, TheTextsStandTenBesideTheIconWithTwoBetweenThem) {
    const QRectF app = place(text(u"Mail"_qs));
    const QRectF title = place(text(u"Title 2"_qs));
    const QRectF body = place(text(u"Body 2"_qs));
    EXPECT_EQ(app.topLeft(), QPointF(18 + 36 + 10, 6));
    EXPECT_EQ(title.topLeft(), QPointF(64, app.bottom() + 2));
    EXPECT_EQ(body.topLeft(), QPointF(64, title.bottom() + 2));
    EXPECT_EQ(title.width(), 530); // for some 90 characters
    EXPECT_EQ(rowItem().height(), std::ceil(body.bottom() + 6));
}

TEST_P(RowMetricsTest, TheTextsHaveTheirSizesWeightsAndColours) {
    const QQuickItem& app = text(u"Mail"_qs);
    EXPECT_EQ(font(app).pixelSize(), 11);
    EXPECT_EQ(font(app).weight(), QFont::DemiBold);
    EXPECT_EQ(colour(app), colours().secondaryLabel);
    const QQuickItem& title = text(u"Title 2"_qs);
    EXPECT_EQ(font(title).pixelSize(), 13);
    EXPECT_EQ(font(title).weight(), QFont::Medium);
    EXPECT_EQ(colour(title), colours().label);
    const QQuickItem& body = text(u"Body 2"_qs);
    EXPECT_EQ(font(body).pixelSize(), 12);
    EXPECT_EQ(colour(body), colours().secondaryLabel);
}

TEST_P(RowMetricsTest, TheTimeStandsAtTheFarEndOnTheSameBaseline) {
    const QQuickItem& time = text(u"Nov 16, 2025, 3:33:22\u202fPM"_qs);
    const QQuickItem& app = text(u"Mail"_qs);
    EXPECT_EQ(place(time).right(), rowItem().width() - 18);
    EXPECT_EQ(place(time).top() + time.baselineOffset(), place(app).top() + app.baselineOffset());
    EXPECT_EQ(font(time).pixelSize(), 10);
    EXPECT_EQ(font(time).family(), theme.tabularFamily());
    EXPECT_EQ(colour(time), colours().secondaryLabel);
    EXPECT_DOUBLE_EQ(time.opacity(), 0.7);
}

TEST_P(RowMetricsTest, TwoBarsStandForAMaskedText) {
    mask();
    const QQuickItem& bars = part("RowMask");
    const double top = place(text(u"Mail"_qs)).bottom() + 2 + 2;
    ASSERT_EQ(bars.childItems().size(), 2);
    const QQuickItem& upper = *bars.childItems()[0];
    const QQuickItem& lower = *bars.childItems()[1];
    EXPECT_EQ(place(upper), QRectF(64, top, 160, 12));
    EXPECT_EQ(place(lower), QRectF(64, top + 12 + 4, 220, 10));
    for (const QQuickItem* bar : {&upper, &lower}) {
        EXPECT_EQ(bar->property("radius").toDouble(), 3);
        EXPECT_EQ(colour(*bar), colours().secondaryLabel);
    }
    EXPECT_DOUBLE_EQ(upper.opacity(), 0.2);
    EXPECT_DOUBLE_EQ(lower.opacity(), 0.13);
}

TEST_P(RowMetricsTest, AMaskedRowSaysHowToSeeMoreInThePlaceOfTheTime) {
    mask();
    const QQuickItem& hint = text(u"Click to reveal"_qs);
    EXPECT_EQ(place(hint).right(), rowItem().width() - 18);
    EXPECT_EQ(font(hint).pixelSize(), 10);
    EXPECT_EQ(colour(hint), colours().secondaryLabel);
    EXPECT_DOUBLE_EQ(hint.parentItem()->opacity(), 0.6);
    EXPECT_LT(place(symbol(u"eye"_qs)).right(), place(hint).left());
}

TEST_P(RowMetricsTest, BadgesStandInTheCornersOfTheIcon) {
    view().actions()->togglePinned(view().list()->lines()->entries()[2].notification.id);
    mask();
    const QRectF icon = place(part("AppIconTile"));
    const QQuickItem& lock = symbol(u"lock.fill"_qs);
    const QQuickItem& pin = symbol(u"pin.fill"_qs);
    EXPECT_EQ(lock.property("size").toInt(), 9);
    EXPECT_EQ(pin.property("size").toInt(), 8);
    for (const QQuickItem* sign : {&lock, &pin})
        EXPECT_EQ(sign->property("tint").value<QColor>(), QColor(Qt::white));
    EXPECT_EQ(place(*lock.parentItem()),
              QRectF(icon.right() - 15, icon.bottom() - 15, 15, 15)); // 3 of padding
    EXPECT_EQ(place(*pin.parentItem()), QRectF(icon.right() - 14, icon.top(), 14, 14));
    QColor shade = colours().secondaryLabel;
    shade.setAlphaF(0.8F);
    EXPECT_EQ(colour(*lock.parentItem()), shade);
    EXPECT_EQ(colour(*pin.parentItem()), colours().accentFill);
}

TEST_P(RowMetricsTest, ARingInTheColourOfTheCardSetsABadgeOffFromTheIcon) {
    view().actions()->togglePinned(view().list()->lines()->entries()[2].notification.id);
    draw();
    const QRectF pin = place(*symbol(u"pin.fill"_qs).parentItem());
    const auto ring = [&] { return shown({pin.left() - 1, pin.center().y()}); };
    const auto expectRing = [&](const QColor& expected) {
        EXPECT_TRUE(isAlmost(ring(), expected))
            << ring().name().toStdString() << " and not " << expected.name().toStdString();
    };
    expectRing(over(colours().windowBackground, colours().controlBackground, 0.5));
    QTest::mouseMove(window->window(), rowItem().mapToScene(QPointF(300, 8)).toPoint());
    draw();
    expectRing(colours().controlBackground);
    click(rowItem());
    expectRing(over(colours().windowBackground, colours().accent, 0.13));
    appearance.setHighContrast(true);
    draw();
    expectRing(over(colours().windowBackground, colours().accent, 0.13));
    press(Qt::Key_Escape);
    view().selection()->enterSelectionMode();
    click(rowItem());
    EXPECT_TRUE(turnsUntil([&] {
        draw();
        const QRectF moved = place(*symbol(u"pin.fill"_qs).parentItem());
        return moved.left() == pin.left() + 24 + 10;
    }));
    EXPECT_TRUE(isAlmost(shown({pin.left() + 34 - 1, pin.center().y()}),
                         over(colours().windowBackground, colours().accent, 0.08)));
}

TEST_P(RowMetricsTest, InSelectionModeACircleStandsBeforeTheIcon) {
    view().selection()->enterSelectionMode();
    EXPECT_TRUE(turnsUntil([&] {
        draw();
        return place(part("AppIconTile")).left() == 18 + 24 + 10;
    }));
    const QQuickItem& circle = symbol(u"circle"_qs);
    EXPECT_EQ(circle.property("size").toInt(), 18);
    EXPECT_EQ(circle.property("tint").value<QColor>(), colours().tertiaryLabel);
    EXPECT_EQ(place(circle), QRectF(18 + 3, 6 + 8, 18, 18)); // in the middle of its column
    click(rowItem());
    EXPECT_EQ(symbol(u"checkmark.circle.fill"_qs).property("tint").value<QColor>(),
              colours().accent);
}

// Backgrounds

TEST_P(RowMetricsTest, AtRestItIsHalfFilledWithoutAStroke) {
    expectGround(colours().controlBackground, 0.5);
    const QColor resting = over(colours().windowBackground, colours().controlBackground, 0.5);
    EXPECT_TRUE(isAlmost(fill(), resting)) << fill().name().toStdString();
    expectEdges(0, resting);
}

TEST_P(RowMetricsTest, UnderThePointerItIsFilledWithoutAStroke) {
    QTest::mouseMove(window->window(), rowItem().mapToScene(QPointF(300, 8)).toPoint());
    draw();
    expectGround(colours().controlBackground, 1);
    EXPECT_EQ(fill(), colours().controlBackground);
    expectEdges(0, colours().controlBackground);
}

TEST_P(RowMetricsTest, FocusedItHasAStrokeOfOneAndAHalfOnEverySide) {
    click(rowItem());
    QTest::mouseMove(window->window(), QPoint(1, 519));
    expectGround(colours().accent, 0.13);
    expectOutline(1.5, 0.55);
    const QColor filled = over(colours().windowBackground, colours().accent, 0.13);
    EXPECT_TRUE(isAlmost(fill(), filled)) << fill().name().toStdString();
    expectEdges(0, over(filled, colours().accent, 0.55));
    expectEdges(1, over(filled, colours().accent, 0.55 / 2)); // the half
    expectEdges(2, filled);
}

TEST_P(RowMetricsTest, SelectedItHasAStrokeOfOneOnEverySide) {
    view().selection()->enterSelectionMode();
    click(rowItem());
    expectGround(colours().accent, 0.08);
    expectOutline(1, 0.25);
    const QColor filled = over(colours().windowBackground, colours().accent, 0.08);
    EXPECT_TRUE(isAlmost(fill(), filled)) << fill().name().toStdString();
    expectEdges(0, over(filled, colours().accent, 0.25));
    expectEdges(1, filled);
}

TEST_P(RowMetricsTest, FocusCountsMoreThanThePointer) {
    click(rowItem()); // the pointer stays
    expectGround(colours().accent, 0.13);
    EXPECT_TRUE(isAlmost(fill(), over(colours().windowBackground, colours().accent, 0.13)));
}

TEST_P(RowMetricsTest, ItsCornersAreRoundInEveryState) {
    const auto corner = [this] { return shown({8, 0}); };
    EXPECT_EQ(corner(), colours().windowBackground);
    click(rowItem());
    EXPECT_TRUE(isAlmost(corner(), colours().windowBackground));
    EXPECT_EQ(part("RowBackground").property("radius").toDouble(), 8);
}

// Tips

TEST_P(RowMetricsTest, ItsTipTellsWhatAClickDoes) {
    EXPECT_EQ(tip(), u"none"_qs); // it is made when the pointer first comes
    QTest::mouseMove(window->window(), rowItem().mapToScene(QPointF(40, 20)).toPoint());
    draw();
    EXPECT_EQ(tip(), u"Click to select, double-click to open Mail"_qs);
    mask();
    EXPECT_EQ(tip(), u"Click to reveal"_qs);
    click(rowItem());
    EXPECT_EQ(tip(), u"Click to select, double-click to open Mail"_qs);
    view().selection()->enterSelectionMode();
    EXPECT_EQ(tip(), u"Select"_qs);
    click(rowItem());
    EXPECT_EQ(tip(), u"Deselect"_qs);
}

INSTANTIATE_TEST_SUITE_P(Looks, RowMetricsTest, ::testing::Bool(), [](const auto& test) {
    return std::string(test.param ? "Dark" : "Light");
});

} // namespace
} // namespace tessarine::testing
