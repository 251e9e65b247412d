#include "signalsource.h"

#include <cmath>

const TPanelFrame &TSignalSource::Next()
{
    TPanelFrame &f = FFrame;
    const double t = ++f.tick / 60.0;
    std::uniform_real_distribution<double> noise(-0.02, 0.02);
    for (size_t i = 0; i < f.volts.size(); ++i)
        f.volts[i] = 9.5 * std::sin(t * (0.3 + 0.07 * double(i)) + double(i)) + noise(FNoise);
    // Frequencies settle to a new reading a few times a second.
    if (f.tick % 15 == 1)
        for (size_t i = 0; i < f.kilohertz.size(); ++i)
            f.kilohertz[i] = 1.0 + 0.5 * double(i) + 0.01 * std::sin(t * double(i + 1)) + noise(FNoise);
    f.trace[0] = 50 + int(40 * std::sin(t * 9.0));
    f.trace[1] = 50 + int(25 * std::sin(t * 23.0) + 10 * std::sin(t * 3.0));
    for (size_t i = 0; i < f.level.size(); ++i)
        f.level[i] = int(100 * std::abs(std::sin(t * (4.0 + double(i)))) * (0.6 + 0.4 * std::sin(t * 0.7 + double(i))));
    for (size_t i = 0; i < f.meter.size(); ++i)
        f.meter[i] = 50 + int(45 * std::sin(t * (0.5 + 0.2 * double(i))));
    for (size_t i = 0; i < f.load.size(); ++i)
        f.load[i] = 50 + int(49 * std::sin(t * 0.25 * double(i + 1)));
    return f;
}
