#include "scheme_files.h"
#include "kiv_skin/style/color_table.h"
#include "kiv_skin/style/style_catalogue.h"
#include "support/test_files.h"
#include <gtest/gtest.h>
#include <cstdio>

SchemeFilesKeeper::SchemeFilesKeeper()
{
    kiv_skin::StyleCatalogue* catalogue = kiv_skin::StyleCatalogue::Instance();
    EXPECT_EQ(1, catalogue->LoadCatalogue());
    for (const kiv_skin::StyleEntry& entry : catalogue->m_entries) {
        std::string name(entry.name), path(entry.colorfont);
        m_paths[name] = path;
        m_bytes[name] = ReadFileBytes(path);
    }
}

SchemeFilesKeeper::~SchemeFilesKeeper()
{
    for (const auto& kept : m_bytes) WriteFileBytes(m_paths.at(kept.first), kept.second);
}

std::string SchemeFilesKeeper::Current(const std::string& scheme) const { return ReadFileBytes(Path(scheme)); }

int ColorRow(const std::string& path, const char* key)
{
    kiv_skin::ColorTable table;
    kiv_skin::LoadColors(table, path.c_str());
    for (size_t row = 0; row < table.entries.size(); ++row)
        if (table.entries[row].name == key) return static_cast<int>(row);
    return -1;
}

int RowInDarkAndLight(const SchemeFilesKeeper& files, const char* key)
{
    int row = ColorRow(files.Path("dark"), key);
    return row == ColorRow(files.Path("light"), key) ? row : -1;
}

std::string WithColorValue(std::string text, const std::string& key, COLORREF color)
{
    std::string anchor = "name=\"" + key + "\" value=\"";
    size_t at = text.find(anchor);
    EXPECT_NE(std::string::npos, at) << key;
    if (at == std::string::npos) return text;
    char value[16] = "";
    std::snprintf(value, sizeof(value), "0x00%02X%02X%02X", GetBValue(color), GetGValue(color), GetRValue(color));
    text.replace(at + anchor.size(), 10, value);
    std::string saved;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) saved += '\r';
        saved += text[i];
    }
    return saved;
}
