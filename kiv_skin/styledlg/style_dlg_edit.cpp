// The two edit buttons of the style dialog: the system colour chooser for the selected colour,
// the framework's font dialog for the selected font.
#include "kiv_skin/styledlg/style_dlg.h"
#include <afxdlgs.h>
#include <commdlg.h>

namespace kiv_skin {

// Choosing the colour shown again leaves the scheme unmodified but still writes the colour into
// the working table, under the key of the row being edited.
void CStyleDlg::EditColor()
{
    COLORREF customColors[16] = {};
    CHOOSECOLORA choice = {};
    choice.lStructSize = sizeof(choice);
    choice.hwndOwner = m_hWnd;
    choice.rgbResult = m_clrCurrent;
    choice.lpCustColors = customColors;
    choice.Flags = CC_RGBINIT | CC_SOLIDCOLOR;
    if (!::ChooseColorA(&choice)) return;
    if (choice.rgbResult != m_clrCurrent) {
        m_clrCurrent = choice.rgbResult;
        m_bColorModified = 1;
    }
    const CString& key = Element(m_vecColors, m_nColorSel).name;
    for (ColorEntry& entry : m_styleWork.colors.entries) {
        if (entry.name == key) {
            entry.color = m_clrCurrent;
            break;
        }
    }
    RepaintColorAndPreview();
}

// Only the face name and the point size chosen are taken over.
void CStyleDlg::EditFont()
{
    CFontDialog dialog(NULL, CF_SCREENFONTS | CF_EFFECTS, NULL, this);
    if (dialog.DoModal() != IDOK) return;
    CFont chosen;
    chosen.CreatePointFont(dialog.GetSize(), dialog.GetFaceName());
    m_bFontModified = 1;
    kiv_skin::SetFont(m_styleWork.fonts, m_strFontKey, &chosen, CString());
    chosen.DeleteObject();
    InvalidateRect(&m_rcFont);
    RepaintFontAndPreview();
}

}  // namespace kiv_skin
