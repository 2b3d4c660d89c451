// Between the scroll bar's fields and the GDI-free arithmetic: rectangles as boxes, and the
// position, page, total and flags read and written as one model.
#pragma once
#include "kiv_skin/scrollbar/scroll_arithmetic.h"
#include <afxwin.h>

namespace kiv_skin {

inline scroll_arithmetic::Box AsBox(const RECT& rc) { return {rc.left, rc.top, rc.right, rc.bottom}; }
inline RECT AsRect(const scroll_arithmetic::Box& box) { return {box.left, box.top, box.right, box.bottom}; }

// The scroll bar's model fields, by reference.
struct ModelFields {
    int& pos;
    int& page;
    int& total;
    DWORD& flags;

    scroll_arithmetic::Model Get() const { return {pos, page, total, flags}; }
    void Set(const scroll_arithmetic::Model& model) const
    {
        pos = model.pos;
        page = model.page;
        total = model.total;
        flags = model.flags;
    }
};

}  // namespace kiv_skin
