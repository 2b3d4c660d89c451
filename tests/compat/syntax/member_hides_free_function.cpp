// A free function called unqualified from a member of a CWnd-derived class, where CWnd has a
// member of the same name: the member hides the free function, as under MFC, so the call goes to
// CWnd::SetFont(CFont*, BOOL) and does not compile. With KIV_CORRECTED the call names the
// function's namespace and the file compiles.
#include <afxdialogex.h>

namespace skin {
struct FontTable {
    int size = 0;
};
bool SetFont(FontTable& table, int size)
{
    table.size = size;
    return size > 0;
}

class ProbeDialog : public CDialogEx {
public:
    ProbeDialog() : CDialogEx(100u) {}
#ifdef KIV_CORRECTED
    bool Apply() { return skin::SetFont(m_fonts, 12); }
#else
    bool Apply() { return SetFont(m_fonts, 12); }
#endif

private:
    FontTable m_fonts;
};
}  // namespace skin
