// GNU .mo files built from messages, for the fuzz targets of moxc's readers: a header entry
// naming the charset and language, then the messages sorted by key, in either byte order.
#pragma once
#include <map>
#include <string>

std::string MoFile(const std::map<std::string, std::string>& messages, const std::string& charset,
                   const std::string& language, bool bigEndian);
