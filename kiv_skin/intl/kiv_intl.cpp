#include "kiv_skin/intl/kiv_intl.h"
#include "kiv_base/file_helpers.h"
#include "kiv_skin/intl/languages.h"
#include "kiv_skin/intl/mox_index.h"
#include <windows.h>
#include <cstring>
#include <utility>
#include <vector>

namespace kiv_skin {
namespace {

// The process-wide catalogue, shared by every package.
mox::Index g_catalogue;

// The whole file, or false if it is missing, shorter than the smallest catalogue or unreadable.
// One byte more is reserved for the catalogue's terminator after the last translation.
bool ReadWholeFile(const std::string& path, std::vector<char>& bytes)
{
    if (!kiv_base::FileHelper::IsFileExist(path)) return false;
    HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    LARGE_INTEGER length;
    bool ok = GetFileSizeEx(file, &length) && length.QuadPart >= LONGLONG(mox::kMinFileSize) &&
              length.QuadPart <= LONGLONG(MAXDWORD);
    DWORD read = 0;
    if (ok) {
        bytes.reserve(size_t(length.QuadPart) + 1);
        bytes.resize(size_t(length.QuadPart));
        ok = ReadFile(file, bytes.data(), DWORD(bytes.size()), &read, nullptr) && read == bytes.size();
    }
    CloseHandle(file);
    return ok;
}

// Empties the catalogue, then loads the language's file of the package; answers the language.
int LoadCatalogue(const std::string& directory, int lang, const char* package)
{
    g_catalogue.Clear();
    int language = languages::Choose(lang, GetACP());
    std::string path = directory + "\\" + languages::DirName(language) + "\\LC_MESSAGES\\" +
                       (package ? package : "") + ".mox";
    std::vector<char> bytes;
    try {
        if (ReadWholeFile(path, bytes)) g_catalogue.Load(std::move(bytes));
    } catch (const std::exception&) {
        // Running out of memory ends the load quietly, with nothing half indexed.
        g_catalogue.Clear();
    }
    return language;
}

}  // namespace

KivIntl KivIntl::s_instance;

KivIntl::KivIntl() {}

KivIntl::~KivIntl() {}

KivIntl& KivIntl::Instance() { return s_instance; }

KivIntl& KivIntl::operator=(const KivIntl&) { return *this; }

void KivIntl::PreparePackage(LanguageName lang, const char* package)
{
    std::string directory;
    if (!kiv_base::DirHelper::GetExeDir(directory)) return;
    if (!directory.empty()) directory += directory.back() == '\\' ? "locale" : "\\locale";
    m_nPackageLanguage = LanguageName(LoadCatalogue(directory, lang, package));
}

KivIntl::LanguageName KivIntl::GetPackageLanguage() { return m_nPackageLanguage; }

const char* KivIntl::GetText(const char* key)
{
    if (key == nullptr || *key == '\0') return "";
    const char* translation = g_catalogue.Find(key);
    return translation ? translation : key;
}

const char* KivIntl::RemovePrefix(const char* key, char separator)
{
    const char* text = GetText(key);
    const char* after = text;
    for (const char* p = text; *p != '\0'; ++p)
        if (*p == separator) after = p + 1;
    return after;
}

const char* KivIntl::LF2CRLF(const char* key, std::string& out)
{
    out.clear();
    for (const char* p = GetText(key); *p != '\0'; ++p) {
        if (*p == '\n') out += '\r';
        out += *p;
    }
    return out.c_str();
}

const char* KivIntl::LF2CRLF(const char* key, char* buffer, int size)
{
    if (buffer == nullptr || size < 1) return buffer;
    int written = 0;
    for (const char* p = GetText(key); *p != '\0'; ++p) {
        if (written == size - 1 || (*p == '\n' && written == size - 2)) break;
        if (*p == '\n') buffer[written++] = '\r';
        buffer[written++] = *p;
    }
    buffer[written] = '\0';
    return buffer;
}

unsigned KivIntl::GetCodePage() { return GetACP(); }

}  // namespace kiv_skin
