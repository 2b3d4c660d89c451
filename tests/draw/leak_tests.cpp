// Every drawing operation repeated 10,000 times, on the test scheme and on a scheme without fonts
// and images, loses no GDI object: a fresh object's handle slot stays where it was. And every one
// hands back a busy caller's context with the caller's own modes as it found it.
#include "draw_fixture.h"
#include "kiv_skin/display/memo_dc.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/plugin_title.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include <functional>
#include <utility>
#include <vector>

using kiv_skin::KivDraw;

namespace {

using Operation = std::pair<const char*, std::function<void(CDC*)>>;

// Without the scheme's mark strip a mark leaves the text colour black, as documented: this puts
// the caller's back in that case only.
class InkKeptWithoutMarks {
public:
    explicit InkKeptWithoutMarks(CDC* dc) : m_dc(dc), m_ink(dc->GetTextColor()) {}
    ~InkKeptWithoutMarks()
    {
        if (kiv_skin::KivStyleMgr::GetInstance()->GetBitmap("KIV_MARK") == nullptr) m_dc->SetTextColor(m_ink);
    }

private:
    CDC* m_dc;
    COLORREF m_ink;
};

// Every drawing operation, by name.
const std::vector<Operation>& Operations()
{
    static const CRect rect(2, 2, 40, 30);
    static COLORREF colours[2] = {RGB(10, 20, 30), RGB(200, 100, 0)};
    static const std::vector<Operation> operations = {
        {"MakeMixColor", [](CDC* dc) { KivDraw::MakeMixColor(dc, colours[0], colours[1], 40); }},
        {"Make3DColor", [](CDC* dc) { KivDraw::Make3DColor(dc, 8, colours, 2, 0); }},
        {"IsDarkBackground", [](CDC* dc) { KivDraw::IsDarkBackground(dc); }},
        {"FillRect", [](CDC* dc) { KivDraw::FillRect(dc, &rect, kNoColor); }},
        {"RectangleLine", [](CDC* dc) { KivDraw::RectangleLine(dc, &rect); }},
        {"DrawTitleLine", [](CDC* dc) { KivDraw::DrawTitleLine(dc, &rect, colours[0]); }},
        {"FillRoundRect", [](CDC* dc) { KivDraw::FillRoundRect(dc, &rect, CPoint(4, 4), colours[1]); }},
        {"DrawPluginSelect", [](CDC* dc) {
             KivDraw::DrawPluginSelect(dc, &rect, 0, PS_DOT, 0);
             KivDraw::DrawPluginSelect(dc, &rect, 3, PS_DOT, colours[0]);
         }},
        {"DrawPluginFrame", [](CDC* dc) {
             COLORREF paper = dc->GetBkColor();  // left set to the fill, as FillSolidRect leaves it
             KivDraw::DrawPluginFrame(dc, &rect);
             dc->SetBkColor(paper);
         }},
        {"TextOutLimitWidth", [](CDC* dc) {
             int count = 0;
             KivDraw::TextOutLimitWidth(dc, &rect, L"600519 \x884C\x60C5", count, CRect(1, 1, 1, 1), 0);
         }},
        {"VertDotLine", [](CDC* dc) { KivDraw().VertDotLine(dc, 3, 0, 30); }},
        {"HoriFrameLine", [](CDC* dc) { KivDraw().HoriFrameLine(dc, 0, 40, 5); }},
        {"DrawButton", [](CDC* dc) {
             KivDraw draw;
             CRect button(rect);
             for (int state = 0; state < 3; ++state)
                 draw.DrawButton(dc, &button, static_cast<KivDraw::BUTTON_STATE>(state), 1, state == 1, 1);
         }},
        {"DrawButtonBackground", [](CDC* dc) {
             COLORREF paper = dc->GetBkColor();  // left set to the fill, as FillSolidRect leaves it
             CRect button(rect);
             KivDraw().DrawButtonBackground(dc, &button, KivDraw::BUTTON_HOVER);
             dc->SetBkColor(paper);
         }},
        {"DrawAxis", [](CDC* dc) {
             KivDraw::DrawAxis(dc, 1, {0, 20}, {40, 20}, 0, 10, 5, "x", kNoColor, &rect, 0, 0);
             KivDraw::DrawAxis(dc, 0, {5, 35}, {5, 0}, 5, 5, 3, "y", colours[0], nullptr, 1, 12);
         }},
        {"Draw3DPercentBar", [](CDC* dc) {
             KivDraw::Draw3DPercentBar(dc, &rect, 20, colours[0], colours[1], 1);
             KivDraw::Draw3DPercentBar(dc, &rect, 10, colours[0], colours[1], 0);
         }},
        {"DrawArrow", [](CDC* dc) {
             InkKeptWithoutMarks ink(dc);
             KivDraw draw;
             draw.DrawArrow(dc, 10, 10, 3, colours[1], 1, 1, false);
             draw.DrawArrow(dc, 10, 10, 2, colours[1], 1, 3, false);
         }},
        {"DrawArrowButton", [](CDC* dc) { KivDraw().DrawArrowButton(dc, &rect, colours[0], colours[1], 2, 0); }},
        {"DrawWekIcons", [](CDC* dc) {
             KivDraw::DrawWekIcons(dc, 4, 0, 0, 1, 1);
             KivDraw::DrawWekIcons(dc, 4, 0, 0, 2, 0);
         }},
        {"DrawUL", [](CDC* dc) {
             InkKeptWithoutMarks ink(dc);
             KivDraw draw;
             draw.DrawUL(dc, 40, 2, "-12.34", 1);
             draw.DrawUL(dc, 40, 2, ETO_OPAQUE, &rect, "1688.00", 7, nullptr, 0);
         }},
        {"DrawRichText", [](CDC* dc) {
             const char* markup = "<*sc=UPTEXT*>600519<*b*><*it*><*u*>x<*f=SimSun*><*s=14*>\n1<*bk=FF*>y"
                                  "<*sysbk=PLUG_BGCOLOR*><*sf=SMALL*>z<*si=IMG_RISE*><*a href=q*>";
             KivDraw::DrawRichText(dc, &rect, 2, markup, CRect(1, 1, 1, 1), 0, 60);
         }},
        {"PluginTitle", [](CDC* dc) {
             COLORREF paper = dc->GetBkColor();  // the band is filled as FillSolidRect fills
             kiv_skin::PluginTitle title("\xE8\xA1\x8C\xE6\x83\x85");
             title.GetAreaHeight(dc);
             title.Draw(dc, rect);
             dc->SetBkColor(paper);
         }},
        {"CMemoDC", [](CDC* dc) {
             kiv_skin::CMemoDC filled(dc, 8, 8, colours[0]);
             kiv_skin::CMemoDC missing(dc, "Z:\\no\\such.bmp");
         }},
    };
    return operations;
}

void DrawEverything(CDC* dc)
{
    for (const Operation& operation : Operations()) operation.second(dc);
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

namespace {

void ExpectEachRestoresTheCallersOwnModes()
{
    for (const Operation& operation : Operations()) {
        Sheet sheet(48, 40, Caller::BusyWithOwnModes);
        operation.second(sheet.dc());
        EXPECT_TRUE(sheet.check.Unchanged()) << operation.first;
    }
}

}  // namespace

TEST_F(TestScheme, EveryOperationRestoresABusyCallersOwnModes) { ExpectEachRestoresTheCallersOwnModes(); }

TEST_F(BareScheme, EveryOperationRestoresABusyCallersOwnModes) { ExpectEachRestoresTheCallersOwnModes(); }

TEST(NoStyle, EveryOperationRestoresABusyCallersOwnModes) { ExpectEachRestoresTheCallersOwnModes(); }
