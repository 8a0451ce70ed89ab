// CZoNestingScope: how deep a call is nested, counted in an int that goes up while the scope
// lives and down when it ends, an exception passing through included; a scope told it does not
// count leaves the int alone.
#pragma once

namespace ZoControls {

class CZoNestingScope
{
public:
    explicit CZoNestingScope(int& depth, bool counts = true) : m_depth(depth), m_step(counts ? 1 : 0)
    {
        m_depth += m_step;
    }
    ~CZoNestingScope() { m_depth -= m_step; }

private:
    int& m_depth;
    const int m_step;
    CZoNestingScope(const CZoNestingScope&);
    CZoNestingScope& operator=(const CZoNestingScope&);
};

} // namespace ZoControls
