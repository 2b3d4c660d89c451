// The sample schemes' colour/font files as the tests see them: their bytes kept and put back,
// the row of a colour key, and the text a colour value is written as.
#pragma once
#include <afxwin.h>
#include <map>
#include <string>

// Keeps the bytes of every colour/font file of the catalogue and writes them back when
// destroyed.
class SchemeFilesKeeper {
public:
    SchemeFilesKeeper();
    ~SchemeFilesKeeper();
    const std::string& Original(const std::string& scheme) const { return m_bytes.at(scheme); }
    const std::string& Path(const std::string& scheme) const { return m_paths.at(scheme); }
    std::string Current(const std::string& scheme) const;

private:
    std::map<std::string, std::string> m_paths;
    std::map<std::string, std::string> m_bytes;
};

// The position of key among the colours of the file, or -1.
int ColorRow(const std::string& path, const char* key);
// The row of key in the dark and light schemes, which list their colours in the same order; -1
// when it is missing or stands in different rows.
int RowInDarkAndLight(const SchemeFilesKeeper& files, const char* key);
// What saving text makes of it with the colour key set to color: the value in the file's
// notation and, as TinyXML writes text files on Windows, every line ended by CR LF. Every other
// byte stays.
std::string WithColorValue(std::string text, const std::string& key, COLORREF color);
