#pragma once
// Walking a scale of integer values Min..Max that is drawn in whole
// percentages of its range: every value with the same percentage lands on
// the same place, so only the last one drawn there shows. These visit one
// value per percentage, which draws the same picture as visiting them all
// and costs the same for a range of ten or of a billion.

#include <algorithm>
#include <cstdlib>

// (v - min) * 100 div (max - min), truncated; 0 for an empty range.
inline int ScalePercent(long long v, long long min, long long max)
{
    const long long span = max - min;
    return span == 0 ? 0 : int((v - min) * 100 / span);
}

// Calls visit(value, percent) for each percentage of min..max that holds a
// value, with the last value there; with step > 0, only percentages that
// hold a multiple of step, with the last multiple there.
template <class Visit>
void ForEachScalePercent(int min, int max, int step, Visit visit)
{
    const long long span = (long long)max - min;
    const long long s = std::llabs((long long)step);
    const auto run = [&](long long lo, long long hi, int percent) {
        if (lo > hi)
            return;
        long long v = hi;
        if (s > 0) {
            v = hi >= 0 ? hi / s * s : -((-hi + s - 1) / s) * s;   // the last multiple
            if (v < lo)
                return;
        }
        visit(int(v), percent);
    };
    if (span <= 0) {
        run(min, min, 0);
        return;
    }
    // The first value of percentage k is min + ceil(k * span / 100).
    const auto first = [&](long long k) { return min + (k * span + 99) / 100; };
    for (long long k = 0; k <= 100; ++k)
        run(first(k), std::min<long long>(first(k + 1) - 1, max), int(k));
}
