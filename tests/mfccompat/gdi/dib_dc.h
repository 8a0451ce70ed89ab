// A CDC attached to a test DIB's memory DC for the length of one test.
#pragma once
#include <afxwin.h>
#include <zotest/renderer.h>

class DibDC : public CDC
{
public:
    explicit DibDC(zotest::Dib& dib) { Attach(dib.dc()); }
    ~DibDC() { Detach(); }
};
