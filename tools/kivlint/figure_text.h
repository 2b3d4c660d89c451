// Figures as kivlint and the gallery's contrast sheets print them, so that both read alike.
#pragma once
#include <string>

namespace kivlint {

// Cut (not rounded) to its decimals, so that a figure that fails never prints as the one needed.
std::string Cut(double value, int decimals);
// As people write it: 4.5, 3, 10.
std::string Plain(double value);

}  // namespace kivlint
