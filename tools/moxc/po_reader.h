// Reads a gettext .po file: msgid/msgstr pairs with C escapes and strings continued over several
// lines. As msgfmt does, fuzzy, obsolete and untranslated entries are left out. Entries with a
// context are left out with a warning (a catalogue has no contexts); plural entries keep their
// singular key and first translation, with a warning. Syntax errors throw InputError.
#pragma once
#include "messages.h"

namespace moxc {

MessageSet ReadPo(const std::string& path, const std::string& text);

}  // namespace moxc
