#include "windows/WindowFrame.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

TEST(WindowFrame, IsKeptAsFourNumbers) {
    EXPECT_EQ(frameToText(QRect(-10, 20, 800, 600)), u"-10 20 800 600"_qs);
    EXPECT_EQ(frameFromText(u"-10 20 800 600"_qs), QRect(-10, 20, 800, 600));
}

TEST(WindowFrame, ASizeIsKeptBetweenTheMinimumAndTheRoom) {
    const QSize minimum(720, 400);
    const QSize room(1000, 800);
    EXPECT_EQ(sizeWithin({900, 500}, minimum, room), QSize(900, 500));
    EXPECT_EQ(sizeWithin({100, 5000}, minimum, room), QSize(720, 800));
    EXPECT_EQ(sizeWithin({900, 500}, minimum, {640, 480}), QSize(720, 480)); // minimum wins
}

TEST(WindowFrame, IsCentredInTheRoomAndNeverStartsOutsideOfIt) {
    EXPECT_EQ(centred({800, 400}, QRect(100, 30, 1000, 800)), QPoint(200, 230));
    EXPECT_EQ(centred({800, 400}, QRect(10, 20, 640, 480)), QPoint(10, 60));
}

} // namespace
} // namespace tessarine
