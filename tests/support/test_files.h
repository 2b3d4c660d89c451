// Files for tests: a scratch folder per process, and whole-file reads and writes.
#pragma once
#include <string>

// A fresh folder, by default under the temporary directory, removed with its files when
// destroyed.
class ScratchDir {
public:
    ScratchDir();
    // The same under the folder parent (which ends with a backslash).
    explicit ScratchDir(const std::string& parent);
    ~ScratchDir();
    ScratchDir(const ScratchDir&) = delete;
    ScratchDir& operator=(const ScratchDir&) = delete;
    // The full path of name inside the folder (name may contain backslashes for subfolders).
    std::string Path(const std::string& name) const { return m_dir + "\\" + name; }
    const std::string& dir() const { return m_dir; }

private:
    std::string m_dir;
};

// The running executable's folder, ending in a backslash.
std::string ExeDir();

// Writes bytes to path, creating its folders; a write that fails fails the running test.
void WriteFileBytes(const std::string& path, const std::string& bytes);
std::string ReadFileBytes(const std::string& path);
bool FileExists(const std::string& path);
