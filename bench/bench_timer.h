// Timing for benchmark programs: the median of repeated runs, so that a ratio of two medians
// measured in the same run compares like with like on a noisy machine.
#pragma once
#include <algorithm>
#include <chrono>
#include <vector>

// Median wall time, in microseconds, of one call of work over runs repetitions of
// callsPerRun calls each.
template <class Work>
double MedianMicroseconds(int runs, int callsPerRun, Work work)
{
    std::vector<double> perCall;
    for (int r = 0; r < runs; ++r) {
        auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < callsPerRun; ++i) work(i);
        std::chrono::duration<double, std::micro> elapsed = std::chrono::steady_clock::now() - start;
        perCall.push_back(elapsed.count() / callsPerRun);
    }
    std::nth_element(perCall.begin(), perCall.begin() + runs / 2, perCall.end());
    return perCall[runs / 2];
}
