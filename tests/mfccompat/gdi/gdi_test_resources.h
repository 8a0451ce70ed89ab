// Resource numbers of the GDI tests' pictures (made by make_test_images.py).
#pragma once
#define IDP_ALPHA4X2 101
#define IDB_STRIP3 102
