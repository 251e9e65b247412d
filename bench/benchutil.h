#pragma once
// Small helpers shared by the benchmarks: run a body for a while and report
// the rate, and percentiles of a sample.

#include <QElapsedTimer>
#include <QImage>

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

// Renders `w` into an image of its size after each call of step(n), for
// n = 0, 1, 2 ...; returns renders per second.
template <class Widget, class Step>
double renderRate(Widget &w, Step step)
{
    QImage target(w.size(), QImage::Format_RGB32);
    int n = 0;
    return ratePerSecond([&] {
        step(n++);
        w.render(&target);
    });
}

// One line of a comparison table: our rate, the Qt widget's, the ratio.
inline void ratioRow(const char *what, double ours, const char *qtName, double theirs)
{
    std::printf("%-30s %11.0f/s   %-22s %11.0f/s   %6.2fx\n", what, ours, qtName, theirs, ours / theirs);
}

inline void ratioHeader(const char *what)
{
    std::printf("%-30s %13s   %-22s %13s   %7s\n", what, "ours", "Qt", "Qt", "ratio");
}

inline double percentile(std::vector<double> v, double p)
{
    if (v.empty())
        return 0;
    std::sort(v.begin(), v.end());
    const size_t i = std::min(v.size() - 1, size_t(p / 100.0 * double(v.size() - 1) + 0.5));
    return v[i];
}
