#include "support/test_files.h"
#include <afxwin.h>
#include <gtest/gtest.h>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

std::string TempDirectory()
{
    char temp[MAX_PATH];
    GetTempPathA(MAX_PATH, temp);
    return temp;
}

}  // namespace

ScratchDir::ScratchDir() : ScratchDir(TempDirectory()) {}

ScratchDir::ScratchDir(const std::string& parent)
{
    static int counter = 0;
    m_dir = parent + "kiv_test_" + std::to_string(GetCurrentProcessId()) + "_" + std::to_string(++counter);
    std::filesystem::remove_all(m_dir);
    std::filesystem::create_directories(m_dir);
}

ScratchDir::~ScratchDir()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_dir, ignored);
}

// Creates every folder of path above its last component. Folders are found on whole characters
// of the ANSI code page, so a folder named with a Big5 or GBK character whose second byte is
// 0x5C stays one folder.
void CreateParentFolders(const std::string& path)
{
    CString full(path.c_str());
    for (int slash = full.Find('\\', 3); slash >= 0; slash = full.Find('\\', slash + 1))
        CreateDirectoryA(full.Left(slash), nullptr);
}

void WriteFileBytes(const std::string& path, const std::string& bytes)
{
    CreateParentFolders(path);
    HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    bool ok = file != INVALID_HANDLE_VALUE &&
              WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
              written == bytes.size();
    if (file != INVALID_HANDLE_VALUE) ok = CloseHandle(file) && ok;
    if (!ok) ADD_FAILURE() << "cannot write the fixture file " << path;
}

std::string ReadFileBytes(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream all;
    all << in.rdbuf();
    return all.str();
}

bool FileExists(const std::string& path)
{
    DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::string ExeDir()
{
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    std::string full(path);
    return full.substr(0, full.find_last_of('\\') + 1);
}
