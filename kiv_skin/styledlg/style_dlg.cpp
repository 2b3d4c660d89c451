#include "kiv_skin/styledlg/style_dlg.h"
#include <algorithm>

namespace kiv_skin {
namespace {

const UINT_PTR kClockTimer = 1;
const UINT kClockPeriod = 1000;
// The click point is taken from the window's corner and then moved down by this much, a fixed
// allowance for the caption.
const int kCaptionAllowance = 23;
// "颜色或字体已经改变，要确认修改吗？" in GB2312.
const char kKeepEditsPrompt[] =
    "\xD1\xD5\xC9\xAB\xBB\xF2\xD7\xD6\xCC\xE5\xD2\xD1\xBE\xAD\xB8\xC4\xB1\xE4\xA3\xAC"
    "\xD2\xAA\xC8\xB7\xC8\xCF\xD0\xDE\xB8\xC4\xC2\xF0\xA3\xBF";

}  // namespace

BEGIN_MESSAGE_MAP(CStyleDlg, CDialogEx)
    ON_CBN_SELCHANGE(IDC_COMBO_STYLE, &CStyleDlg::OnCbnSelchangeComboStyle)
    ON_LBN_SELCHANGE(IDC_LIST_COLOR, &CStyleDlg::OnLbnSelchangeListColor)
    ON_LBN_SELCHANGE(IDC_LIST_FONT, &CStyleDlg::OnLbnSelchangeListFont)
    ON_BN_CLICKED(IDC_BUTTON_COLOR, &CStyleDlg::OnBnClickedButtonColor)
    ON_BN_CLICKED(IDC_BUTTON_FONT, &CStyleDlg::OnBnClickedButtonFont)
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_TIMER()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CStyleDlg::CStyleDlg(CWnd* pParent)
    : CDialogEx(IDD, pParent), m_bInited(0), m_rcColor(), m_rcFont(), m_rcPreview(), m_rcTitle(), m_rcRows(),
      m_nHotRow(-1), m_bPreviewDrawn(0), m_nColorSel(0), m_clrCurrent(0), m_bColorModified(0),
      m_bFontModified(0)
{
}

CComboBox* CStyleDlg::StyleCombo() const { return static_cast<CComboBox*>(GetDlgItem(IDC_COMBO_STYLE)); }
CListBox* CStyleDlg::ColorList() const { return static_cast<CListBox*>(GetDlgItem(IDC_LIST_COLOR)); }
CListBox* CStyleDlg::FontList() const { return static_cast<CListBox*>(GetDlgItem(IDC_LIST_FONT)); }

// The control's window rectangle in client coordinates, inset on each side.
RECT CStyleDlg::ControlArea(int id, int inset, int insetTop, int insetBottom) const
{
    CRect area;
    GetDlgItem(id)->GetWindowRect(area);
    ScreenToClient(area);
    area.DeflateRect(inset, insetTop, inset, insetBottom);
    return area;
}

INT_PTR CStyleDlg::DoModal()
{
    m_heldError = nullptr;
    INT_PTR answer = CDialogEx::DoModal();
    if (m_heldError) std::rethrow_exception(m_heldError);
    return answer;
}

// The first exception is kept; the dialog ends as soon as the system's code regains control.
template <class Work> void CStyleDlg::EndOnError(Work work)
{
    try {
        work();
    } catch (...) {
        if (!m_heldError) m_heldError = std::current_exception();
        EndDialog(IDABORT);
    }
}

BOOL CStyleDlg::OnInitDialog()
{
    CDialogEx::OnInitDialog();
    EndOnError([this] { InitControls(); });
    return TRUE;
}

void CStyleDlg::InitControls()
{
    m_bInited = 0;
    m_nHotRow = -1;
    m_bPreviewDrawn = 0;
    m_bColorModified = 0;
    m_bFontModified = 0;
    m_vecSavedStyles.clear();
    m_rcColor = ControlArea(IDC_GROUP_COLOR, 10, 14, 10);
    m_rcFont = ControlArea(IDC_GROUP_FONT, 10, 14, 10);
    m_rcPreview = ControlArea(IDC_GROUP_PREVIEW, 4, 16, 4);
    StyleCatalogue* catalogue = StyleCatalogue::Instance();
    if (!catalogue->LoadCatalogue()) return;
    m_vecStyles = catalogue->m_entries;
    FillStyleCombo();
    m_strStyle = Element(m_vecStyles, 0).name;
    ChangeScheme();
    ColorList()->SetCurSel(0);
    SelectColorRow();
    FontList()->SetCurSel(0);
    SelectFontRow();
    m_bInited = 1;
    SetTimer(kClockTimer, kClockPeriod, nullptr);
}

void CStyleDlg::FillStyleCombo()
{
    CComboBox* combo = StyleCombo();
    for (const StyleEntry& entry : m_vecStyles) combo->AddString(entry.des);
    combo->SetCurSel(0);
}

// A scheme switch: edits of the scheme left behind are saved or dropped, as the user answers,
// and the newly chosen scheme is loaded into the working copy.
void CStyleDlg::OnCbnSelchangeComboStyle() { EndOnError([this] { ChangeScheme(); }); }
void CStyleDlg::OnLbnSelchangeListColor() { EndOnError([this] { SelectColorRow(); }); }
void CStyleDlg::OnLbnSelchangeListFont() { EndOnError([this] { SelectFontRow(); }); }
void CStyleDlg::OnBnClickedButtonColor() { EndOnError([this] { EditColor(); }); }
void CStyleDlg::OnBnClickedButtonFont() { EndOnError([this] { EditFont(); }); }

void CStyleDlg::ChangeScheme()
{
    CComboBox* combo = StyleCombo();
    int index = combo->GetCurSel();
    if (index == CB_ERR) return;
    CString text;
    combo->GetLBText(index, text);
    if (text.IsEmpty()) return;
    if (m_bColorModified || m_bFontModified) AskToKeepEdits();
    LoadWorkingStyle(index);
    if (!FillColorList(index)) return;
    FillFontList(index);
    CClientDC dc(this);
    DrawColor(&dc);
    DrawFont(&dc);
    DrawPreview(&dc);
}

void CStyleDlg::AskToKeepEdits()
{
    if (AfxMessageBox(kKeepEditsPrompt, MB_OKCANCEL | MB_ICONINFORMATION) == IDOK) {
        SaveEdits();
        if (std::find(m_vecSavedStyles.begin(), m_vecSavedStyles.end(), m_strStyle) == m_vecSavedStyles.end())
            m_vecSavedStyles.push_back(m_strStyle);
    }
    InvalidateRect(&m_rcFont);
    m_bColorModified = 0;
    m_bFontModified = 0;
}

// Every catalogue entry of the chosen name is loaded; the last one wins.
void CStyleDlg::LoadWorkingStyle(int index)
{
    m_strStyle = Element(m_vecStyles, index).name;
    for (const StyleEntry& entry : m_vecStyles)
        if (entry.name == m_strStyle) LoadStyleData(m_styleWork, entry);
}

// The colour being edited starts as the one at the scheme's index, while the list highlights
// its first row: the two meet once the user picks a row.
bool CStyleDlg::FillColorList(int index)
{
    CListBox* list = ColorList();
    list->ResetContent();
    m_vecColors = m_styleWork.colors.entries;
    if (m_vecColors.empty()) return false;
    m_nColorSel = index;
    if (static_cast<size_t>(index) < m_vecColors.size()) {
        m_clrCurrent = m_vecColors[index].color;
        m_strColorKey = m_vecColors[index].name;
    }
    for (const ColorEntry& entry : m_vecColors) list->AddString(entry.des);
    list->SetCurSel(0);
    return true;
}

// The font being edited is the one at the scheme's index; the list is refilled only when the
// scheme's keys differ from those shown.
void CStyleDlg::FillFontList(int index)
{
    FontNameList keys;
    ListFontNames(m_styleWork.fonts, keys);
    m_strFontKey = Element(keys, index);
    if (keys == m_vecFontKeys) return;
    m_vecFontKeys = keys;
    CListBox* list = FontList();
    list->ResetContent();
    for (const CString& key : m_vecFontKeys) list->AddString(GetFontDes(m_styleWork.fonts, key));
    list->SetCurSel(0);
}

void CStyleDlg::SelectColorRow()
{
    int row = ColorList()->GetCurSel();
    if (row == LB_ERR) return;
    m_strColorKey.Empty();
    m_nColorSel = row;
    CString key = Element(m_vecColors, row).name;
    key.Trim(' ');
    if (!key.IsEmpty()) {
        m_strColorKey = key;
        m_clrCurrent = LookupColor(m_styleWork.colors, m_strColorKey);
    }
    m_bPreviewDrawn = 0;
    RepaintColorAndPreview();
}

void CStyleDlg::SelectFontRow()
{
    int row = FontList()->GetCurSel();
    if (row == LB_ERR) return;
    m_strFontKey = Element(m_vecFontKeys, row);
    m_bPreviewDrawn = 0;
    RepaintFontAndPreview();
    InvalidateRect(&m_rcFont);
}

void CStyleDlg::SaveEdits() { SaveStyleData(m_styleWork, m_bColorModified, m_bFontModified); }

// The flags stay set for the caller, who reloads the scheme.
void CStyleDlg::OnOK()
{
    if (m_bColorModified || m_bFontModified) SaveEdits();
    CDialogEx::OnOK();
}

void CStyleDlg::OnCancel() { CDialogEx::OnCancel(); }

void CStyleDlg::OnLButtonDown(UINT nFlags, CPoint point)
{
    CRect window;
    GetWindowRect(window);
    CPoint target = point + CSize(window.left, window.top);
    ScreenToClient(&target);
    target.y += kCaptionAllowance;
    for (int row = 0; row < kRowCount; ++row) {
        if (::PtInRect(&m_rcRows[row], target)) {
            m_nHotRow = row;
            RepaintPreview();
            break;
        }
    }
    CDialogEx::OnLButtonDown(nFlags, point);
}

void CStyleDlg::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent == kClockTimer) RepaintPreview();
}

void CStyleDlg::OnDestroy()
{
    KillTimer(kClockTimer);
    CDialogEx::OnDestroy();
}

}  // namespace kiv_skin
