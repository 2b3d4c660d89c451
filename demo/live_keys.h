// The live window's keys. To add one, write its action and add a line to kLiveKeys; an action
// that makes another scheme active calls LiveWindow::SchemeChanged afterwards.
#pragma once
#include <afxwin.h>

class LiveWindow;

struct LiveKey {
    UINT key;          // virtual-key code
    const char* help;  // shown in the title bar, UTF-8
    void (*run)(LiveWindow& window);
};

extern const LiveKey kLiveKeys[];
extern const int kLiveKeyCount;
