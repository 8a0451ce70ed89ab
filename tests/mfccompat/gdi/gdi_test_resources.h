// Resource number of the GDI tests' bitmap.
#pragma once
#define IDB_STRIP3 102
