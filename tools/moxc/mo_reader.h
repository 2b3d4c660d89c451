// Reads a GNU .mo file (either byte order): its header entry gives the charset and language;
// context entries and plural entries without a singular are left out, other plural entries keep
// their singular key and first translation, each with a warning. A damaged file throws InputError.
#pragma once
#include "messages.h"

namespace moxc {

MessageSet ReadMo(const std::string& path, const std::string& bytes);

}  // namespace moxc
