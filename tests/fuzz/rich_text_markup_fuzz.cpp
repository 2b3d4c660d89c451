// Fuzz target of the markup grammar. Each input is parsed as a C string (up to its first zero
// byte) from a heap copy of exactly that size, and the runs are checked against a byte-by-byte
// model of the grammar and against their own rewriting as markup. Any difference aborts.
#include "fuzz_check.h"
#include "kiv_skin/draw/rich_text_markup.h"
#include <cstdint>
#include <cstring>
#include <memory>

using kiv_skin::MarkupRun;
using kiv_skin::ParseRichTextMarkup;

namespace {

typedef std::vector<MarkupRun> Runs;

void Check(bool holds, const char* what) { CheckProperty(holds, "rich text markup", what); }

// The grammar read one byte at a time, as a second opinion on the parser.
Runs ModelRuns(const char* markup)
{
    Runs runs;
    std::string text;
    for (size_t i = 0; markup[i] != 0;) {
        if (markup[i] != '<' || markup[i + 1] != '*') {
            text += markup[i++];
            continue;
        }
        if (!text.empty())
            runs.push_back({"text", text});
        text.clear();
        size_t close = i + 2;
        while (markup[close] != 0 && !(markup[close] == '*' && markup[close + 1] == '>'))
            ++close;
        if (markup[close] == 0)
            return runs;
        const std::string body(markup + i + 2, close - i - 2);
        const size_t equals = body.find('=');
        runs.push_back({body.substr(0, equals), equals == std::string::npos ? "" : body.substr(equals + 1)});
        i = close + 2;
    }
    if (!text.empty())
        runs.push_back({"text", text});
    return runs;
}

// Markup that gives the same runs back: every run written as a tag, except text holding "*>",
// which must have been plain text between tags (a tag's body never holds "*>"). A tag named
// "text" and plain text give the same run, so either writing is right for the rest.
std::string Rewrite(const Runs& runs)
{
    std::string markup;
    for (const MarkupRun& run : runs) {
        if (run.name == "text" && run.value.find("*>") != std::string::npos)
            markup += run.value;
        else
            markup += "<*" + run.name + (run.value.empty() ? "" : "=" + run.value) + "*>";
    }
    return markup;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const size_t length = strnlen(reinterpret_cast<const char*>(data), size);
    std::unique_ptr<char[]> markup(new char[length + 1]);
    std::memcpy(markup.get(), data, length);
    markup[length] = 0;

    const Runs runs = ParseRichTextMarkup(markup.get());
    Check(runs == ModelRuns(markup.get()), "runs differ from the byte-by-byte model");
    // Plain text takes its value's bytes from the markup, a tag its name, value, "<*" and "*>";
    // every run takes at least one byte.
    size_t bytes = 0;
    for (const MarkupRun& run : runs) {
        Check(run.name.find('=') == std::string::npos, "a name holding '='");
        bytes += run.value.size() + (run.name == "text" ? 0 : run.name.size() + 4);
    }
    Check(bytes <= length && runs.size() <= length, "runs hold more bytes than the markup");
    Check(ParseRichTextMarkup(Rewrite(runs).c_str()) == runs, "the runs rewritten parse differently");
    return 0;
}
