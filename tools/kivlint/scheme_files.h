// Reading a scheme's files as the library does: TinyXML documents in the file's own bytes (the
// schemes are GB2312), paths written with backslashes relative to a folder, whole files as bytes.
#pragma once
#include <string>
#include <tinyxml.h>

namespace kivlint {

// folder joined with a relative path written with backslashes, in this system's separators.
std::string JoinPath(const std::string& folder, const std::string& relative);
// The folder part of a path (up to its last separator), or "." when it has none.
std::string FolderOf(const std::string& path);
bool ReadWholeFile(const std::string& path, std::string& bytes);
// Loads a document; false with TinyXML's description and line when it does not parse.
bool LoadDocument(const std::string& path, TiXmlDocument& document, std::string& why, int& line);
// An attribute's value, or "" when absent.
std::string AttributeOf(const TiXmlElement* element, const char* name);

}  // namespace kivlint
