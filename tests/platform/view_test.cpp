#include "view.h"

#include <QtMath>

#include <gtest/gtest.h>

namespace {

void expectRect(const QRectF &actual, const QRectF &expected)
{
    EXPECT_NEAR(actual.x(), expected.x(), 1e-9);
    EXPECT_NEAR(actual.y(), expected.y(), 1e-9);
    EXPECT_NEAR(actual.width(), expected.width(), 1e-9);
    EXPECT_NEAR(actual.height(), expected.height(), 1e-9);
}

} // namespace

TEST(View, FrameFollowsCenterBoundsAndTransform)
{
    View view(QRectF(10, 20, 100, 50));
    EXPECT_EQ(view.center(), QPointF(60, 45));
    EXPECT_EQ(view.bounds(), QRectF(0, 0, 100, 50));
    // Changing the bounds size keeps the centre.
    view.setBounds(QRectF(0, 0, 40, 40));
    expectRect(view.frame(), QRectF(40, 25, 40, 40));
    // A quarter turn swaps the frame's sides around the same centre.
    view.setBounds(QRectF(0, 0, 100, 50));
    QTransform turn;
    turn.rotate(90);
    view.setTransform(turn);
    expectRect(view.frame(), QRectF(35, -5, 50, 100));
    // Setting the frame of a turned view moves it but keeps its bounds.
    view.setFrame(QRectF(0, 0, 10, 10));
    EXPECT_EQ(view.center(), QPointF(5, 5));
    EXPECT_EQ(view.bounds().size(), QSizeF(100, 50));
}

TEST(View, AutoresizingSharesTheChangeAmongFlexibleParts)
{
    View parent(QRectF(0, 0, 100, 100));
    auto *all = new View(QRectF(10, 10, 80, 80));
    all->setAutoresizingMask(View::FlexibleAll);
    auto *sizeOnly = new View(QRectF(10, 10, 80, 80));
    sizeOnly->setAutoresizingMask(View::FlexibleWidth | View::FlexibleHeight);
    auto *pinnedRight = new View(QRectF(70, 0, 20, 20));
    pinnedRight->setAutoresizingMask(View::FlexibleLeftMargin);
    auto *fixed = new View(QRectF(5, 5, 10, 10));
    for (View *child : { all, sizeOnly, pinnedRight, fixed })
        parent.addSubview(child);

    parent.setBounds(QRectF(0, 0, 200, 150));
    expectRect(all->frame(), QRectF(20, 15, 160, 120));
    expectRect(sizeOnly->frame(), QRectF(10, 10, 180, 130));
    expectRect(pinnedRight->frame(), QRectF(170, 0, 20, 20));
    expectRect(fixed->frame(), QRectF(5, 5, 10, 10));
}

TEST(View, SubviewsStackAndHitTestFromTheFront)
{
    View root(QRectF(0, 0, 100, 100));
    auto *back = new View(QRectF(0, 0, 60, 60));
    auto *front = new View(QRectF(40, 40, 60, 60));
    root.addSubview(back);
    root.addSubview(front);
    EXPECT_EQ(root.hitTest(QPointF(50, 50)), front);
    root.bringSubviewToFront(back);
    EXPECT_EQ(root.subviews().last(), back);
    EXPECT_EQ(root.hitTest(QPointF(50, 50)), back);
    back->setHidden(true);
    EXPECT_EQ(root.hitTest(QPointF(50, 50)), front);
    root.exchangeSubview(0, 1);
    EXPECT_EQ(root.subviews().first(), back);
    EXPECT_EQ(root.hitTest(QPointF(5, 5)), &root);
    EXPECT_EQ(root.hitTest(QPointF(150, 5)), nullptr);
}

TEST(View, ConvertsPointsThroughTurnedViews)
{
    View root(QRectF(0, 0, 200, 200));
    auto *layer = new View(QRectF(50, 50, 100, 100));
    root.addSubview(layer);
    QTransform turn;
    turn.rotate(90);
    layer->setTransform(turn);
    auto *inner = new View(QRectF(0, 0, 10, 10));
    layer->addSubview(inner);
    // The layer's top left corner lands at the top right after a quarter turn clockwise about its centre.
    const QPointF corner = inner->convertPoint(QPointF(0, 0), nullptr);
    EXPECT_NEAR(corner.x(), 150, 1e-9);
    EXPECT_NEAR(corner.y(), 50, 1e-9);
    const QPointF back = root.convertPoint(corner, inner);
    EXPECT_NEAR(back.x(), 0, 1e-9);
    EXPECT_NEAR(back.y(), 0, 1e-9);
}
