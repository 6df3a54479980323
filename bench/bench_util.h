#pragma once
// Timing helpers for the benchmarks. A measurement runs a callable in batches (the batch size
// calibrated so one batch lasts about a sample's time), takes samples until it has enough of
// them and enough time has passed, and reports the median nanoseconds per call, which a stray
// slow sample (a page fault, another process) does not move.
//
//   const bench::Comparison c = bench::compare([&] { subject(); }, [&] { floor(); });
//   bench::report("subject", c);   // "subject: X ns/call, floor Y ns/call, ratio Z"
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace bench {

using Clock = std::chrono::steady_clock;

struct Options {
    int minSamples = 31;                              // at least this many samples...
    std::chrono::milliseconds minTime{400};           // ...and at least this much time
    std::chrono::microseconds sampleTime{2000};       // aim of one sample
    int maxSamples = 100000;
};

// Keeps a value the optimiser would otherwise drop.
template <typename T>
inline void keep(const T& value)
{
    asm volatile("" : : "r,m"(value) : "memory");
}

namespace detail {

template <typename F>
double batchNs(F& f, long calls)
{
    const auto start = Clock::now();
    for (long i = 0; i < calls; ++i)
        f();
    return double(std::chrono::duration_cast<std::chrono::nanoseconds>(Clock::now() - start).count());
}

template <typename F>
long calibrate(F& f, const Options& options)
{
    const double target = double(std::chrono::duration_cast<std::chrono::nanoseconds>(options.sampleTime).count());
    long calls = 1;
    while (calls < (1L << 24)) {
        if (batchNs(f, calls) >= target)
            break;
        calls *= 2;
    }
    return calls;
}

inline double median(std::vector<double> samples)
{
    if (samples.empty())
        return 0;
    std::sort(samples.begin(), samples.end());
    const size_t mid = samples.size() / 2;
    return samples.size() % 2 ? samples[mid] : (samples[mid - 1] + samples[mid]) / 2;
}

// Samples every callable in turn, so all of them see the same state of the machine.
template <typename... F>
std::vector<double> interleaved(const Options& options, F&... f)
{
    const long calls[] = {calibrate(f, options)...};
    std::vector<std::vector<double>> samples(sizeof...(F));
    const auto start = Clock::now();
    while (int(samples[0].size()) < options.maxSamples &&
           (int(samples[0].size()) < options.minSamples || Clock::now() - start < options.minTime)) {
        size_t i = 0;
        ((samples[i].push_back(batchNs(f, calls[i]) / double(calls[i])), ++i), ...);
    }
    std::vector<double> medians;
    for (auto& s : samples)
        medians.push_back(median(std::move(s)));
    return medians;
}

} // namespace detail

// Median nanoseconds per call of f.
template <typename F>
double medianNsPerCall(F&& f, const Options& options = {})
{
    return detail::interleaved(options, f)[0];
}

struct Comparison {
    double subjectNs = 0;
    double floorNs = 0;
    double ratio() const { return floorNs > 0 ? subjectNs / floorNs : 0; }
};

// The subject against its floor, sampled alternately in the same run.
template <typename S, typename F>
Comparison compare(S&& subject, F&& floor, const Options& options = {})
{
    const std::vector<double> m = detail::interleaved(options, subject, floor);
    return {m[0], m[1]};
}

inline void report(const char* name, const Comparison& c)
{
    std::printf("%s: %.0f ns/call, floor %.0f ns/call, ratio %.2f\n", name, c.subjectNs, c.floorNs, c.ratio());
    std::fflush(stdout);
}

} // namespace bench
