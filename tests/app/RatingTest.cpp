#include "browser/Rating.h"

#include "browser/GlassPicture.h"
#include "platform/ui/Picture.h"

#include <gtest/gtest.h>

TEST(Rating, ZonesBeginWhereTheStarsStand) {
    const std::pair<int, int> cases[] = {{-1, 0}, {0, 0},  {2, 0},  {3, 1},  {11, 1}, {12, 2}, {23, 2},
                                         {24, 3}, {35, 3}, {36, 4}, {47, 4}, {48, 5}, {64, 5}, {500, 5}};
    for (const auto& [x, rating] : cases) {
        EXPECT_EQ(RatingAt(x), rating) << "at " << x;
    }
}

TEST(Rating, PicturesOfStoredRatingsReadBack) {
    for (int rating = 0; rating <= 5; ++rating) {
        EXPECT_EQ(RatingOfPicture(RatingPicture(rating)), rating);
    }
    EXPECT_EQ(RatingPicture(-1), RatingPicture(0));
    EXPECT_EQ(RatingPicture(6), RatingPicture(0));
    EXPECT_EQ(RatingOfPicture(nullptr), 0);
}

TEST(GlassPicture, IgnoresCaseAndKnowsNoOtherNames) {
    ASSERT_NE(GlassPicture(QStringLiteral("HighBall")), nullptr);
    EXPECT_EQ(GlassPicture(QStringLiteral("HighBall"))->Name().toStdString(), "Glass_Highball");
    EXPECT_EQ(GlassPicture(QStringLiteral("highball")), GlassPicture(QStringLiteral("HIGHBALL")));
    EXPECT_EQ(GlassPicture(QStringLiteral("Bucket")), nullptr);
    EXPECT_EQ(GlassPicture(QString()), nullptr);
}
