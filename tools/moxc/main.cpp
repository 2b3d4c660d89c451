// moxc: compiles gettext .po and GNU .mo files into ".mox" catalogues, dumps a catalogue back to
// a .po file, and checks where a catalogue's record walk would stop.
#include "charset.h"
#include "kiv_skin/intl/languages.h"
#include "kiv_skin/intl/mox_format.h"
#include "mo_reader.h"
#include "po_reader.h"
#include "po_writer.h"
#include "substitute.h"
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string_view>

using namespace kiv_skin;

namespace moxc {
namespace {

const char kUsage[] =
    "usage: moxc compile INPUT.po|INPUT.mo -o OUTPUT.mox [--lang en|zh_CN|zh_TW] [--code-page CP] [--substitute]\n"
    "       moxc dump INPUT.mox -o OUTPUT.po [--lang en|zh_CN|zh_TW] [--code-page CP]\n"
    "       moxc check INPUT.mox\n"
    "The catalogue's code page is CP (a number or a name such as GB2312, BIG5, CP1252), else the\n"
    "language's (en 1252, zh_CN 936, zh_TW 950); the language is --lang, else the .po header's\n"
    "\"Language\", else a directory named en, zh_CN or zh_TW in the output's path, else in the input's.\n"
    "A character the code page cannot hold is an error; with --substitute it is written as a\n"
    "transliteration (\"(C)\" for the copyright sign, \"c\" for c cedilla) or \"?\", with a warning per\n"
    "message.\n";

struct Options {
    std::string command, input, output, lang, codePage;
    bool substitute = false;
};

class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

Options ParseArguments(int argc, char** argv)
{
    Options o;
    for (int i = 1; i < argc; ++i) {
        std::string arg = argv[i];
        std::string* value = arg == "-o" ? &o.output : arg == "--lang" ? &o.lang : arg == "--code-page" ? &o.codePage : nullptr;
        if (arg == "--substitute") {
            o.substitute = true;
        } else if (value != nullptr) {
            if (++i == argc) throw UsageError(arg + " needs a value");
            *value = argv[i];
        } else if (o.command.empty()) {
            o.command = arg;
        } else if (o.input.empty()) {
            o.input = arg;
        } else {
            throw UsageError("unexpected argument " + arg);
        }
    }
    if (o.input.empty()) throw UsageError("no input file named");
    if (o.substitute && o.command != "compile") throw UsageError("--substitute is an option of compile");
    if (o.command != "check" && o.output.empty()) throw UsageError("no output file named (-o)");
    if (!o.lang.empty() && languages::FromDirName(o.lang.c_str()) == languages::kAuto)
        throw UsageError("unknown language " + o.lang + " (en, zh_CN or zh_TW)");
    return o;
}

std::string ReadAll(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) throw InputError(path, "cannot open for reading");
    std::ostringstream all;
    all << in.rdbuf();
    return all.str();
}

// Writes through a temporary file renamed into place, so that no partial output is ever left.
void WriteAll(const std::string& path, const std::string& bytes)
{
    std::string temporary = path + ".tmp";
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    bool ok = out && out.write(bytes.data(), std::streamsize(bytes.size())) && (out.close(), !out.fail());
    std::error_code error;
    if (ok) {
        std::filesystem::remove(path, error);
        std::filesystem::rename(temporary, path, error);
    }
    if (!ok || error) {
        std::filesystem::remove(temporary, error);
        throw InputError(path, "cannot write");
    }
}

// A language directory named in the path, e.g. locale/zh_CN/LC_MESSAGES/x.mox.
std::string LanguageInPath(const std::string& path)
{
    for (const auto& part : std::filesystem::path(path))
        if (languages::FromDirName(part.string().c_str()) != languages::kAuto) return part.string();
    return "";
}

// The catalogue's code page from the options, else from a language (the header's or the path's).
unsigned TargetCodePage(const Options& o, const std::string& headerLanguage, std::string& language)
{
    language = !o.lang.empty() ? o.lang : headerLanguage;
    if (languages::FromDirName(language.c_str()) == languages::kAuto) language = LanguageInPath(o.output);
    if (language.empty()) language = LanguageInPath(o.input);
    if (!o.codePage.empty()) {
        unsigned codePage = CodePageOf(o.codePage);
        if (codePage == 0) throw UsageError("unknown code page " + o.codePage);
        return codePage;
    }
    if (language.empty()) throw UsageError("name the catalogue's language (--lang) or code page (--code-page)");
    return languages::CodePage(languages::FromDirName(language.c_str()));
}

bool EndsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// A message's key and translation in the catalogue's code page. A character the code page cannot
// hold is an error, or with substitutes allowed is replaced, and the message gets one warning.
class Encoder {
public:
    Encoder(unsigned source, unsigned target, const std::string& charset, bool substitute)
        : m_source(source), m_target(target), m_charset(charset), m_substitute(substitute) {}

    Message operator()(const Message& m)
    {
        std::string notes;
        Message out{Encode(m.key, m.where, "key", notes), Encode(m.value, m.where, "translation", notes), m.where};
        if (!notes.empty()) {
            Warn(m.where, "code page " + CodePageName(m_target) + " cannot hold " + notes);
            ++m_substituted;
        }
        return out;
    }

    size_t Substituted() const { return m_substituted; }

private:
    std::string Encode(const std::string& text, const std::string& where, const char* part, std::string& notes) const
    {
        std::string out, utf8;
        if (Convert(text, m_source, m_target, out)) return out;
        if (!Convert(text, m_source, kUtf8, utf8)) throw InputError(where, "\"" + text + "\" is not valid " + m_charset);
        if (!m_substitute)
            throw InputError(where, "\"" + text + "\" cannot be represented in code page " + CodePageName(m_target) +
                                        " (--substitute writes substitutes for what it cannot hold)");
        std::vector<Replacement> replaced;
        out = EncodeWithSubstitutes(utf8, m_target, replaced);
        for (const Replacement& r : replaced) notes += (notes.empty() ? "" : ", ") + std::string(part) + " " + Describe(r);
        return out;
    }

    unsigned m_source, m_target;
    std::string m_charset;
    bool m_substitute;
    size_t m_substituted = 0;
};

// The messages in ascending byte order of their keys as the library reads them (up to a first
// zero byte), the last of equal keys kept: a catalogue in this order loads in one linear pass.
std::vector<Message> InKeyOrder(std::vector<Message> messages)
{
    auto cut = [](const Message& m) { return std::string_view(m.key.c_str()); };
    std::stable_sort(messages.begin(), messages.end(), [&](const Message& a, const Message& b) { return cut(a) < cut(b); });
    std::vector<Message> kept;
    for (Message& m : messages) {
        if (!kept.empty() && cut(kept.back()) == cut(m)) kept.back() = std::move(m);
        else kept.push_back(std::move(m));
    }
    return kept;
}

int Compile(const Options& o)
{
    std::string bytes = ReadAll(o.input);
    MessageSet set = EndsWith(o.input, ".mo") ? ReadMo(o.input, bytes) : ReadPo(o.input, bytes);
    std::string language;
    unsigned target = TargetCodePage(o, set.language, language);
    bool declared = !set.charset.empty() && set.charset != "CHARSET";
    if (!declared) Warn(o.input, "no charset in the header: reading it as UTF-8");
    unsigned source = declared ? CodePageOf(set.charset) : kUtf8;
    if (source == 0) throw InputError(o.input, "unknown charset " + set.charset);
    Encoder encode(source, target, set.charset, o.substitute);
    std::vector<Message> encoded;
    for (const Message& m : set.messages) encoded.push_back(encode(m));
    std::string file = mox::kMagic;
    for (const Message& m : InKeyOrder(encoded))
        if (!mox::AppendRecord(file, m.key, m.value)) throw InputError(m.where, "message too long for a catalogue");
    WriteAll(o.output, file);
    std::fprintf(stderr, "%s: %zu messages in code page %s", o.output.c_str(), set.messages.size(), CodePageName(target).c_str());
    if (encode.Substituted() > 0) std::fprintf(stderr, ", %zu of them with substitutes", encode.Substituted());
    std::fprintf(stderr, "\n");
    return 0;
}

int Dump(const Options& o)
{
    std::string bytes = ReadAll(o.input);
    std::string language;
    unsigned source = TargetCodePage(o, "", language);
    mox::Catalogue catalogue;
    mox::WalkResult walk = mox::Load(bytes.data(), bytes.size(), catalogue);
    if (walk.stop != mox::Stop::End)
        Warn(o.input, "walk stopped at offset " + std::to_string(walk.offset) + ": " + mox::Describe(walk.stop) +
                          "; dumping the " + std::to_string(catalogue.size()) + " keys read before");
    std::map<std::string, std::string> messages;
    for (const auto& entry : catalogue) {
        std::string key, value;
        if (!Convert(entry.first, source, kUtf8, key) || !Convert(entry.second, source, kUtf8, value))
            throw InputError(o.input, "\"" + entry.first + "\" is not valid in code page " + CodePageName(source));
        if (value.empty()) Warn(o.input, "\"" + key + "\" has an empty translation, which a .po file calls untranslated");
        messages[key] = value;
    }
    WriteAll(o.output, WritePo(messages, language));
    return 0;
}

int Check(const Options& o)
{
    std::string bytes = ReadAll(o.input);
    mox::Catalogue catalogue;
    mox::WalkResult walk = mox::Load(bytes.data(), bytes.size(), catalogue);
    std::printf("%s: %zu bytes, %zu records, %zu keys\n", o.input.c_str(), bytes.size(), walk.records, catalogue.size());
    if (walk.stop == mox::Stop::End) {
        std::printf("%s: ok: %s\n", o.input.c_str(), mox::Describe(walk.stop));
        return 0;
    }
    std::printf("%s: walk stops at offset %zu: %s\n", o.input.c_str(), walk.offset, mox::Describe(walk.stop));
    return 1;
}

}  // namespace
}  // namespace moxc

int main(int argc, char** argv)
{
    using namespace moxc;
    try {
        Options o = ParseArguments(argc, argv);
        if (o.command == "compile") return Compile(o);
        if (o.command == "dump") return Dump(o);
        if (o.command == "check") return Check(o);
        throw UsageError("unknown command " + o.command);
    } catch (const UsageError& e) {
        std::fprintf(stderr, "moxc: %s\n%s", e.what(), kUsage);
        return 2;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "moxc: error: %s\n", e.what());
        return 1;
    }
}
