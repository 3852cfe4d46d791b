#pragma once

#include "support/Maps.h"

#include <cstddef>
#include <cstdint>
#include <random>

// Maps at random, the same ones on every platform: few joints, small counts and positions that often coincide, so that
// jumps, flats, seams, repeated joints and steps around the tolerance come up all the time.

namespace math
{
namespace test
{

class RandomMaps
{
public:
    explicit RandomMaps(std::uint32_t seed) : m_engine(seed)
    {
    }

    /// A number from 0 to limit - 1.
    int Below(int limit)
    {
        return static_cast<int>(m_engine() % static_cast<std::uint32_t>(limit));
    }

    bool OneIn(int chances)
    {
        return Below(chances) == 0;
    }

    /// A ratio in [0, 1) with all its bits.
    double Ratio()
    {
        return static_cast<double>(m_engine()) / 4294967296.0;
    }

    /// A segment count from 0, seldom, to 5.
    int Count()
    {
        return OneIn(25) ? 0 : 1 + Below(5);
    }

    /// A position on and around a polyline of so many segments: often whole or half, sometimes at the tolerance beside it.
    double Position(int count)
    {
        const double place = OneIn(3) ? Ratio() * count : 0.5 * Below(2 * count + 1);
        const double laps = OneIn(6) ? (Below(5) - 2) * count : 0;
        return place + laps + (OneIn(8) ? Sliver() : 0.0);
    }

    /// A map that turns back nowhere and goes round at most once, in normal form more often than not.
    CPolyPosMap ValidMap(int sourceCount, int destinationCount)
    {
        const std::size_t size = static_cast<std::size_t>(Below(8));
        const bool together = !OneIn(3);
        const bool sourceUp = !OneIn(3);
        const bool destinationUp = together == sourceUp;
        const std::vector<double> source = Column(size, sourceCount, sourceUp);
        const std::vector<double> destination = Column(size, destinationCount, destinationUp);
        Pairs pairs;
        for (std::size_t i = 0; i < size; ++i)
        {
            pairs.emplace_back(source[i], destination[i]);
            if (OneIn(15))
            {
                pairs.push_back(pairs.back());
            }
        }
        return Map(pairs, sourceCount, destinationCount);
    }

    /// Any list of joints, mostly one that turns back.
    CPolyPosMap AnyMap(int sourceCount, int destinationCount)
    {
        Pairs pairs;
        for (int left = Below(6); left > 0; --left)
        {
            pairs.emplace_back(Position(sourceCount), Position(destinationCount));
        }
        return Map(pairs, sourceCount, destinationCount);
    }

private:
    double Sliver()
    {
        const double slivers[] = {3e-10, 5e-10, 1e-9, 1.5e-9, -5e-10, -3e-10, -2e-9};
        return slivers[Below(7)];
    }

    double Step(double room)
    {
        switch (Below(8))
        {
        case 0:
        case 1:
            return 0;
        case 2:
            return 1;
        case 3:
            return 0.5;
        case 4:
            return Ratio();
        case 5:
            return OneIn(3) ? Sliver() : 0.25;
        case 6:
            return OneIn(2) ? room : room / 2;
        default:
            return 2 * Ratio();
        }
    }

    /// Ascending from its lower end, turned round at last for a column that runs down.
    std::vector<double> Column(std::size_t size, int count, bool up)
    {
        double low = OneIn(3) ? 0.0 : (OneIn(3) ? Ratio() * count : 0.5 * Below(2 * count + 1));
        if (OneIn(8))
        {
            low += (Below(5) - 2) * count;
        }
        if (OneIn(20))
        {
            low += Sliver();
        }
        std::vector<double> column;
        double position = low;
        for (std::size_t i = 0; i < size; ++i)
        {
            column.push_back(position);
            const double room = low + count - position;
            const double step = Step(room);
            position += step <= room ? step : 0.0;
        }
        if (size > 1 && OneIn(4))
        {
            column.back() = low + count;
        }
        return up ? column : std::vector<double>(column.rbegin(), column.rend());
    }

    std::mt19937 m_engine;
};

} // namespace test
} // namespace math
