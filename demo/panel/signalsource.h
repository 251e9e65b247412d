#pragma once
// A simulated instrument: twelve channels of slowly drifting sines with
// noise, eight frequencies, two traces, levels and loads, one frame per tick.

#include <array>
#include <random>

struct TPanelFrame
{
    int tick = 0;
    std::array<double, 12> volts{};   // -10..10
    std::array<double, 8> kilohertz{};
    std::array<int, 2> trace{};       // 0..100
    std::array<int, 8> level{};       // 0..100
    std::array<int, 6> meter{};       // 0..100
    std::array<int, 7> load{};        // 0..100
};

class TSignalSource
{
public:
    // The next frame; the same sequence every run.
    const TPanelFrame &Next();

private:
    TPanelFrame FFrame;
    std::mt19937 FNoise{20261121};
};
