// CRect, CPoint and CSize as MFC defines them.
#include <afxwin.h>
#include <gtest/gtest.h>

TEST(CRect, WidthHeightAndCorners)
{
    CRect r(10, 20, 15, 30);
    EXPECT_EQ(5, r.Width());
    EXPECT_EQ(10, r.Height());
    EXPECT_EQ(CPoint(10, 20), r.TopLeft());
    EXPECT_EQ(CPoint(15, 30), r.BottomRight());
    EXPECT_EQ(CSize(5, 10), r.Size());
    EXPECT_EQ(CPoint(12, 25), r.CenterPoint());
}

TEST(CRect, DeflateInflateOffset)
{
    CRect r(0, 0, 10, 10);
    r.DeflateRect(1, 2);
    EXPECT_EQ(CRect(1, 2, 9, 8), r);
    r.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(CRect(0, 0, 12, 12), r);
    r.OffsetRect(5, -5);
    EXPECT_EQ(CRect(5, -5, 17, 7), r);
}

TEST(CRect, EmptyNullAndHitTest)
{
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 6, 9).IsRectEmpty());
    CRect r(0, 0, 10, 10);
    EXPECT_TRUE(r.PtInRect(CPoint(0, 0)));
    EXPECT_FALSE(r.PtInRect(CPoint(10, 5)));  // right and bottom edges are outside
}

TEST(CRect, NormalizeAndIntersect)
{
    CRect r(10, 10, 0, 0);
    r.NormalizeRect();
    EXPECT_EQ(CRect(0, 0, 10, 10), r);
    CRect i;
    EXPECT_TRUE(i.IntersectRect(r, CRect(5, 5, 20, 20)));
    EXPECT_EQ(CRect(5, 5, 10, 10), i);
    EXPECT_FALSE(i.IntersectRect(r, CRect(20, 20, 30, 30)));
    EXPECT_TRUE(i.IsRectNull());
}

TEST(CPointCSize, Arithmetic)
{
    CPoint p(3, 4);
    EXPECT_EQ(CPoint(5, 7), p + CSize(2, 3));
    EXPECT_EQ(CSize(1, 2), CPoint(4, 6) - p);
    p.Offset(-3, -4);
    EXPECT_EQ(CPoint(0, 0), p);
}
