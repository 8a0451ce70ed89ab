// MFC-compatible <afxcoll.h>: the non-template collections (arrays, lists and maps of
// pointers, objects, strings and integers).
#pragma once
#include <afx.h>
#include <zoafx/collimpl.h>

#define ZOAFX_DECLARE_ARRAY(class_name, type, arg_type) \
    class ZOAFX_API class_name : public zoafx::CArrayImpl<CObject, type, arg_type> \
    { \
        DECLARE_DYNAMIC(class_name) \
    public: \
        class_name(); \
        virtual ~class_name(); \
    };

ZOAFX_DECLARE_ARRAY(CByteArray, BYTE, BYTE)
ZOAFX_DECLARE_ARRAY(CWordArray, WORD, WORD)
ZOAFX_DECLARE_ARRAY(CDWordArray, DWORD, DWORD)
ZOAFX_DECLARE_ARRAY(CUIntArray, UINT, UINT)
ZOAFX_DECLARE_ARRAY(CPtrArray, void*, void*)
ZOAFX_DECLARE_ARRAY(CObArray, CObject*, CObject*)
#undef ZOAFX_DECLARE_ARRAY

class ZOAFX_API CStringArray : public zoafx::CArrayImpl<CObject, CString, LPCTSTR>
{
    DECLARE_DYNAMIC(CStringArray)
    typedef zoafx::CArrayImpl<CObject, CString, LPCTSTR> Base;
public:
    CStringArray();
    virtual ~CStringArray();

    using Base::SetAt;
    using Base::SetAtGrow;
    using Base::Add;
    using Base::InsertAt;
    void SetAt(INT_PTR nIndex, const CString& newElement) { Base::SetAt(nIndex, newElement.GetString()); }
    void SetAtGrow(INT_PTR nIndex, const CString& newElement) { Base::SetAtGrow(nIndex, newElement.GetString()); }
    INT_PTR Add(const CString& newElement) { return Base::Add(newElement.GetString()); }
    void InsertAt(INT_PTR nIndex, const CString& newElement, INT_PTR nCount = 1)
    { Base::InsertAt(nIndex, newElement.GetString(), nCount); }
};

#define ZOAFX_DECLARE_LIST(class_name, type, arg_type) \
    class ZOAFX_API class_name : public zoafx::CListImpl<CObject, type, arg_type, zoafx::CollTraits> \
    { \
        DECLARE_DYNAMIC(class_name) \
    public: \
        explicit class_name(INT_PTR nBlockSize = 10); \
        virtual ~class_name(); \
    };

ZOAFX_DECLARE_LIST(CPtrList, void*, void*)
ZOAFX_DECLARE_LIST(CObList, CObject*, CObject*)
#undef ZOAFX_DECLARE_LIST

class ZOAFX_API CStringList : public zoafx::CListImpl<CObject, CString, LPCTSTR, zoafx::CollTraits>
{
    DECLARE_DYNAMIC(CStringList)
    typedef zoafx::CListImpl<CObject, CString, LPCTSTR, zoafx::CollTraits> Base;
public:
    explicit CStringList(INT_PTR nBlockSize = 10);
    virtual ~CStringList();

    using Base::AddHead;
    using Base::AddTail;
    using Base::SetAt;
    using Base::InsertBefore;
    using Base::InsertAfter;
    POSITION AddHead(const CString& newElement) { return Base::AddHead(newElement.GetString()); }
    POSITION AddTail(const CString& newElement) { return Base::AddTail(newElement.GetString()); }
    void SetAt(POSITION pos, const CString& newElement) { Base::SetAt(pos, newElement.GetString()); }
    POSITION InsertBefore(POSITION position, const CString& newElement)
    { return Base::InsertBefore(position, newElement.GetString()); }
    POSITION InsertAfter(POSITION position, const CString& newElement)
    { return Base::InsertAfter(position, newElement.GetString()); }
};

#define ZOAFX_DECLARE_MAP(class_name, key, arg_key, value, arg_value) \
    class ZOAFX_API class_name \
        : public zoafx::CMapImpl<CObject, key, arg_key, value, arg_value, zoafx::CollTraits> \
    { \
        DECLARE_DYNAMIC(class_name) \
    public: \
        typedef key BASE_KEY; \
        typedef arg_key BASE_ARG_KEY; \
        typedef value BASE_VALUE; \
        typedef arg_value BASE_ARG_VALUE; \
        explicit class_name(INT_PTR nBlockSize = 10); \
        virtual ~class_name(); \
    };

ZOAFX_DECLARE_MAP(CMapPtrToPtr, void*, void*, void*, void*)
ZOAFX_DECLARE_MAP(CMapPtrToWord, void*, void*, WORD, WORD)
ZOAFX_DECLARE_MAP(CMapWordToPtr, WORD, WORD, void*, void*)
ZOAFX_DECLARE_MAP(CMapWordToOb, WORD, WORD, CObject*, CObject*)
ZOAFX_DECLARE_MAP(CMapStringToPtr, CString, LPCTSTR, void*, void*)
ZOAFX_DECLARE_MAP(CMapStringToOb, CString, LPCTSTR, CObject*, CObject*)
ZOAFX_DECLARE_MAP(CMapStringToString, CString, LPCTSTR, CString, LPCTSTR)
#undef ZOAFX_DECLARE_MAP
