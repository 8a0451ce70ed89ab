// Paths of the host process; internal to the library.
#pragma once
#include <afxwin.h>

namespace ZoControls {

// Full path of the host executable (at most MAX_PATH characters), with '/' turned into '\'.
CString ZoGetHostExecutablePath();

} // namespace ZoControls
