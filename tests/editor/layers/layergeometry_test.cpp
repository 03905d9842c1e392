#include "layergeometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using namespace LayerGeometry;

TEST(SnapRotation, BandsAreTenDegreesEitherSideOfEachTarget)
{
    EXPECT_EQ(snapTarget(50, 10), 45.0);
    EXPECT_EQ(snapTarget(40, 10), 45.0);
    EXPECT_EQ(snapTarget(35, 10), 45.0); // the lower edge is in the band
    EXPECT_EQ(snapTarget(55, 10), 45.0); // and so is the upper one
    EXPECT_EQ(snapTarget(60, 10), std::nullopt);
    EXPECT_EQ(snapTarget(-172, 10), -180.0);
    EXPECT_EQ(snapTarget(175, 10), 180.0);
}

TEST(SnapRotation, AnAngleExactlyOnATargetFiresNoBand)
{
    for (const double target : { 0.0, 45.0, 90.0, 135.0, 180.0, -45.0, -90.0, -135.0, -180.0 })
        EXPECT_EQ(snapTarget(target, 10), std::nullopt) << target;
}

TEST(SnapRotation, WalkOrderDecidesWhereWideBandsOverlap)
{
    // With bands 30 wide, 20 is in the bands of both 0 and 45; 0 comes first in the walk.
    EXPECT_EQ(snapTarget(20, 30), 0.0);
    // -20 lies in the bands of 0 and -45; 0 is walked before -45.
    EXPECT_EQ(snapTarget(-20, 30), 0.0);
}

TEST(SwiftDescription, PrintsTheShortestFormAsSwiftDoes)
{
    EXPECT_EQ(swiftDescription(45.0), "45.0");
    EXPECT_EQ(swiftDescription(-0.0), "-0.0");
    EXPECT_EQ(swiftDescription(0.0), "0.0");
    EXPECT_EQ(swiftDescription(-180.0), "-180.0");
    EXPECT_EQ(swiftDescription(0.1), "0.1");
    EXPECT_EQ(swiftDescription(45.00000000000001), "45.00000000000001");
    EXPECT_EQ(swiftDescription(44.99999999999999), "44.99999999999999");
    EXPECT_EQ(swiftDescription(0.0001), "0.0001");
    EXPECT_EQ(swiftDescription(0.00001), "1e-05");
    EXPECT_EQ(swiftDescription(1.5e-7), "1.5e-07");
    EXPECT_EQ(swiftDescription(1e16), "1e+16");
    EXPECT_EQ(swiftDescription(123456.0), "123456.0");
}

TEST(SwiftDescription, OnlyTheListedTextsCountAsSnapAngles)
{
    EXPECT_TRUE(isSnapAngleText("45.0"));
    EXPECT_TRUE(isSnapAngleText("-0.0"));
    EXPECT_TRUE(isSnapAngleText("-180"));
    EXPECT_FALSE(isSnapAngleText("45.00000000000001"));
    EXPECT_FALSE(isSnapAngleText("225.0"));
    EXPECT_FALSE(isSnapAngleText("45.5"));
}

TEST(PerspectiveRotation, KeepsOnlyTheTurnInTheAffinePart)
{
    const QTransform t = perspectiveRotation(std::numbers::pi / 2);
    EXPECT_NEAR(t.m11(), 0.0, 1e-15);
    EXPECT_DOUBLE_EQ(t.m12(), 1.0);
    EXPECT_DOUBLE_EQ(t.m21(), -1.0);
    EXPECT_DOUBLE_EQ(t.dx(), 0.0);
    EXPECT_DOUBLE_EQ(t.dy(), 0.0);
    EXPECT_EQ(swiftDescription(degrees(t)), "90.0");
    EXPECT_NEAR(degrees(perspectiveRotation(-3.0)), -3.0 * 180 / std::numbers::pi, 1e-12);
}

TEST(TouchAngle, IsComputedInSinglePrecision)
{
    const double angle = touchAngle(QPointF(10.1, 3.3), QPointF(0.0, 0.0));
    EXPECT_EQ(angle, double(::atan2f(3.3f, 10.1f)));
    EXPECT_NE(angle, std::atan2(3.3, 10.1));
}
