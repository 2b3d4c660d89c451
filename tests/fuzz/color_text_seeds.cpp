// Writes the seed corpus of the colour-text fuzz target: the value and mask shapes that the
// sample schemes and the tests use, and their known odd cases.
#include "seed_files.h"

int main(int argc, char** argv)
{
    return WriteSeedFiles(argc, argv, {
        {"value", "0x00FF8000"}, {"value_upper_x", "0XFF00FF00"}, {"value_short", "0x12"},
        {"value_later_0x", "abc 0x12"}, {"value_spaces", " 0x12"}, {"value_hash", "#FF0000"},
        {"value_negative", "-0x10"}, {"value_long", "0x123456789ABCDEF"},
        {"mask", "255,0,255"}, {"mask_semicolons", "10;20;30"}, {"mask_names", "r=1 g=2 b=3"},
        {"mask_spill", "300,0,0"}, {"mask_minus", "-5,-7"}, {"mask_four", "1,2,3,4"},
        {"mask_huge", "99999999999,1,2"},
    });
}
