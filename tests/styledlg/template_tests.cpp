// The style dialog's template as kiv_skin.dll holds it, read back item by item: caption, font,
// size, and each control's class, id, text, rectangle and style, the texts as UTF-16. The same
// program runs under the default code page and under 936: the texts must not depend on it. The
// framework finds the template through the resource chain, which the library joins when it loads.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <cstdint>
#include <string>
#include <vector>

namespace {

// Class ordinals of the standard controls in a dialog template.
const WORD kButton = 0x80, kStatic = 0x82, kListBox = 0x83, kComboBox = 0x85;

struct Control {
    WORD kind;
    int id;
    std::wstring text;
    RECT rect;  // x, y, width, height in dialog units
    DWORD style;
};

struct Template {
    std::wstring caption;
    WORD pointSize = 0;
    std::wstring face;
    RECT rect = {};
    DWORD style = 0;
    std::vector<Control> controls;
};

// Reads a DLGTEMPLATEEX: fixed fields, then zero-terminated UTF-16 strings or 0xFFFF ordinals,
// each item aligned to four bytes.
class TemplateReader {
public:
    explicit TemplateReader(const BYTE* at) : m_at(at) {}
    template <class T> T Read()
    {
        T value;
        memcpy(&value, m_at, sizeof(T));
        m_at += sizeof(T);
        return value;
    }
    // A string, or the ordinal after 0xFFFF (returned in ordinal, with an empty string).
    std::wstring ReadText(WORD* ordinal = nullptr)
    {
        WORD first = Read<WORD>();
        if (first == 0xFFFF) {
            WORD value = Read<WORD>();
            if (ordinal != nullptr) *ordinal = value;
            return L"";
        }
        std::wstring text;
        for (WORD c = first; c != 0; c = Read<WORD>()) text += static_cast<wchar_t>(c);
        return text;
    }
    void AlignToDword() { m_at = reinterpret_cast<const BYTE*>((reinterpret_cast<uintptr_t>(m_at) + 3) & ~uintptr_t(3)); }
    void Skip(size_t bytes) { m_at += bytes; }

private:
    const BYTE* m_at;
};

RECT ReadRect(TemplateReader& reader)
{
    short x = reader.Read<short>(), y = reader.Read<short>(), cx = reader.Read<short>(), cy = reader.Read<short>();
    return {x, y, cx, cy};
}

Template LoadTemplate(int id)
{
    Template result;
    HMODULE library = LoadLibraryA("kiv_skin.dll");
    HRSRC found = FindResourceA(library, MAKEINTRESOURCEA(id), reinterpret_cast<LPCSTR>(RT_DIALOG));
    EXPECT_NE(nullptr, found);
    if (found == nullptr) return result;
    TemplateReader reader(static_cast<const BYTE*>(LockResource(LoadResource(library, found))));
    EXPECT_EQ(1, reader.Read<WORD>());       // version
    EXPECT_EQ(0xFFFF, reader.Read<WORD>());  // extended template
    reader.Skip(8);                          // help id, extended style
    result.style = reader.Read<DWORD>();
    WORD count = reader.Read<WORD>();
    result.rect = ReadRect(reader);
    reader.ReadText();  // menu
    reader.ReadText();  // class
    result.caption = reader.ReadText();
    result.pointSize = reader.Read<WORD>();
    reader.Skip(4);  // weight, italic, character set
    result.face = reader.ReadText();
    for (WORD i = 0; i < count; ++i) {
        reader.AlignToDword();
        reader.Skip(8);  // help id, extended style
        Control control = {};
        control.style = reader.Read<DWORD>();
        control.rect = ReadRect(reader);
        control.id = static_cast<int>(reader.Read<DWORD>());
        reader.ReadText(&control.kind);
        control.text = reader.ReadText();
        reader.Skip(reader.Read<WORD>());  // creation data
        result.controls.push_back(control);
    }
    return result;
}

void ExpectRect(const RECT& actual, int x, int y, int w, int h)
{
    EXPECT_EQ(x, actual.left);
    EXPECT_EQ(y, actual.top);
    EXPECT_EQ(w, actual.right);
    EXPECT_EQ(h, actual.bottom);
}

// The control of the template at position index, checked against what it must be.
void ExpectControl(const Template& t, size_t index, WORD kind, int id, const std::wstring& text, RECT rect, DWORD style)
{
    ASSERT_LT(index, t.controls.size());
    const Control& c = t.controls[index];
    SCOPED_TRACE("control " + std::to_string(index) + ", id " + std::to_string(id));
    EXPECT_EQ(kind, c.kind);
    EXPECT_EQ(id, c.id);
    EXPECT_EQ(text, c.text);
    ExpectRect(c.rect, rect.left, rect.top, rect.right, rect.bottom);
    EXPECT_EQ(style, c.style & style);
    EXPECT_TRUE(c.style & WS_VISIBLE);
}

}  // namespace

// First in the program, before any other test loads the library.
TEST(ResourceChain, TheLibraryJoinsItWhenLoadedAndLeavesItWhenUnloaded)
{
    LPCSTR dialog = MAKEINTRESOURCEA(311);
    HINSTANCE program = ::GetModuleHandleA(nullptr);
    ASSERT_EQ(nullptr, ::GetModuleHandleA("kiv_skin.dll")) << "the library must not be loaded yet";
    ASSERT_EQ(program, AfxGetResourceHandle());
    EXPECT_EQ(program, AfxFindResourceHandle(dialog, RT_DIALOG)) << "nobody has it";
    HMODULE library = ::LoadLibraryA("kiv_skin.dll");
    ASSERT_NE(nullptr, library);
    EXPECT_EQ(library, AfxFindResourceHandle(dialog, RT_DIALOG));
    EXPECT_EQ(program, AfxGetResourceHandle());
    ::FreeLibrary(library);
    ASSERT_EQ(nullptr, ::GetModuleHandleA("kiv_skin.dll"));
    EXPECT_EQ(program, AfxFindResourceHandle(dialog, RT_DIALOG));
}

TEST(StyleDialogTemplate, CaptionFontAndSize)
{
    Template t = LoadTemplate(311);
    EXPECT_EQ(L"Dialog", t.caption);
    EXPECT_EQ(8, t.pointSize);
    EXPECT_EQ(L"MS Shell Dlg", t.face);
    ExpectRect(t.rect, 0, 0, 295, 219);
    EXPECT_EQ(static_cast<DWORD>(WS_POPUP | WS_CAPTION | DS_MODALFRAME),
              t.style & (WS_POPUP | WS_CAPTION | DS_MODALFRAME));
    EXPECT_EQ(13u, t.controls.size());
}

TEST(StyleDialogTemplate, EveryControlWithItsIdTextRectangleAndStyle)
{
    Template t = LoadTemplate(311);
    const DWORD list = LBS_NOTIFY | WS_VSCROLL | WS_BORDER;
    ExpectControl(t, 0, kButton, IDOK, L"确定", {32, 202, 50, 14}, BS_DEFPUSHBUTTON);
    ExpectControl(t, 1, kButton, IDCANCEL, L"取消", {167, 202, 50, 14}, BS_PUSHBUTTON);
    ExpectControl(t, 2, kButton, 1000, L"颜色字体预览", {3, 108, 281, 93}, BS_GROUPBOX);
    ExpectControl(t, 3, kStatic, 1003, L"颜色列表", {26, 19, 32, 11}, SS_LEFT);
    ExpectControl(t, 4, kListBox, 1004, L"", {156, 29, 53, 72}, list);
    ExpectControl(t, 5, kStatic, -1, L"字体列表", {162, 17, 39, 10}, SS_LEFT);
    ExpectControl(t, 6, kComboBox, 1005, L"", {45, 5, 50, 43}, CBS_DROPDOWN);
    ExpectControl(t, 7, kListBox, 1006, L"", {4, 30, 81, 74}, list);
    ExpectControl(t, 8, kStatic, -1, L"配色方案", {5, 7, 33, 8}, SS_LEFT);
    ExpectControl(t, 9, kButton, 1007, L"颜色显示", {89, 26, 63, 45}, BS_GROUPBOX);
    ExpectControl(t, 10, kButton, 1008, L"自定义颜色", {91, 75, 54, 14}, BS_PUSHBUTTON);
    ExpectControl(t, 11, kButton, 1009, L"字体显示", {212, 25, 74, 46}, BS_GROUPBOX);
    ExpectControl(t, 12, kButton, 1010, L"自定义字体", {217, 75, 63, 14}, BS_PUSHBUTTON);
}

// The combo box is a drop-down with an edit field, not a drop-down list; the buttons other than
// OK are plain push buttons.
TEST(StyleDialogTemplate, KindsAreExact)
{
    Template t = LoadTemplate(311);
    ASSERT_EQ(13u, t.controls.size());
    EXPECT_EQ(static_cast<DWORD>(CBS_DROPDOWN), t.controls[6].style & 3);
    for (size_t i : {1, 10, 12}) EXPECT_EQ(static_cast<DWORD>(BS_PUSHBUTTON), t.controls[i].style & 0xF) << i;
    EXPECT_EQ(static_cast<DWORD>(BS_DEFPUSHBUTTON), t.controls[0].style & 0xF);
}
