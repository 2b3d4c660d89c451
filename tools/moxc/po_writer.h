// Writes messages as a UTF-8 .po file that msgfmt accepts.
#pragma once
#include <map>
#include <string>

namespace moxc {

// A header naming UTF-8 (and the language, if not empty), then one entry per key in key order;
// strings holding line feeds are split into one quoted line per line.
std::string WritePo(const std::map<std::string, std::string>& messages, const std::string& language);

}  // namespace moxc
