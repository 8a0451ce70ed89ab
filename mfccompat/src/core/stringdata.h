// CString's heap header, shared by the string sources of the layer.
#pragma once
#include <afx.h>

// Header in front of the characters; m_pszData points just past it.
struct CStringW::Data
{
    static const int kMagic = 0x5A4F5354; // identifies a string buffer (see strformat.cpp)
    int nMagic;
    int nDataLength;  // characters, without the terminator
    int nAllocLength; // capacity in characters, without the terminator
    int nLocks;       // LockBuffer nesting
    wchar_t* Chars() { return reinterpret_cast<wchar_t*>(this + 1); }
};

namespace zoafx {

// The shared empty string: never written, capacity 0 forces an allocation on first write.
struct EmptyString
{
    CStringW::Data data;
    wchar_t terminator;
};
extern EmptyString g_emptyString;

} // namespace zoafx
