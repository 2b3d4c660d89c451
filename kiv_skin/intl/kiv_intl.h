// Translation of user-visible narrow strings through a message catalogue: one ".mox" file per
// language and package under the executable's "locale\<language>\LC_MESSAGES" directory. One
// catalogue serves the whole process; preparing a package replaces what was loaded before.
#pragma once
#include "kiv_skin/kiv_skin_api.h"
#include <string>

namespace kiv_skin {

class KIV_SKIN_API KivIntl {
public:
    enum LanguageName {
        LANGUAGE_AUTO = 0,  // from the system's ANSI code page; also any value outside 1 to 3
        LANGUAGE_EN = 1,
        LANGUAGE_ZH_CN = 2,
        LANGUAGE_ZH_TW = 3,
    };

    static KivIntl& Instance();

    // Loads <exe dir>\locale\<language>\LC_MESSAGES\<package>.mox and records the language chosen.
    void PreparePackage(LanguageName lang, const char* package);
    LanguageName GetPackageLanguage();

    // The translation of key, or key itself when it has none; "" for a null or empty key.
    const char* GetText(const char* key);
    // The translation after its last separator (all of it when separator does not occur).
    const char* RemovePrefix(const char* key, char separator);
    // The translation with each line feed written as carriage return and line feed.
    const char* LF2CRLF(const char* key, std::string& out);
    // The same into buffer, cut so that it ends in a zero byte within size bytes.
    const char* LF2CRLF(const char* key, char* buffer, int size);

    static unsigned GetCodePage();

    // Copies nothing: the recorded language cannot be overwritten by assignment.
    KivIntl& operator=(const KivIntl& other);

protected:
    KivIntl();
    ~KivIntl();

private:
    static KivIntl s_instance;
    LanguageName m_nPackageLanguage;
};

}  // namespace kiv_skin
