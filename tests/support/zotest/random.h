// Repeatable pseudo-random numbers for fuzzing and message storms: xorshift64*, small, fast
// and the same on every platform, so a printed seed replays a run exactly.
#pragma once

#include <stddef.h>

namespace zotest {

class Random
{
public:
    explicit Random(unsigned long long seed) : m_state(seed ? seed : 1) { }
    unsigned long long Next()
    {
        m_state ^= m_state >> 12;
        m_state ^= m_state << 25;
        m_state ^= m_state >> 27;
        return m_state * 0x2545F4914F6CDD1DULL;
    }
    // 0 .. bound - 1 (0 for a bound of 0).
    size_t Below(size_t bound) { return bound ? (size_t)(Next() % bound) : 0; }
    bool OneIn(size_t n) { return Below(n) == 0; }

private:
    unsigned long long m_state;
};

} // namespace zotest
