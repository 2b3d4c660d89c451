// Catalogue fixtures: ".mox" bytes built by hand, and files placed where the running executable
// looks for them (<exe dir>\locale\<language>\LC_MESSAGES), under package names unique to the
// process so that test processes running side by side never share a file.
#pragma once
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// A little-endian 32-bit length field.
std::string Length(int32_t value);
// One record: key length, key, translation length, translation.
std::string Record(const std::string& key, const std::string& value);
// "mox1.0" followed by body.
std::string Mox(const std::string& body);

// name with the process id appended.
std::string UniquePackage(const std::string& name);

// Writes a catalogue file for a language directory and package; removes it when destroyed.
class CatalogueFile {
public:
    CatalogueFile(const std::string& language, const std::string& package, const std::string& bytes);
    ~CatalogueFile();
    CatalogueFile(const CatalogueFile&) = delete;
    CatalogueFile& operator=(const CatalogueFile&) = delete;
    const std::string& path() const { return m_path; }

private:
    std::string m_path;
};

