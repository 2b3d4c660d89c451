// The catalogue languages by number (1 en, 2 zh_CN, 3 zh_TW), their directory names under
// "locale", and the automatic choice from the system's ANSI code page. Pure, shared with moxc.
#pragma once

namespace kiv_skin {
namespace languages {

const int kAuto = 0;
const int kEn = 1;
const int kZhCN = 2;
const int kZhTW = 3;

// requested if it is 1, 2 or 3; otherwise the language of the ANSI code page: 936 and 54936
// give zh_CN, 950 gives zh_TW, any other gives en.
int Choose(int requested, unsigned ansiCodePage);

// "en", "zh_CN" or "zh_TW"; "" for a number outside 1 to 3.
const char* DirName(int language);

// The number of a directory name, or kAuto if it names none.
int FromDirName(const char* name);

// The code page a catalogue of the language is written in: 1252, 936 (GB2312) or 950 (Big5).
unsigned CodePage(int language);

}  // namespace languages
}  // namespace kiv_skin
