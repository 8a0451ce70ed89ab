// Run-time class information of the non-template collections; everything else is inline.
#include <afxcoll.h>

#define ZOAFX_IMPLEMENT_ARRAY(class_name) \
    IMPLEMENT_DYNAMIC(class_name, CObject) \
    class_name::class_name() { } \
    class_name::~class_name() { }

ZOAFX_IMPLEMENT_ARRAY(CByteArray)
ZOAFX_IMPLEMENT_ARRAY(CWordArray)
ZOAFX_IMPLEMENT_ARRAY(CDWordArray)
ZOAFX_IMPLEMENT_ARRAY(CUIntArray)
ZOAFX_IMPLEMENT_ARRAY(CPtrArray)
ZOAFX_IMPLEMENT_ARRAY(CObArray)
ZOAFX_IMPLEMENT_ARRAY(CStringArray)

#define ZOAFX_IMPLEMENT_BLOCKED(class_name, base) \
    IMPLEMENT_DYNAMIC(class_name, CObject) \
    class_name::class_name(INT_PTR nBlockSize) : base(nBlockSize) { } \
    class_name::~class_name() { }

ZOAFX_IMPLEMENT_BLOCKED(CPtrList, CListImpl)
ZOAFX_IMPLEMENT_BLOCKED(CObList, CListImpl)
ZOAFX_IMPLEMENT_BLOCKED(CStringList, CListImpl)
ZOAFX_IMPLEMENT_BLOCKED(CMapPtrToPtr, CMapImpl)
ZOAFX_IMPLEMENT_BLOCKED(CMapPtrToWord, CMapImpl)
ZOAFX_IMPLEMENT_BLOCKED(CMapWordToPtr, CMapImpl)
ZOAFX_IMPLEMENT_BLOCKED(CMapWordToOb, CMapImpl)
ZOAFX_IMPLEMENT_BLOCKED(CMapStringToPtr, CMapImpl)
ZOAFX_IMPLEMENT_BLOCKED(CMapStringToOb, CMapImpl)
ZOAFX_IMPLEMENT_BLOCKED(CMapStringToString, CMapImpl)
