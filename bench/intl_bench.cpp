// Message catalogues against their baselines, measured in the same run: loading a 10,000-record
// catalogue against reading the same file into memory, and a million look-ups through
// KivIntl::GetText against the same look-ups in a std::unordered_map. Each figure is the median
// of repeated runs; the ratios are what to compare between machines.
#include "bench/bench_timer.h"
#include "kiv_skin/intl/kiv_intl.h"
#include "kiv_skin/intl/mox_format.h"
#include <windows.h>
#include <cstdio>
#include <fstream>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

using kiv_skin::KivIntl;

namespace {

const int kRecords = 10000;
const int kLookups = 1000000;

std::string ExeDir()
{
    char path[MAX_PATH];
    std::string full(path, GetModuleFileNameA(nullptr, path, MAX_PATH));
    return full.substr(0, full.find_last_of('\\'));
}

std::vector<char> ReadWhole(const std::string& path)
{
    std::ifstream in(path, std::ios::binary | std::ios::ate);
    std::vector<char> bytes(size_t(in.tellg()));
    in.seekg(0);
    in.read(bytes.data(), std::streamsize(bytes.size()));
    return bytes;
}

}  // namespace

int main()
{
    std::vector<std::string> keys, values;
    std::string file = kiv_skin::mox::kMagic;
    for (int i = 0; i < kRecords; ++i) {
        keys.push_back("Menu item number " + std::to_string(i * 7919 % 100003));
        values.push_back("Translated text for entry " + std::to_string(i));
        kiv_skin::mox::AppendRecord(file, keys.back(), values.back());
    }
    std::string package = "kiv_bench_" + std::to_string(GetCurrentProcessId());
    std::string dir = ExeDir() + "\\locale\\en\\LC_MESSAGES";
    CreateDirectoryA((ExeDir() + "\\locale").c_str(), nullptr);
    CreateDirectoryA((ExeDir() + "\\locale\\en").c_str(), nullptr);
    CreateDirectoryA(dir.c_str(), nullptr);
    std::string path = dir + "\\" + package + ".mox";
    std::ofstream(path, std::ios::binary).write(file.data(), std::streamsize(file.size()));

    size_t sink = 0;
    double read = MedianMicroseconds(51, 1, [&](int) { sink += ReadWhole(path).size(); });
    double load = MedianMicroseconds(51, 1, [&](int) {
        KivIntl::Instance().PreparePackage(KivIntl::LANGUAGE_EN, package.c_str());
    });
    DeleteFileA(path.c_str());

    // The same key sequence for both: nine hits in ten, the rest misses.
    std::vector<std::string> sequence;
    std::mt19937 random(7);
    for (int i = 0; i < kLookups; ++i)
        sequence.push_back(i % 10 == 9 ? "Missing key " + std::to_string(i) : keys[random() % kRecords]);
    std::unordered_map<std::string, std::string> baseline;
    for (int i = 0; i < kRecords; ++i) baseline[keys[i]] = values[i];

    double lookups = MedianMicroseconds(11, kLookups, [&](int i) {
        sink += size_t(*KivIntl::Instance().GetText(sequence[i].c_str()));
    });
    double hashed = MedianMicroseconds(11, kLookups, [&](int i) {
        auto found = baseline.find(sequence[i].c_str());
        sink += size_t(found == baseline.end() ? sequence[i][0] : found->second[0]);
    });

    std::printf("catalogue of %d records, %zu bytes\n", kRecords, file.size());
    std::printf("load with PreparePackage   %10.1f us (median of 51)\n", load);
    std::printf("read the file into memory  %10.1f us\n", read);
    std::printf("  ratio load / read        %10.1f\n", load / read);
    std::printf("GetText, per look-up       %10.4f us (median of 11 runs of %d)\n", lookups, kLookups);
    std::printf("std::unordered_map         %10.4f us\n", hashed);
    std::printf("  ratio GetText / hash map %10.2f\n", lookups / hashed);
    std::printf("(checksum %zu)\n", sink);
    return 0;
}
