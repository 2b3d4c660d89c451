#include "seed_files.h"
#include <cstdio>
#include <fstream>

int WriteSeedFiles(int argc, char** argv, const NamedInputs& inputs)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s SEED_FOLDER\n", argv[0]);
        return 2;
    }
    for (const auto& input : inputs) {
        std::ofstream seed(std::string(argv[1]) + "/" + input.first, std::ios::binary);
        seed << input.second;
        seed.close();
        if (!seed) {
            std::fprintf(stderr, "%s: cannot write %s\n", argv[0], input.first.c_str());
            return 1;
        }
    }
    return 0;
}
