// Every drawing operation repeated 10,000 times, on the test scheme and on a scheme without fonts
// and images, loses no GDI object: a fresh object's handle slot stays where it was.
#include "draw_fixture.h"
#include "kiv_skin/display/memo_dc.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/plugin_title.h"

using kiv_skin::KivDraw;

namespace {

void DrawEverything(CDC* dc)
{
    CRect rect(2, 2, 40, 30);
    COLORREF colours[2] = {RGB(10, 20, 30), RGB(200, 100, 0)};
    KivDraw::MakeMixColor(dc, colours[0], colours[1], 40);
    KivDraw::Make3DColor(dc, 8, colours, 2, 0);
    KivDraw::IsDarkBackground(dc);
    KivDraw::FillRect(dc, &rect, kNoColor);
    KivDraw::RectangleLine(dc, &rect);
    KivDraw::DrawTitleLine(dc, &rect, colours[0]);
    KivDraw::FillRoundRect(dc, &rect, CPoint(4, 4), colours[1]);
    KivDraw::DrawPluginSelect(dc, &rect, 0, PS_DOT, 0);
    KivDraw::DrawPluginSelect(dc, &rect, 3, PS_DOT, colours[0]);
    KivDraw::DrawPluginFrame(dc, &rect);
    int count = 0;
    KivDraw::TextOutLimitWidth(dc, &rect, L"600519 \x884C\x60C5", count, CRect(1, 1, 1, 1), 0);
    KivDraw draw;
    draw.VertDotLine(dc, 3, 0, 30);
    draw.HoriFrameLine(dc, 0, 40, 5);
    for (int state = 0; state < 3; ++state)
        draw.DrawButton(dc, &rect, static_cast<KivDraw::BUTTON_STATE>(state), 1, state == 1, 1);
    draw.DrawButtonBackground(dc, &rect, KivDraw::BUTTON_HOVER);
    KivDraw::DrawAxis(dc, 1, {0, 20}, {40, 20}, 0, 10, 5, "x", kNoColor, &rect, 0, 0);
    KivDraw::DrawAxis(dc, 0, {5, 35}, {5, 0}, 5, 5, 3, "y", colours[0], nullptr, 1, 12);
    KivDraw::Draw3DPercentBar(dc, &rect, 20, colours[0], colours[1], 1);
    KivDraw::Draw3DPercentBar(dc, &rect, 10, colours[0], colours[1], 0);
    draw.DrawArrow(dc, 10, 10, 3, colours[1], 1, 1, false);
    draw.DrawArrow(dc, 10, 10, 2, colours[1], 1, 3, false);
    draw.DrawArrowButton(dc, &rect, colours[0], colours[1], 2, 0);
    KivDraw::DrawWekIcons(dc, 4, 0, 0, 1, 1);
    KivDraw::DrawWekIcons(dc, 4, 0, 0, 2, 0);
    draw.DrawUL(dc, 40, 2, "-12.34", 1);
    draw.DrawUL(dc, 40, 2, ETO_OPAQUE, &rect, "1688.00", 7, nullptr, 0);
    KivDraw::DrawRichText(dc, &rect, 2, "<*sc=UPTEXT*>600519<*b*><*it*><*u*>x<*f=SimSun*><*s=14*>\n1<*bk=FF*>y"
                          "<*sysbk=PLUG_BGCOLOR*><*sf=SMALL*>z<*si=IMG_RISE*><*a href=q*>", CRect(1, 1, 1, 1), 0, 60);
    kiv_skin::PluginTitle title("\xE8\xA1\x8C\xE6\x83\x85");
    title.GetAreaHeight(dc);
    title.Draw(dc, rect);
    kiv_skin::CMemoDC filled(dc, 8, 8, colours[0]);
    kiv_skin::CMemoDC missing(dc, "Z:\\no\\such.bmp");
}

void ExpectNoLeak(const char* scheme)
{
    UseScheme(scheme);
    Sheet sheet(48, 40);
    DrawEverything(sheet.dc());  // first use creates what lives on (the tag tables, wrappers)
    int before = GdiProbeSlot();
    for (int i = 0; i < 10000; ++i) DrawEverything(sheet.dc());
    EXPECT_EQ(before, GdiProbeSlot()) << scheme;
    EXPECT_NE(kSentinel, sheet.At(20, 20)) << "the operations drew";
}

}  // namespace

TEST(LeakProbe, EveryOperationOnTheTestScheme) { ExpectNoLeak("test"); }

TEST(LeakProbe, EveryOperationWithoutFontsOrImages) { ExpectNoLeak("bare"); }
