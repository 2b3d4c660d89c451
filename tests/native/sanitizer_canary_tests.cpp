// Proof that the native checks really run under the sanitizers: an out-of-bounds write and a
// signed overflow each stop the program with the sanitizer's report. These fail if a flag of
// the build goes missing or an error is only reported and then ignored.
#include <gtest/gtest.h>
#include <climits>

namespace {

volatile int sink;

}  // namespace

TEST(SanitizerCanary, AddressSanitizerStopsAHeapOverflow)
{
    EXPECT_DEATH(
        {
            volatile char* bytes = new char[4];
            volatile int index = 4;
            bytes[index] = 1;
            delete[] bytes;
        },
        "heap-buffer-overflow");
}

TEST(SanitizerCanary, UndefinedBehaviorSanitizerStopsASignedOverflow)
{
    EXPECT_DEATH(
        {
            volatile int largest = INT_MAX;
            sink = largest + 1;
        },
        "signed integer overflow");
}
