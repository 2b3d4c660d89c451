// An off-screen drawing surface: a memory device context compatible with a given context, with a
// bitmap selected into it and the bitmap's size. Callers draw into it and copy it out themselves;
// it never copies anything anywhere, not even when destroyed.
#pragma once
#include "kiv_skin/kiv_skin_api.h"
#include <afxwin.h>

namespace kiv_skin {

// Every constructor first creates the memory context (compatible with the screen when dc is
// null) and raises the framework's resource exception if it cannot.
class KIV_SKIN_API CMemoDC : public CDC {
    DECLARE_DYNAMIC(CMemoDC)

public:
    // A cx by cy bitmap compatible with dc (not null), filled with color.
    CMemoDC(CDC* dc, int cx, int cy, DWORD color);
    // The bitmap resource id, from the module that holds it.
    CMemoDC(CDC* dc, UINT id);
    // The bitmap resource id of module, through LoadBmp(module, id); a failure leaves a bare
    // context.
    CMemoDC(CDC* dc, HINSTANCE module, UINT id);
    // The caller's bitmap, which stays the caller's.
    CMemoDC(CDC* dc, CBitmap* bitmap);
    // A bitmap file; a file that does not load leaves a bare context of size (0, 0).
    CMemoDC(CDC* dc, const char* path);
    // A bare context: nothing selected, size (0, 0).
    explicit CMemoDC(CDC* dc);
    // Selects the previous bitmap back, then deletes the owned bitmap and the context.
    ~CMemoDC() override;

    // Each load selects a bitmap and remembers what it replaced, overwriting what an earlier load
    // remembered: after two loads the destructor puts back the first loaded bitmap.
    void LoadBmp(CBitmap* bitmap);
    // Raises the resource exception when the resource does not load or when this object already
    // owns a bitmap (the framework attaches one handle only).
    void LoadBmp(UINT id);
    // 1 when loaded; 0 for a null module, a missing resource or an object that already owns a
    // bitmap.
    int LoadBmp(HINSTANCE module, UINT id);
    // Takes the size of bitmap without selecting it; unchanged when the size cannot be read.
    void SetSize(HGDIOBJ bitmap);
    CSize GetSize() { return m_size; }

private:
    void CreateContext(CDC* dc);
    void SelectBitmap(HGDIOBJ bitmap);
    void AttachOrThrow(HBITMAP loaded);

    CGdiObject* m_pPrevBitmap = nullptr;
    CBitmap m_bitmap;
    CSize m_size;
};

}  // namespace kiv_skin
