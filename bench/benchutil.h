#pragma once
// Small helpers shared by the benchmarks: run a body for a while and report
// the rate, and percentiles of a sample.

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

// Calls `body` in batches until `millis` have passed; returns calls per second.
template <class Body>
double ratePerSecond(Body body, int millis = 700)
{
    for (int i = 0; i < 50; ++i)   // warm caches and lazy set-up
        body();
    QElapsedTimer clock;
    clock.start();
    long long calls = 0;
    while (clock.elapsed() < millis) {
        for (int i = 0; i < 100; ++i)
            body();
        calls += 100;
    }
    return double(calls) * 1e9 / double(clock.nsecsElapsed());
}

inline double percentile(std::vector<double> v, double p)
{
    if (v.empty())
        return 0;
    std::sort(v.begin(), v.end());
    const size_t i = std::min(v.size() - 1, size_t(p / 100.0 * double(v.size() - 1) + 0.5));
    return v[i];
}
