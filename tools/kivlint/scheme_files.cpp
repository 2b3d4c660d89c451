#include "scheme_files.h"
#include <fstream>
#include <sstream>

namespace kivlint {
namespace {

#ifdef _WIN32
const char kSeparator = '\\';
#else
const char kSeparator = '/';
#endif

}  // namespace

std::string JoinPath(const std::string& folder, const std::string& relative)
{
    std::string path = folder + kSeparator + relative;
    for (char& c : path)
        if (c == '\\' || c == '/') c = kSeparator;
    return path;
}

std::string FolderOf(const std::string& path)
{
    const size_t last = path.find_last_of("\\/");
    return last == std::string::npos ? "." : path.substr(0, last);
}

bool ReadWholeFile(const std::string& path, std::string& bytes)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    std::ostringstream content;
    content << in.rdbuf();
    bytes = content.str();
    return true;
}

bool LoadDocument(const std::string& path, TiXmlDocument& document, std::string& why, int& line)
{
    if (document.LoadFile(path.c_str())) return true;
    why = document.ErrorId() == TiXmlBase::TIXML_ERROR_OPENING_FILE ? "cannot open the file" : document.ErrorDesc();
    line = document.ErrorRow();
    return false;
}

std::string AttributeOf(const TiXmlElement* element, const char* name)
{
    const char* value = element->Attribute(name);
    return value ? value : "";
}

}  // namespace kivlint
