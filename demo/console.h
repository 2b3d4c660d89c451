// Printing to the terminal that runs the demo (UTF-8), from the schemes' GB2312 texts.
#pragma once
#include <afxwin.h>
#include <string>

std::string Gb2312ToUtf8(const char* gb2312);
// Prints a section heading.
void PrintHeading(const char* title);
