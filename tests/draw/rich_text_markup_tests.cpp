// The markup grammar against the table of inputs and their runs. Built natively with the
// sanitizers (tests/native), where every case also runs under AddressSanitizer and UBSan.
#include "rich_text_markup_cases.h"
#include <gtest/gtest.h>
#include <algorithm>
#include <cstring>
#include <memory>
#include <sstream>

using kiv_skin::MarkupRun;
using kiv_skin::ParseRichTextMarkup;

namespace {

// A run as a readable, bounded line: long values are cut after 40 bytes.
std::string Describe(const MarkupRun& run)
{
    std::ostringstream line;
    for (const std::string* part : {&run.name, &run.value}) {
        line << '"' << part->substr(0, 40) << (part->size() > 40 ? "...\"" : "\"");
        line << " (" << part->size() << " bytes) ";
    }
    return line.str();
}

// Compares run by run and names the first difference, so that a failure in a 100,000-byte case
// stays readable.
testing::AssertionResult SameRuns(const std::vector<MarkupRun>& expected,
                                  const std::vector<MarkupRun>& actual)
{
    const size_t common = std::min(expected.size(), actual.size());
    for (size_t i = 0; i < common; ++i) {
        if (!(expected[i] == actual[i]))
            return testing::AssertionFailure() << "run " << i << ": expected " << Describe(expected[i])
                                               << "got " << Describe(actual[i]);
    }
    if (expected.size() != actual.size())
        return testing::AssertionFailure() << "expected " << expected.size() << " runs, got "
                                           << actual.size();
    return testing::AssertionSuccess();
}

}  // namespace

// Names a failing case by its title rather than dumping its bytes.
void PrintTo(const MarkupCase& markupCase, std::ostream* out)
{
    *out << markupCase.title;
}

namespace {

class MarkupTable : public testing::TestWithParam<MarkupCase> {};

}  // namespace

// The markup is parsed from a heap copy of exactly its length and terminator, so that
// AddressSanitizer reports any read past the end.
TEST_P(MarkupTable, GivesItsRuns)
{
    const std::string& markup = GetParam().markup;
    std::unique_ptr<char[]> exact(new char[markup.size() + 1]);
    std::memcpy(exact.get(), markup.c_str(), markup.size() + 1);
    EXPECT_TRUE(SameRuns(GetParam().runs, ParseRichTextMarkup(exact.get())));
}

INSTANTIATE_TEST_SUITE_P(RichTextMarkup, MarkupTable, testing::ValuesIn(RichTextMarkupCases()),
                         [](const testing::TestParamInfo<MarkupCase>& info) {
                             return info.param.title;
                         });
