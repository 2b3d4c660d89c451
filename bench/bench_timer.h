// Timing for benchmark programs: medians of repeated runs, and ratios taken run by run between a
// subject and its baseline measured alternately in the same run, so that both see the same
// machine. The spread of the per-run ratios states the machine's noise.
#pragma once
#include <algorithm>
#include <chrono>
#include <vector>

// Wall time, in microseconds, of one call of work averaged over calls calls.
template <class Work>
double MicrosecondsPerCall(int calls, Work& work)
{
    auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < calls; ++i) work(i);
    std::chrono::duration<double, std::micro> elapsed = std::chrono::steady_clock::now() - start;
    return elapsed.count() / calls;
}

// The value at fraction q (0 to 1) of the sorted values.
inline double Quantile(std::vector<double> values, double q)
{
    size_t at = size_t(q * double(values.size() - 1) + 0.5);
    std::nth_element(values.begin(), values.begin() + at, values.end());
    return values[at];
}

// Median wall time, in microseconds, of one call of work over runs repetitions of
// callsPerRun calls each.
template <class Work>
double MedianMicroseconds(int runs, int callsPerRun, Work work)
{
    std::vector<double> perCall;
    for (int r = 0; r < runs; ++r) perCall.push_back(MicrosecondsPerCall(callsPerRun, work));
    return Quantile(perCall, 0.5);
}

struct Comparison {
    double subject = 0, baseline = 0;  // median microseconds per call
    double subjectLow = 0, subjectHigh = 0;  // the subject's 10th and 90th percentiles
    double ratio = 0;                  // median of the per-run ratios subject / baseline
    double ratioLow = 0, ratioHigh = 0;  // their 10th and 90th percentiles
};

// Times subject and baseline once per run each, alternately (each goes first in every other run,
// so that neither gains from what the other left); they answer microseconds per call.
template <class TimeSubject, class TimeBaseline>
Comparison CompareTimes(int runs, TimeSubject timeSubject, TimeBaseline timeBaseline)
{
    std::vector<double> subjects, baselines, ratios;
    for (int r = 0; r < runs; ++r) {
        if (r % 2 == 0) baselines.push_back(timeBaseline());
        subjects.push_back(timeSubject());
        if (r % 2 != 0) baselines.push_back(timeBaseline());
        ratios.push_back(subjects.back() / baselines.back());
    }
    Comparison c;
    c.subject = Quantile(subjects, 0.5);
    c.subjectLow = Quantile(subjects, 0.1);
    c.subjectHigh = Quantile(subjects, 0.9);
    c.baseline = Quantile(baselines, 0.5);
    c.ratio = Quantile(ratios, 0.5);
    c.ratioLow = Quantile(ratios, 0.1);
    c.ratioHigh = Quantile(ratios, 0.9);
    return c;
}

// Runs subject and baseline alternately, callsPerRun calls each per run.
template <class Subject, class Baseline>
Comparison Compare(int runs, int callsPerRun, Subject subject, Baseline baseline)
{
    return CompareTimes(runs, [&] { return MicrosecondsPerCall(callsPerRun, subject); },
                        [&] { return MicrosecondsPerCall(callsPerRun, baseline); });
}

// Runs subject and baseline once each per run, alternately, with reset (untimed) before every
// call, so that both start each call from the same state: what one side released is not left
// for the other, and neither finds its own previous blocks still in the heap.
template <class Subject, class Baseline, class Reset>
Comparison CompareFromSameState(int runs, Subject subject, Baseline baseline, Reset reset)
{
    return CompareTimes(runs, [&] { reset(); return MicrosecondsPerCall(1, subject); },
                        [&] { reset(); return MicrosecondsPerCall(1, baseline); });
}
