// Whether an operation throws an MFC exception of a given class, which is then deleted.
#pragma once
#include <afx.h>

template <class E, class F>
bool Throws(F operation)
{
    try
    {
        operation();
    }
    catch (E* e)
    {
        e->Delete();
        return true;
    }
    return false;
}
