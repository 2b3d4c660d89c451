#include "demo/live_keys.h"
#include "demo/live_window.h"
#include <iterator>

namespace {

void SwitchScheme(LiveWindow& window) { window.NextScheme(); }
void CloseWindow(LiveWindow& window) { window.Close(); }

}  // namespace

const LiveKey kLiveKeys[] = {
    {'S', "S scheme", SwitchScheme},
    {VK_ESCAPE, "Esc close", CloseWindow},
};
const int kLiveKeyCount = static_cast<int>(std::size(kLiveKeys));
