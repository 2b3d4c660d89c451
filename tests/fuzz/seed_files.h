// The main of a seed writer: writes each named input as one file into the folder given as the
// program's only argument. Answers the program's exit status.
#pragma once
#include <string>
#include <utility>
#include <vector>

typedef std::vector<std::pair<std::string, std::string>> NamedInputs;

int WriteSeedFiles(int argc, char** argv, const NamedInputs& inputs);
