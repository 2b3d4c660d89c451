#include "kiv_base/file_helpers.h"
#include <windows.h>

namespace kiv_base {

bool DirHelper::GetExeDir(std::string& dir)
{
    char path[MAX_PATH];
    DWORD n = GetModuleFileNameA(nullptr, path, MAX_PATH);
    if (n == 0 || n >= MAX_PATH) return false;
    std::string full(path, n);
    size_t slash = full.find_last_of('\\');
    if (slash == std::string::npos) return false;
    dir = full.substr(0, slash + 1);
    return true;
}

bool FileHelper::IsFileExist(const std::string& path)
{
    DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

}  // namespace kiv_base
