#include "rich_text_markup_cases.h"

using kiv_skin::MarkupRun;

namespace {

typedef std::vector<MarkupRun> Runs;

std::string Repeat(const std::string& piece, size_t times)
{
    std::string whole;
    whole.reserve(piece.size() * times);
    for (size_t i = 0; i < times; ++i)
        whole += piece;
    return whole;
}

Runs Repeat(const Runs& runs, size_t times)
{
    Runs whole;
    for (size_t i = 0; i < times; ++i)
        whole.insert(whole.end(), runs.begin(), runs.end());
    return whole;
}

MarkupRun Text(const std::string& text)
{
    return {"text", text};
}

// The bytes from first to last, in ascending order.
std::string ByteRange(int first, int last)
{
    std::string bytes;
    for (int byte = first; byte <= last; ++byte)
        bytes += static_cast<char>(byte);
    return bytes;
}

// GB2312 (code page 936) encodings.
const std::string kOpenGb = "\xBF\xAA\xC5\xCC";              // 开盘
const std::string kCloseGb = "\xCA\xD5\xC5\xCC\xBC\xDB";     // 收盘价
const std::string kChangeGb = "\xD5\xC7\xB7\xF9";            // 涨幅
const std::string kVolumeGb = "\xB3\xC9\xBD\xBB\xC1\xBF";    // 成交量

std::vector<MarkupCase> GrammarExamples()
{
    return {
        {"Empty", "", {}},
        {"TextTagText", "Open<*color=FF*>12.50", {Text("Open"), {"color", "FF"}, Text("12.50")}},
        {"TagWithoutValue", "<*b*>", {{"b", ""}}},
        {"FirstEqualsSplits", "<*t=a=b*>", {{"t", "a=b"}}},
        {"EmptyValueAfterEquals", "<*b=*>", {{"b", ""}}},
        {"CaseKept", "<*Color=FF*>", {{"Color", "FF"}}},
        {"BlanksKept", "<* color = FF *>", {{" color ", " FF "}}},
        {"NameWithBlank", "<*a href=x*>link", {{"a href", "x"}, Text("link")}},
        {"TagsBackToBack", "<*b*><*it*>", {{"b", ""}, {"it", ""}}},
        {"TagAtEnd", "x<*b*>", {Text("x"), {"b", ""}}},
        {"LineFeedInValue", "<*t=a\nbb*>", {{"t", "a\nbb"}}},
        {"UnterminatedTagDropped", "abc<*color=FF", {Text("abc")}},
        {"UnterminatedAfterTags", "<*c=FF*>x<*b", {{"c", "FF"}, Text("x")}},
        {"CloseOutsideTagIsText", "a*>b<*b*>c*>", {Text("a*>b"), {"b", ""}, Text("c*>")}},
    };
}

std::vector<MarkupCase> MalformedInputs()
{
    return {
        {"OpenAlone", "<*", {}},
        {"CloseAlone", "*>", {Text("*>")}},
        {"EmptyTag", "<**>", {{"", ""}}},
        {"EqualsAlone", "<*=*>", {{"", ""}}},
        {"EmptyName", "<*=5*>", {{"", "5"}}},
        {"Nested", "<*<*b*>*>", {{"<*b", ""}, Text("*>")}},
        {"StarOfOpenerDoesNotClose", "<*>", {}},
        {"CloseAfterStarOfOpener", "<*>x*>", {{">x", ""}}},
        {"StarBeforeClose", "<***>", {{"*", ""}}},
        {"NameEndingInStar", "<*b**>", {{"b*", ""}}},
        {"LessBeforeOpener", "<<*b*>", {Text("<"), {"b", ""}}},
        {"EndsAtFirstZeroByte", std::string("ab\0<*b*>", 8), {Text("ab")}},
        {"PercentBelowZero", "<*c=-5*>x", {{"c", "-5"}, Text("x")}},
        {"PercentAboveHundred", "<*c=150*>x", {{"c", "150"}, Text("x")}},
        {"NegativeSize", "<*size=-12*>", {{"size", "-12"}}},
    };
}

std::vector<MarkupCase> EncodedText()
{
    const std::string high = ByteRange(0x80, 0xFF);
    return {
        // '<' '=' '>' follow each other, and '*' is followed by '+': no tag among these bytes.
        {"EveryNonZeroByte", ByteRange(0x01, 0xFF), {Text(ByteRange(0x01, 0xFF))}},
        {"HighBytesAsText", high, {Text(high)}},
        {"HighBytesInTag", "<*" + ByteRange(0x80, 0xBF) + "=" + ByteRange(0xC0, 0xFF) + "*>",
         {{ByteRange(0x80, 0xBF), ByteRange(0xC0, 0xFF)}}},
        {"Gb2312Text", kOpenGb + "<*c=FF*>" + kCloseGb, {Text(kOpenGb), {"c", "FF"}, Text(kCloseGb)}},
        {"Gb2312Value", "<*t=" + kChangeGb + "*>", {{"t", kChangeGb}}},
        {"Gb2312Name", "<*" + kVolumeGb + "=1*>", {{kVolumeGb, "1"}}},
    };
}

std::vector<MarkupCase> HostileInputs()
{
    const std::string longText = Repeat("12.50*> ", 12500);  // 100,000 bytes
    const std::string longValue = Repeat("12.5<", 20000);    // 100,000 bytes without "*>"
    const std::string digits(10000, '9');
    return {
        {"LongText", longText, {Text(longText)}},
        {"LongValue", "<*t=" + longValue + "*>", {{"t", longValue}}},
        {"LongUnterminatedTag", "x<*" + longValue, {Text("x")}},
        {"ManyOpenersNoClose", Repeat("<*", 50000), {}},
        {"ManyOpenersOneClose", Repeat("<*", 50000) + "*>", {{Repeat("<*", 49999), ""}}},
        // "<*><*>" is one tag named "><"; the last "<*>" stays open.
        {"OpenerStripes", Repeat("<*>", 33335), Repeat(Runs{{"><", ""}}, 16667)},
        {"TenThousandTags", Repeat("<*b*>", 10000), Repeat(Runs{{"b", ""}}, 10000)},
        {"TenThousandTaggedTexts", Repeat("<*c=FF*>x", 10000),
         Repeat(Runs{{"c", "FF"}, Text("x")}, 10000)},
        {"TenThousandDigitValue", "<*size=" + digits + "*>", {{"size", digits}}},
    };
}

}  // namespace

const std::vector<MarkupCase>& RichTextMarkupCases()
{
    static const std::vector<MarkupCase> cases = [] {
        std::vector<MarkupCase> all;
        for (auto group : {GrammarExamples, MalformedInputs, EncodedText, HostileInputs}) {
            std::vector<MarkupCase> some = group();
            all.insert(all.end(), some.begin(), some.end());
        }
        return all;
    }();
    return cases;
}
