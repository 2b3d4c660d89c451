// A context whose attribute handle is not its output handle, as a print preview's is: the kit
// draws on the output handle, measures on the attribute handle, and leaves both as it found them.
#include "draw_fixture.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/plugin_title.h"
#include "kiv_skin/style/kiv_style_mgr.h"

using kiv_skin::KivDraw;

namespace {

// Output to a sentinel-filled canvas, attributes from a second one; both handles busy with the
// caller's own modes.
class SplitSheet {
public:
    SplitSheet() : output(60, 40, kSentinel), attributes(60, 40, kSentinel)
    {
        dc.m_hDC = output.dc()->m_hDC;
        dc.m_hAttribDC = attributes.dc()->m_hDC;
        busy = std::make_unique<BusyDc>(&dc, 60, 40, BusyDc::Modes::Own);
    }
    ~SplitSheet()
    {
        busy.reset();
        dc.Detach();
    }

    DibCanvas output, attributes;
    CDC dc;
    std::unique_ptr<BusyDc> busy;
};

}  // namespace

using TestSchemeSplitHandles = TestScheme;

TEST_F(TestSchemeSplitHandles, DrawingGoesToTheOutputAndBothHandlesAreLeftAsFound)
{
    SplitSheet sheet;
    CFont* font = const_cast<CFont*>(kiv_skin::KivStyleMgr::GetInstance()->GetFont("PLUG_STDFONT"));
    CFont* previousFont = sheet.dc.SelectObject(font);
    DcStateCheck check(&sheet.dc);
    CRect rect(2, 2, 58, 38);
    KivDraw draw;
    KivDraw::FillRect(&sheet.dc, &rect, kNoColor);
    KivDraw::DrawTitleLine(&sheet.dc, &rect, RGB(1, 2, 3));
    KivDraw::DrawPluginSelect(&sheet.dc, &rect, 2, PS_SOLID, 0);
    KivDraw::FillRoundRect(&sheet.dc, &rect, CPoint(3, 3), RGB(4, 5, 6));
    draw.DrawButton(&sheet.dc, &rect, KivDraw::BUTTON_PRESSED, 3, 0, 1);
    draw.DrawButton(&sheet.dc, &rect, KivDraw::BUTTON_HOVER, 3, 1, 0);
    draw.HoriDotLine(&sheet.dc, 0, 60, 1);
    int count = 0;
    KivDraw::TextOutLimitWidth(&sheet.dc, &rect, L"mmmmmmmmmmmmmmmm", count, CRect(0, 0, 0, 0), 0);
    kiv_skin::PluginTitle("x").GetAreaHeight(&sheet.dc);
    EXPECT_TRUE(check.Unchanged());
    EXPECT_GT(count, 0);
    EXPECT_EQ(60 * 40, sheet.attributes.Count(kSentinel)) << "nothing is drawn on the attribute handle";
    EXPECT_LT(sheet.output.Count(kSentinel), 60 * 40 - 56 * 36);
    sheet.dc.SelectObject(previousFont);
}
