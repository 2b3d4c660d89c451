// The executable's directory and a file test.
#pragma once
#include "kiv_base/kiv_base_api.h"
#include <string>

namespace kiv_base {

class KIV_BASE_API DirHelper {
public:
    // The running executable's directory, ending in a backslash; false if it cannot be found.
    static bool GetExeDir(std::string& dir);
};

class KIV_BASE_API FileHelper {
public:
    // True when path names an existing file (not a directory).
    static bool IsFileExist(const std::string& path);
};

}  // namespace kiv_base
