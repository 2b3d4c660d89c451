// Message catalogues against their baselines, measured in the same run: loading a 10,000-record
// catalogue against reading the same file into memory, and a million look-ups through
// KivIntl::GetText against the same look-ups in a std::unordered_map. Each figure is the median
// of repeated runs; the ratios are what to compare between machines.
#include "kiv_skin/intl/kiv_intl.h"
#include "kiv_skin/intl/mox_format.h"
#include <windows.h>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <functional>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

using kiv_skin::KivIntl;

namespace {

const int kRecords = 10000;
const int kLookups = 1000000;

double MedianMilliseconds(int runs, const std::function<void()>& work)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        auto start = std::chrono::steady_clock::now();
        work();
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

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
    double read = MedianMilliseconds(51, [&] { sink += ReadWhole(path).size(); });
    double load = MedianMilliseconds(51, [&] { KivIntl::Instance().PreparePackage(KivIntl::LANGUAGE_EN, package.c_str()); });
    DeleteFileA(path.c_str());

    // The same key sequence for both: nine hits in ten, the rest misses.
    std::vector<std::string> sequence;
    std::mt19937 random(7);
    for (int i = 0; i < kLookups; ++i)
        sequence.push_back(i % 10 == 9 ? "Missing key " + std::to_string(i) : keys[random() % kRecords]);
    std::unordered_map<std::string, std::string> baseline;
    for (int i = 0; i < kRecords; ++i) baseline[keys[i]] = values[i];

    double lookups = MedianMilliseconds(11, [&] {
        for (const std::string& key : sequence) sink += size_t(*KivIntl::Instance().GetText(key.c_str()));
    });
    double hashed = MedianMilliseconds(11, [&] {
        for (const std::string& key : sequence) {
            auto found = baseline.find(key.c_str());
            sink += size_t(found == baseline.end() ? key[0] : found->second[0]);
        }
    });

    std::printf("catalogue of %d records, %zu bytes\n", kRecords, file.size());
    std::printf("load with PreparePackage   %8.3f ms (median of 51)\n", load);
    std::printf("read the file into memory  %8.3f ms\n", read);
    std::printf("  ratio load / read        %8.1f\n", load / read);
    std::printf("%d look-ups, GetText      %8.3f ms (median of 11)\n", kLookups, lookups);
    std::printf("same in std::unordered_map %8.3f ms\n", hashed);
    std::printf("  ratio GetText / hash map %8.2f\n", lookups / hashed);
    std::printf("(checksum %zu)\n", sink);
    return 0;
}
