#include "support/test_files.h"
#include <windows.h>
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

void WriteFileBytes(const std::string& path, const std::string& bytes)
{
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
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
