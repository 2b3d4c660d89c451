// Drives modal windows of the test's own thread as a user would: a list of steps, each run from
// a thread timer while the modal loops of the dialog, its message boxes and the common dialogs
// dispatch messages. A step answers true when it is done and false to be tried again on the
// next tick. A watchdog ends every dialog of the thread with -1 once the time is up, so that a
// test that leaves a modal window open fails instead of blocking the run.
#pragma once
#include <afxwin.h>
#include <functional>
#include <string>

class DialogDriver {
public:
    using Step = std::function<bool()>;

    explicit DialogDriver(DWORD timeoutMs = 20000);
    ~DialogDriver();
    DialogDriver(const DialogDriver&) = delete;
    DialogDriver& operator=(const DialogDriver&) = delete;

    DialogDriver& Then(Step step);
    // Waits this long before the next step, with the modal loop running.
    DialogDriver& Wait(DWORD ms);
    bool AllStepsRan() const;
    bool TimedOut() const { return m_timedOut; }

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD);
    void RunNext();

    struct Steps;
    Steps* m_steps;
    UINT_PTR m_timer;
    DWORD m_start;
    DWORD m_timeout;
    bool m_busy = false;
    bool m_timedOut = false;
};

// Windows of the thread, as a user sees them.
HWND FindStyleDialog();
HWND FindColorChooser();
HWND FindFontChooser();
// The message box whose text reads text (compared as UTF-16).
HWND FindMessageBox(const std::wstring& text);

// The steps a user takes in the style dialog and the boxes it opens.
DialogDriver::Step SelectScheme(int index);
DialogDriver::Step PickListRow(int listId, int row);
DialogDriver::Step Press(int buttonId);
// Sets the chooser's red, green and blue fields to color and presses OK; seen receives the
// colour the chooser showed first.
DialogDriver::Step AnswerColor(COLORREF color, COLORREF* seen = nullptr);
// Presses OK in the colour chooser without changing anything.
DialogDriver::Step KeepColor();
// Chooses face and size (in points, as the size list shows it) in the font chooser and presses OK.
DialogDriver::Step AnswerFont(const std::string& face, const std::string& size);
// Presses button in the message box that reads text.
DialogDriver::Step AnswerMessageBox(const std::wstring& text, int button);
