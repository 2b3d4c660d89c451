#include "demo/markup_sheet.h"
#include "demo/scheme_text.h"
#include "kiv_skin/draw/kiv_draw.h"
#include <iterator>

using kiv_skin::KivDraw;

namespace {

struct Sample {
    const char* tag;
    const char* markup;  // UTF-8
};

// Each tag name, long and short form of a pair one after the other, in a line of markup that
// shows what it does and how an empty tag returns to the line's starting state.
const Sample kSamples[] = {
    {"color", "Open <*color=33AAFF*>1688.00<*color*> CNY"},
    {"c", "<*c=4040FF*>red <*c=30C030*>green <*c=FF9040*>blue<*c*> plain"},
    {"syscolor", "Last <*syscolor=UPTEXT*>1688.00 +0.75%"},
    {"sc", "<*sc=UPTEXT*>rise <*sc=EQUTEXT*>flat <*sc=DOWNTEXT*>fall"},
    {"bkcolor", "<*c=FFFFFF*><*bkcolor=2020C0*> LIMIT UP <*bkcolor*><*c*> 1856.80"},
    {"bk", "<*c=FFFFFF*><*bk=A06010*> HALT <*bk*><*c*> resumes 13:00"},
    {"sysbkcolor", "<*sysbkcolor=PLUG_SELCOLOR*> 600519 <*sysbkcolor*> selected"},
    {"sysbk", "<*sysbk=PLUG_BTN_BGCOLOR_PRESSED*> pressed <*sysbk*> normal"},
    {"sysfont", "<*sysfont=PLUG_TITLE*>Title font <*sysfont=SMALL*>small font"},
    {"sf", "<*sf=SMALL*>Vol <*sf=PLUG_STDFONT*>2.31\xE4\xB8\x87"},  // 万 (ten thousand)
    {"sysicon", "Rise<*sysicon=IMG_RISE*> fall<*sysicon=IMG_FALL*> flat<*sysicon=IMG_FLAT*>"},
    {"si", "<*si=IMG_STAR*>Watch <*si=IMG_ALERT*>Alert <*si=IMG_NEWS*>News"},
    {"font", "<*font=DejaVu Sans Mono*>DejaVu 1688.00<*font*> 1688.00"},
    {"f", "<*f=WenQuanYi Zen Hei Mono*>Mono 0.912<*f*> 0.912"},
    {"size", "<*size=16*>1688.00<*size*> CNY"},
    {"s", "<*s=20*>A<*s=16*>A<*s*>A small"},
    {"bold", "<*bold*>Bold<*bold=0*> regular"},
    {"b", "Last <*b*>1688.00<*b=0*> +12.50"},
    // 贵州茅台 (Kweichow Moutai)
    {"underline", "<*underline*>600519<*underline=0*> \xE8\xB4\xB5\xE5\xB7\x9E\xE8\x8C\x85\xE5\x8F\xB0"},
    {"u", "See <*u*>notice<*u=0*> again"},
    {"italic", "<*italic*>Italic<*italic=0*> upright"},
    {"it", "<*it*><*b*>Bold italic<*b=0*><*it=0*> plain"},
    {"text", "<*text=\xE6\x9C\x80\xE6\x96\xB0*> 1688.00"},  // 最新 (last)
    {"t", "<*sc=UPTEXT*><*t=+12.50*><*sc*> today"},
    {"a", "<*a=news*>\xE5\x85\xAC\xE5\x91\x8A<*a*>: results"},  // 公告 (notice)
    {"a href", "<*a href=quote:600519*>\xE8\xB4\xB5\xE5\xB7\x9E\xE8\x8C\x85\xE5\x8F\xB0<*a*> 1688.00"},
};
const int kLines = static_cast<int>(std::size(kSamples));

const int kMargin = 12;
const int kHeading = 30;
const int kHeader = 22;
const int kLine = 24;
const int kTagWidth = 96;
const int kSourceWidth = 430;
const int kDrawnWidth = 300;
const int kInset = 6;
const UINT kOneLine = DT_SINGLELINE | DT_VCENTER;

int LineTop(int line) { return kHeading + kHeader + line * kLine; }

COLORREF Faded(CDC* dc, const char* key, int percent)
{
    return KivDraw::MakeMixColor(dc, SchemeColor(key), SchemeColor("PLUG_BGCOLOR"), percent);
}

void DrawHeader(CDC* dc, int width)
{
    CRect band(kMargin, kHeading, width - kMargin, kHeading + kHeader);
    KivDraw::FillRect(dc, &band, SchemeColor("PLUG_TITLE_BGCOLOR"));
    const char* names[] = {"Tag", "Markup", "Drawn by DrawRichText"};
    const int widths[] = {kTagWidth, kSourceWidth, kDrawnWidth};
    int left = kMargin;
    for (int i = 0; i < 3; ++i) {
        CRect cell(left + kInset, band.top, left + widths[i], band.bottom);
        WriteText(dc, names[i], cell, "PLUG_TITLE", SchemeColor("PLUG_TITLE_TEXT"), DT_LEFT | kOneLine);
        left += widths[i];
    }
}

// One line: the pair's band (pairs alternate plain and tinted), the tag name, the markup as
// plain text and the markup drawn.
void DrawLine(CDC* dc, KivDraw& kit, int line)
{
    CRect band = MarkupLineBand(line);
    bool tinted = (line / 2) % 2 == 1;
    KivDraw::FillRect(dc, &band, tinted ? Faded(dc, "PLUG_TITLE_BGCOLOR", 60) : SchemeColor("PLUG_BGCOLOR"));
    if (line % 2 == 1 && line + 1 < kLines) kit.HoriDotLine(dc, band.left, band.right, band.bottom - 1);
    CRect tag(band.left + kInset, band.top, band.left + kTagWidth, band.bottom);
    WriteText(dc, kSamples[line].tag, tag, "PLUG_STDFONT", SchemeColor("PLUG_TIME_COLOR1"), DT_LEFT | kOneLine);
    CRect source(tag.right + kInset, band.top, tag.right + kSourceWidth, band.bottom);
    WriteText(dc, kSamples[line].markup, source, "PLUG_STDFONT", Faded(dc, "EQUTEXT", 70), DT_LEFT | kOneLine);
    WriteRichText(dc, kSamples[line].markup, MarkupDrawnCell(line), "PLUG_STDFONT", SchemeColor("EQUTEXT"));
}

}  // namespace

CSize MarkupSheetSize()
{
    return CSize(2 * kMargin + kTagWidth + kSourceWidth + kDrawnWidth, LineTop(kLines) + kMargin);
}

CRect MarkupDrawnCell(int line)
{
    int left = kMargin + kTagWidth + kSourceWidth + kInset;
    return CRect(left, LineTop(line), left + kDrawnWidth - 2 * kInset, LineTop(line) + kLine);
}

int MarkupLineCount() { return kLines; }

const char* MarkupLineTag(int line) { return kSamples[line].tag; }

CRect MarkupLineBand(int line) { return CRect(kMargin, LineTop(line), MarkupSheetSize().cx - kMargin, LineTop(line) + kLine); }

void DrawMarkupSheet(CDC* dc, const char* title)
{
    CSize size = MarkupSheetSize();
    KivDraw::FillRect(dc, 0, 0, size.cx, size.cy, SchemeColor("BACKGROUND"));
    CRect heading(kMargin, 0, size.cx - kMargin, kHeading);
    WriteText(dc, title, heading, "PLUG_TITLE", SchemeColor("PLUG_TITLE_TEXT"), DT_LEFT | kOneLine);
    DrawHeader(dc, size.cx);
    KivDraw kit;
    for (int line = 0; line < kLines; ++line) DrawLine(dc, kit, line);
}
