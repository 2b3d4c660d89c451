// The look of the demo's report pictures (the contrast sheet, the labels over the panels seen
// with colour-vision deficiencies): dark text on a light page in one fixed face whatever the
// scheme, so that a report stays readable when the scheme's own colours fail it.
#pragma once
#include <afxwin.h>
#include "tools/kivlint/figure_text.h"
#include <string>

const COLORREF kReportPage = RGB(250, 250, 248);
const COLORREF kReportInk = RGB(24, 24, 24);
const COLORREF kReportQuiet = RGB(92, 92, 92);
const COLORREF kReportRule = RGB(200, 200, 196);
const COLORREF kReportPass = RGB(0, 122, 51);
const COLORREF kReportFail = RGB(196, 20, 28);
const UINT kReportLine = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;

// Figures as kivlint prints them.
using kivlint::Cut;
using kivlint::Plain;

enum class ReportFont { Body, Bold, Heading };

// Writes text (UTF-8) into box in a report font, with DrawText's format flags.
void ReportText(CDC* dc, const char* text, const CRect& box, ReportFont font, COLORREF color, UINT format);
// A check's verdict at the left of box, vertically centred: a tick on a green disc and "pass",
// or a cross on a red disc and "FAIL". The shape and the word say it without the colour.
void DrawVerdict(CDC* dc, const CRect& box, bool passes);
// A one-pixel frame just outside a swatch, so that a ground close to the page's colour still
// shows its edges.
void FrameSwatch(CDC* dc, const CRect& swatch);
// A one-pixel rule across the top of box.
void DrawRule(CDC* dc, const CRect& box);
