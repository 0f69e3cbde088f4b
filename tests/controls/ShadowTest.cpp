#include "controls/PanelsFixture.h"
#include "controls/SoftShadow.h"

namespace tessarine::testing {
namespace {

using namespace Qt::StringLiterals;

// The values are those of the normal distribution: at the panel's edge half of it lies on either
// side, one deviation further out 15.87 % of it, and three, which are the reach, 0.13 %.
TEST(ShadowProfile, FallsAsANormalDistributionDoes) {
    const QList<double> profile = shadowProfile(200, 24); // a deviation is 8
    EXPECT_NEAR((profile[23] + profile[24]) / 2, 0.5, 0.001);
    EXPECT_NEAR((profile[15] + profile[16]) / 2, 0.1587, 0.001);
    EXPECT_NEAR(profile[0], 0.0013, 0.001);
    EXPECT_NEAR(profile[100], 1, 0.001);
}

TEST(ShadowProfile, IsTheSameFromBothEnds) {
    const QList<double> profile = shadowProfile(61, 12);
    for (int i = 0; i < 61; ++i)
        EXPECT_NEAR(profile[i], profile[60 - i], 1e-9) << i;
}

TEST(ShadowProfile, OfAPanelThinnerThanItsReachIsWeaker) {
    const QList<double> profile = shadowProfile(30, 12);
    EXPECT_LT(profile[15], 0.8);
    EXPECT_GT(profile[15], profile[12]);
}

class ShadowTest : public PanelsTest {
protected:
    // How much darker the picture is this far below the middle of the panel than the window is.
    int darkening(const QString& panel, int distance) {
        const QRectF place = this->place(panel);
        const QColor shown =
            picture().pixelColor(QPointF(place.center().x(), place.bottom() + distance).toPoint());
        return theme.colours().windowBackground.lightness() - shown.lightness();
    }
};

TEST_F(ShadowTest, LiesBelowAPopoverAndFadesAway) {
    open(u"popover"_qs);
    EXPECT_GE(darkening(u"popover"_qs, 2), 15);
    EXPECT_LT(darkening(u"popover"_qs, 14), darkening(u"popover"_qs, 2));
    EXPECT_LE(darkening(u"popover"_qs, 32), 1);
}

TEST_F(ShadowTest, LeavesNothingOverThePanel) {
    open(u"popover"_qs);
    const QPoint inside = place(u"popover"_qs).topLeft().toPoint() + QPoint(4, 12);
    EXPECT_EQ(picture().pixelColor(inside), theme.colours().panelBackground);
}

} // namespace
} // namespace tessarine::testing
