#include "catalogue_files.h"
#include "support/test_files.h"
#include <windows.h>

std::string Length(int32_t value)
{
    uint32_t v = static_cast<uint32_t>(value);
    std::string bytes;
    for (int i = 0; i < 4; ++i) bytes.push_back(static_cast<char>((v >> (8 * i)) & 0xFF));
    return bytes;
}

std::string Record(const std::string& key, const std::string& value)
{
    return Length(int32_t(key.size())) + key + Length(int32_t(value.size())) + value;
}

std::string Mox(const std::string& body) { return "mox1.0" + body; }

std::string UniquePackage(const std::string& name)
{
    return name + "_" + std::to_string(GetCurrentProcessId());
}

CatalogueFile::CatalogueFile(const std::string& language, const std::string& package, const std::string& bytes)
    : m_path(ExeDir() + "locale\\" + language + "\\LC_MESSAGES\\" + package + ".mox")
{
    WriteFileBytes(m_path, bytes);
}

CatalogueFile::~CatalogueFile() { DeleteFileA(m_path.c_str()); }
