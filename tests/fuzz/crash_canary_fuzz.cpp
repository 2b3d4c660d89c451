// A target with a planted bug, for the check that a fuzz smoke run fails and says why when its
// target crashes: an input starting with "<*" is read one byte past its end.
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size >= 2 && data[0] == '<' && data[1] == '*') {
        volatile uint8_t pastTheEnd = data[size];
        (void)pastTheEnd;
    }
    return 0;
}
