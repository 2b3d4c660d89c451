#include "kiv_skin/draw/rich_text_tags.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/scheme.h"
#include "kiv_skin/module.h"
#include <cstdio>
#include <cstdlib>
#include <algorithm>

namespace kiv_skin {
namespace {

// The value of a hexadecimal digit, or -1.
int HexDigit(char c)
{
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// Plain hexadecimal digits, "0x" or "0X" allowed before them, as many as a COLORREF holds: read
// here as "%X" reads them. Anything else (blanks, signs, trailing bytes, longer numbers) is
// read by "%X" itself.
bool ReadPlainHex(const std::string& value, COLORREF& color)
{
    size_t at = value.size() > 2 && value[0] == '0' && (value[1] == 'x' || value[1] == 'X') ? 2 : 0;
    if (value.size() == at || value.size() - at > 8) return false;
    COLORREF read = 0;
    for (size_t i = at; i < value.size(); ++i) {
        int digit = HexDigit(value[i]);
        if (digit < 0) return false;
        read = read << 4 | COLORREF(digit);
    }
    color = read;
    return true;
}

// A value read as "%X" reads: the colour's COLORREF value, "0x" accepted.
bool ReadHex(const std::string& value, COLORREF& color)
{
    if (ReadPlainHex(value, color)) return true;
    unsigned int read = 0;
    if (std::sscanf(value.c_str(), "%X", &read) != 1) return false;
    color = read;
    return true;
}

// The colour a tag's value names: read as "%X", or looked up as a scheme key. False for an empty
// or unreadable value.
bool HexValue(const std::string& value, COLORREF& color) { return !value.empty() && ReadHex(value, color); }

bool SchemeValue(const std::string& value, COLORREF& color)
{
    if (value.empty()) return false;
    color = SchemeColor(value.c_str());
    return true;
}

void SetInk(sDCStats& s, bool present, COLORREF color)
{
    s.dc->SetTextColor(present ? s.Mixed(color) : s.textColor);
    s.inkSet = true;
}

// An empty or unreadable background tag returns to the initial mode with the initial *text*
// colour as background: that is how panels have always looked with an opaque context.
void SetBack(sDCStats& s, bool present, COLORREF color)
{
    s.dc->SetBkMode(present ? OPAQUE : s.bkMode);
    s.dc->SetBkColor(present ? s.Mixed(color) : s.textColor);
    s.backSet = true;
}

template <bool (*Read)(const std::string&, COLORREF&), void (*Set)(sDCStats&, bool, COLORREF)>
void ColorTag(sDCStats& s, DrawFormatText& run)
{
    run.width = 0;
    COLORREF color = 0;
    bool present = Read(run.value, color);
    // Colours do not change widths: while measuring they are only looked up, unless the
    // context's output half would keep them.
    if (run.draw || !s.OneContext()) Set(s, present, color);
}

void SchemeFontTag(sDCStats& s, DrawFormatText& run)
{
    run.width = 0;
    if (run.value.empty()) return;
    if (CFont* font = SchemeFont(run.value.c_str())) s.Select(font);
}

// The five font tags change one field of the font now selected, so their effects add up.
template <class Change> void ChangeFont(sDCStats& s, DrawFormatText& run, Change change)
{
    run.width = 0;
    LOGFONTA font = {};
    ::GetObjectA(::GetCurrentObject(s.dc->m_hAttribDC, OBJ_FONT), sizeof(font), &font);
    change(font, run.value, s.logFont);
    CFont made;
    made.CreateFontIndirect(&font);
    s.Select(&made);  // selected before the state's previous font is deleted
    if (s.font == nullptr) s.font = new CFont;
    s.font->DeleteObject();
    s.font->Attach(made.Detach());
}

// The value read as a whole number is non-zero (an empty value counts as on).
bool SwitchedOn(const std::string& value) { return value.empty() || std::atoi(value.c_str()) != 0; }

void Face(sDCStats& s, DrawFormatText& run)
{
    ChangeFont(s, run, [](LOGFONTA& f, const std::string& v, const LOGFONTA& initial) {
        ::lstrcpynA(f.lfFaceName, v.empty() ? initial.lfFaceName : v.c_str(), LF_FACESIZE);
    });
}

void Size(sDCStats& s, DrawFormatText& run)
{
    ChangeFont(s, run, [](LOGFONTA& f, const std::string& v, const LOGFONTA& initial) {
        int height = std::atoi(v.c_str());
        f.lfHeight = height >= 1 ? height : initial.lfHeight;
    });
}

void Bold(sDCStats& s, DrawFormatText& run)
{
    ChangeFont(s, run, [](LOGFONTA& f, const std::string& v, const LOGFONTA& initial) {
        f.lfWeight = SwitchedOn(v) ? FW_BOLD : initial.lfWeight;
    });
}

void Underline(sDCStats& s, DrawFormatText& run)
{
    ChangeFont(s, run, [](LOGFONTA& f, const std::string& v, const LOGFONTA& initial) {
        f.lfUnderline = SwitchedOn(v) ? 1 : initial.lfUnderline;
    });
}

void Italic(sDCStats& s, DrawFormatText& run)
{
    ChangeFont(s, run, [](LOGFONTA& f, const std::string& v, const LOGFONTA& initial) {
        f.lfItalic = SwitchedOn(v) ? 1 : initial.lfItalic;
    });
}

CSize WideExtent(CDC* dc, std::wstring_view text)
{
    SIZE size = {0, 0};
    ::GetTextExtentPoint32W(dc->m_hAttribDC, text.data(), static_cast<int>(text.size()), &size);
    return CSize(size);
}

// Calls each(line) for every line of text, split at line feeds (a trailing one gives a last,
// empty line).
template <class Each> void ForEachLine(std::wstring_view text, Each each)
{
    size_t start = 0;
    for (size_t feed; (feed = text.find(L'\n', start)) != std::wstring_view::npos; start = feed + 1)
        each(text.substr(start, feed - start));
    each(text.substr(start));
}

// Text, line by line: the first line in the run's whole height, each further one a row lower.
// The width is measured while measuring; the drawing pass has it in the run's rectangle, and
// for a single line it is that line's whole width, measured in the same font.
void Text(sDCStats& s, DrawFormatText& run)
{
    std::wstring_view text = run.wide;
    if (!run.draw) {
        run.width = 0;
        ForEachLine(text, [&](std::wstring_view line) {
            run.width = std::max<int>(run.width, WideExtent(s.dc, line).cx);
        });
        return;
    }
    int rowHeight = s.rowHeight;
    if (rowHeight < 0) rowHeight = WideExtent(s.dc, text.substr(0, text.find(L'\n'))).cy;
    bool oneLine = text.find(L'\n') == std::wstring_view::npos;
    CRect area(run.rect);
    ForEachLine(text, [&](std::wstring_view line) {
        int count = 0, length = static_cast<int>(line.size());
        int whole = oneLine ? run.width : WideExtent(s.dc, line).cx;
        CutText(s.dc, area, line.data(), length, whole, count, s.walk, 0);
        area.top += rowHeight;
        area.bottom = area.top + rowHeight;
    });
    run.draw = 0;
}

const int kIconWidth = 16, kIconHeight = 17;

// A 16 by 17 scheme image, placed down the run by the context's alignment: bottom or baseline
// put it at the bottom, right or centre in the middle (the horizontal bits steer it).
void Icon(sDCStats& s, DrawFormatText& run)
{
    if (run.value.empty()) {
        run.width = 0;
        return;
    }
    int letter = s.dc->GetTextExtent("A", 1).cy;
    run.width = letter <= kIconWidth ? kIconWidth : letter;
    if (!run.draw) return;
    int height = run.rect.bottom - run.rect.top, offset = 0;
    UINT align = s.dc->GetTextAlign();
    if (run.width < height) {
        if (align & (TA_BOTTOM | TA_BASELINE))
            offset = height - run.width;
        else if (align & TA_CENTER)
            offset = (height - run.width) / 2;
    }
    CBitmap* image = SchemeBitmap(run.value.c_str());
    CDC memory;
    if (image && memory.CreateCompatibleDC(s.dc)) {
        CBitmap* previous = memory.SelectObject(image);
        ::TransparentBlt(s.dc->m_hDC, run.rect.left + 1, run.rect.top + offset, kIconWidth, kIconHeight, memory,
                         0, 0, kIconWidth, kIconHeight, SchemeTransparentColor("IDB_IMAGES"));
        memory.SelectObject(previous);
    }
    run.draw = 0;
}

void Link(sDCStats&, DrawFormatText&) {}

std::map<std::string, RichTextTag>* MakeTags()
{
    return new std::map<std::string, RichTextTag>{
        {"color", ColorTag<HexValue, SetInk>},       {"c", ColorTag<HexValue, SetInk>},
        {"syscolor", ColorTag<SchemeValue, SetInk>}, {"sc", ColorTag<SchemeValue, SetInk>},
        {"bkcolor", ColorTag<HexValue, SetBack>},    {"bk", ColorTag<HexValue, SetBack>},
        {"sysbkcolor", ColorTag<SchemeValue, SetBack>}, {"sysbk", ColorTag<SchemeValue, SetBack>},
        {"sysfont", SchemeFontTag}, {"sf", SchemeFontTag}, {"sysicon", Icon},      {"si", Icon},
        {"font", Face},         {"f", Face},           {"size", Size},            {"s", Size},
        {"bold", Bold},         {"b", Bold},           {"underline", Underline},  {"u", Underline},
        {"italic", Italic},     {"it", Italic},        {"text", Text},            {"t", Text},
        {"a", Link},            {"a href", Link}};
}

std::atomic<std::map<std::string, RichTextTag>*> g_tags{nullptr};

void DestroyTags() { delete g_tags.exchange(nullptr); }

}  // namespace

RichTextTag RichTextTextTag() { return Text; }

const std::map<std::string, RichTextTag>& RichTextTags()
{
    return *CreateOnce(g_tags, RichTextTagLock(), MakeTags, DestroyTags);
}

}  // namespace kiv_skin
