#include "demo/live_keys.h"
#include "demo/live_window.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include <iterator>

namespace {

void SwitchScheme(LiveWindow& window) { window.NextScheme(); }

// The style editor over the window; a scheme edited and confirmed there is active when it
// closes, so the panel takes its colours and its bars the scheme's button strip.
void EditScheme(LiveWindow& window)
{
    CString applied;
    if (kiv_skin::KivStyleMgr::GetInstance()->SetKivStyle(applied)) window.SchemeChanged();
}
void CloseWindow(LiveWindow& window) { window.Close(); }

}  // namespace

const LiveKey kLiveKeys[] = {
    {'S', "S scheme", SwitchScheme},
    {'E', "E edit", EditScheme},
    {VK_ESCAPE, "Esc close", CloseWindow},
};
const int kLiveKeyCount = static_cast<int>(std::size(kLiveKeys));
