// Message catalogues against their baselines, measured alternately in the same run:
// - loading (KivIntl::PreparePackage) against reading the same file into memory with
//   CreateFile and ReadFile, for catalogues of 100 to 100,000 records written in ascending key
//   order (as moxc writes them) and shuffled (as another writer might), one call at a time from
//   an empty catalogue, as a plug-in loads at start-up; and the indexing alone (an in-memory copy
//   indexed, less the copy);
// - the memory the loaded catalogue holds, per record and against the file's size;
// - KivIntl::GetText against the same look-ups in a std::unordered_map: keyed by string views
//   (what a hash map with C-string keys must pay: length, hash, probe), and keyed by
//   std::string and looked up by a C string (a temporary string per look-up).
// Each figure is a median of repeated runs; the range is the 10th to 90th percentile of the
// per-run ratios.
#include <afxwin.h>
#include "bench/bench_timer.h"
#include "kiv_skin/intl/kiv_intl.h"
#include "kiv_skin/intl/mox_format.h"
#include "kiv_skin/intl/mox_index.h"
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

using kiv_skin::KivIntl;

namespace {

const int kSizes[] = {100, 1000, 10000, 100000};
const int kLookups = 1000000;

typedef std::vector<std::pair<std::string, std::string>> Records;

std::string ExeDir()
{
    char path[MAX_PATH];
    std::string full(path, GetModuleFileNameA(nullptr, path, MAX_PATH));
    return full.substr(0, full.find_last_of('\\'));
}

// Keys that share a long prefix and differ in a number, as menu texts often do.
Records MakeRecords(int count)
{
    Records records;
    for (int i = 0; i < count; ++i)
        records.push_back({"Menu item number " + std::to_string(i * 7919 % 100003),
                           "Translated text for entry " + std::to_string(i)});
    return records;
}

std::string FileOf(const Records& records)
{
    std::string file = kiv_skin::mox::kMagic;
    for (const auto& r : records) kiv_skin::mox::AppendRecord(file, r.first, r.second);
    return file;
}

std::vector<char> ReadWhole(const std::string& path, size_t spare = 0)
{
    HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    LARGE_INTEGER length = {};
    GetFileSizeEx(file, &length);
    std::vector<char> bytes;
    bytes.reserve(size_t(length.QuadPart) + spare);
    bytes.resize(size_t(length.QuadPart));
    DWORD read = 0;
    ReadFile(file, bytes.data(), DWORD(bytes.size()), &read, nullptr);
    CloseHandle(file);
    return bytes;
}

// A package file under the executable's locale\en folder, removed when done.
class PackageFile {
public:
    PackageFile(const std::string& name, const std::string& bytes) : m_name(name)
    {
        std::string dir = ExeDir() + "\\locale";
        CreateDirectoryA(dir.c_str(), nullptr);
        CreateDirectoryA((dir += "\\en").c_str(), nullptr);
        CreateDirectoryA((dir += "\\LC_MESSAGES").c_str(), nullptr);
        m_path = dir + "\\" + name + ".mox";
        std::ofstream(m_path, std::ios::binary).write(bytes.data(), std::streamsize(bytes.size()));
    }
    ~PackageFile() { DeleteFileA(m_path.c_str()); }
    const std::string& name() const { return m_name; }
    const std::string& path() const { return m_path; }

private:
    std::string m_name, m_path;
};

size_t g_sink = 0;

void BenchLoad(int count, bool sorted)
{
    Records records = MakeRecords(count);
    if (sorted) std::sort(records.begin(), records.end());
    std::string bytes = FileOf(records);
    PackageFile file("kiv_bench_" + std::to_string(GetCurrentProcessId()), bytes);
    int calls = (std::max)(2, 200000 / count);
    // Both start every call from a plug-in's state at start-up: no catalogue and no file image
    // held. Loads and reads repeated back to back would meet the heap in different states: a
    // block freed at the end of the heap is decommitted, one freed inside it stays warm.
    std::vector<char> held;
    auto reset = [&] {
        KivIntl::Instance().PreparePackage(KivIntl::LANGUAGE_EN, "kiv_bench_missing");
        held = std::vector<char>();
    };
    Comparison c = CompareFromSameState(
        count >= 100000 ? 31 : 201,
        [&](int) { KivIntl::Instance().PreparePackage(KivIntl::LANGUAGE_EN, file.name().c_str()); },
        [&](int) {
            held = ReadWhole(file.path());
            g_sink += held.size();
        },
        reset);
    kiv_skin::mox::Index index;
    index.Load(ReadWhole(file.path(), 1));
    // Indexing by itself: a copy of the file indexed, less the copy.
    std::vector<char> image(bytes.begin(), bytes.end());
    Comparison indexing = Compare(
        31, calls, [&](int) {
            std::vector<char> copy;
            copy.reserve(image.size() + 1);
            copy.assign(image.begin(), image.end());
            kiv_skin::mox::Index fresh;
            g_sink += fresh.Load(std::move(copy)).records;
        },
        [&](int) {
            std::vector<char> copy;
            copy.reserve(image.size() + 1);
            copy.assign(image.begin(), image.end());
            g_sink += copy.size();
        });
    std::printf("%8d  %-8s %8.1f %10.1f %10.1f %7.2f (%.2f-%.2f) %9.1f %9.1f %9.2f %s\n", count,
                sorted ? "sorted" : "shuffled", bytes.size() / 1024.0, c.baseline, c.subject, c.ratio, c.ratioLow,
                c.ratioHigh, indexing.subject - indexing.baseline,
                double(index.MemoryUsed()) / count, double(index.MemoryUsed()) / bytes.size(),
                index.NeededSort() == sorted ? "(sort flag wrong)" : "");
}

void BenchLookups(int count)
{
    Records records = MakeRecords(count);
    std::sort(records.begin(), records.end());
    PackageFile file("kiv_bench_" + std::to_string(GetCurrentProcessId()), FileOf(records));
    KivIntl::Instance().PreparePackage(KivIntl::LANGUAGE_EN, file.name().c_str());

    // The same key sequence for all: nine hits in ten, the rest misses (a thousand of them),
    // all taken from one pool of keys as a program's own string literals would be.
    std::string pool;
    std::vector<size_t> starts;
    for (const auto& r : records) starts.push_back(pool.size()), pool += r.first + '\0';
    for (int i = 0; i < 1000; ++i) starts.push_back(pool.size()), pool += "Missing key " + std::to_string(i) + '\0';
    std::vector<const char*> sequence;
    std::mt19937 random(7);
    for (int i = 0; i < kLookups; ++i)
        sequence.push_back(pool.data() + starts[i % 10 == 9 ? count + random() % 1000 : random() % count]);
    std::unordered_map<std::string_view, const char*> byView;
    std::unordered_map<std::string, std::string> byString;
    for (const auto& r : records) {
        byView[r.first] = r.second.c_str();
        byString[r.first] = r.second;
    }
    auto getText = [&](int i) { g_sink += size_t(*KivIntl::Instance().GetText(sequence[i])); };
    Comparison view = Compare(11, kLookups, getText, [&](int i) {
        const char* key = sequence[i];
        auto found = byView.find(std::string_view(key));
        g_sink += size_t(found == byView.end() ? key[0] : found->second[0]);
    });
    Comparison string = Compare(11, kLookups, getText, [&](int i) {
        auto found = byString.find(sequence[i]);
        g_sink += size_t(found == byString.end() ? sequence[i][0] : found->second[0]);
    });
    std::printf("%8d %10.4f %10.4f %7.2f (%.2f-%.2f) %10.4f %7.2f (%.2f-%.2f)\n", count, view.subject, view.baseline,
                view.ratio, view.ratioLow, view.ratioHigh, string.baseline, string.ratio, string.ratioLow, string.ratioHigh);
}

}  // namespace

// A console program with MFC support, as the library's hosts are.
CWinApp theApp;

int main()
{
    if (!AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), 0)) return 1;
    std::printf("Loading: PreparePackage against reading the file (CreateFile, ReadFile); goal load/read <= 3\n");
    std::printf("             (single calls from an empty catalogue, medians of 201 runs, 31 at 100,000 records;\n");
    std::printf("              in brackets the 10th-90th percentile of the per-run ratios)\n");
    std::printf(" records  order     file KB    read us    load us  load/read       index us bytes/rec  mem/file\n");
    for (int count : kSizes) {
        BenchLoad(count, true);
        BenchLoad(count, false);
    }
    std::printf("\nLook-ups: GetText against std::unordered_map, us per look-up (medians of 11 runs of %d);\n", kLookups);
    std::printf("goal GetText/hash map <= 1.5 against the string-view map\n");
    std::printf(" records    GetText  view map   ratio             string map   ratio\n");
    for (int count : kSizes) BenchLookups(count);
    std::printf("(checksum %zu)\n", g_sink);
    return 0;
}
