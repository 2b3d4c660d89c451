// Colour arithmetic: mixes, lit strips, the dark-background test and button backgrounds.
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/draw/scheme.h"
#include <vector>

namespace kiv_skin {
namespace {

COLORREF Assemble(int red, int green, int blue)
{
    return (red & 0xFF) | (green & 0xFF) << 8 | (blue & 0xFF) << 16;
}

// Moves one channel toward 224 by weight / 10000 of the distance; never darkens.
int Brighten(int channel, int weight)
{
    int room = 224 - channel;
    return channel + (room > 0 ? room : 0) * weight / 10000;
}

}  // namespace

COLORREF KivDraw::MakeMixColor(CDC* dc, COLORREF first, COLORREF second, int percent)
{
    COLORREF a = dc->GetNearestColor(first);
    COLORREF b = dc->GetNearestColor(second);
    auto mix = [percent](int x, int y) { return (x * percent + y * (100 - percent)) / 100; };
    return Assemble(mix(GetRValue(a), GetRValue(b)), mix(GetGValue(a), GetGValue(b)),
                    mix(GetBValue(a), GetBValue(b)));
}

void KivDraw::Make3DColor(CDC* dc, int length, COLORREF* colors, int count, int vertical)
{
    if (length < 3) return;  // shorter strips have no room for a peak between two ends
    std::vector<int> weight(length);
    int peak = length * 3 / 8;
    for (int i = 0; i < length; ++i)
        weight[i] = i <= peak ? i * 10000 / peak : (length - 1 - i) * 10000 / (length - peak - 1);
    for (int n = 0; n < count; ++n) {
        COLORREF c = dc->GetNearestColor(colors[n]);
        for (int i = 0; i < length; ++i) {
            COLORREF lit = Assemble(Brighten(GetRValue(c), weight[i]), Brighten(GetGValue(c), weight[i]),
                                    Brighten(GetBValue(c), weight[i]));
            int p = n * length + i;
            if (vertical)
                dc->SetPixel(0, p, lit);
            else
                dc->SetPixel(p, 0, lit);
        }
    }
}

bool KivDraw::IsDarkBackground(CDC* dc)
{
    COLORREF c = dc->GetNearestColor(SchemeColor("BACKGROUND"));
    unsigned sum = GetRValue(c) + GetGValue(c) + GetBValue(c);
    return sum / 3 <= 64;
}

COLORREF KivDraw::GetButtonBackgroundColor(BUTTON_STATE state)
{
    switch (state) {
    case BUTTON_NORMAL: return SchemeColor("PLUG_BTN_BGCOLOR");
    case BUTTON_HOVER: return SchemeColor("PLUG_BTN_BGCOLOR_HOVER");
    case BUTTON_PRESSED: return SchemeColor("PLUG_BTN_BGCOLOR_PRESSED");
    default: return 0;
    }
}

}  // namespace kiv_skin
