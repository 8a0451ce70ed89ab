// MFC-compatible <afxtempl.h>: CArray, CList, CMap, the typed-pointer wrappers and the
// helper templates HashKey and CompareElements (specialise them for your own key types).
#pragma once
#include <afxcoll.h>

template <class ARG_KEY>
AFX_INLINE UINT AFXAPI HashKey(ARG_KEY key)
{
    // The documented default: the key shifted right by four bits.
    return (UINT)(((UINT_PTR)key) >> 4);
}

template <>
AFX_INLINE UINT AFXAPI HashKey<LPCWSTR>(LPCWSTR key)
{
    return zoafx::CollTraits::Hash(key);
}

template <>
AFX_INLINE UINT AFXAPI HashKey<LPWSTR>(LPWSTR key)
{
    return zoafx::CollTraits::Hash(key);
}

template <>
AFX_INLINE UINT AFXAPI HashKey<LPCSTR>(LPCSTR key)
{
    UINT nHash = 0;
    if (key != NULL)
        for (; *key; ++key)
            nHash = (nHash << 5) + nHash + (BYTE)*key;
    return nHash;
}

template <>
AFX_INLINE UINT AFXAPI HashKey<const CString&>(const CString& key)
{
    return zoafx::CollTraits::Hash(key.GetString());
}

template <>
AFX_INLINE UINT AFXAPI HashKey<CString>(CString key)
{
    return zoafx::CollTraits::Hash(key.GetString());
}

template <>
AFX_INLINE UINT AFXAPI HashKey<__int64>(__int64 key)
{
    return (UINT)key ^ (UINT)((unsigned __int64)key >> 32);
}

template <>
AFX_INLINE UINT AFXAPI HashKey<unsigned __int64>(unsigned __int64 key)
{
    return (UINT)key ^ (UINT)(key >> 32);
}

template <class TYPE, class ARG_TYPE>
AFX_INLINE BOOL AFXAPI CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2)
{
    return *pElement1 == *pElement2;
}

namespace zoafx {

template <class KEY, class ARG_KEY>
struct TemplTraits
{
    static UINT Hash(ARG_KEY key) { return ::HashKey<ARG_KEY>(key); }
    static BOOL Equal(const KEY* pKey, const ARG_KEY* pArg) { return ::CompareElements<KEY, ARG_KEY>(pKey, pArg); }
};

} // namespace zoafx

template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public zoafx::CArrayImpl<CObject, TYPE, ARG_TYPE>
{
public:
    CArray() { }
    virtual ~CArray() { }
};

template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public zoafx::CListImpl<CObject, TYPE, ARG_TYPE, zoafx::TemplTraits<TYPE, ARG_TYPE> >
{
public:
    explicit CList(INT_PTR nBlockSize = 10)
        : zoafx::CListImpl<CObject, TYPE, ARG_TYPE, zoafx::TemplTraits<TYPE, ARG_TYPE> >(nBlockSize) { }
    virtual ~CList() { }
};

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public zoafx::CMapImpl<CObject, KEY, ARG_KEY, VALUE, ARG_VALUE, zoafx::TemplTraits<KEY, ARG_KEY> >
{
public:
    explicit CMap(INT_PTR nBlockSize = 10)
        : zoafx::CMapImpl<CObject, KEY, ARG_KEY, VALUE, ARG_VALUE, zoafx::TemplTraits<KEY, ARG_KEY> >(nBlockSize) { }
    virtual ~CMap() { }
};

// ---- typed pointer wrappers ----

template <class BASE_CLASS, class TYPE>
class CTypedPtrArray : public BASE_CLASS
{
public:
    TYPE GetAt(INT_PTR nIndex) const { return (TYPE)BASE_CLASS::GetAt(nIndex); }
    TYPE& ElementAt(INT_PTR nIndex) { return (TYPE&)BASE_CLASS::ElementAt(nIndex); }
    void SetAt(INT_PTR nIndex, TYPE ptr) { BASE_CLASS::SetAt(nIndex, ptr); }
    void SetAtGrow(INT_PTR nIndex, TYPE newElement) { BASE_CLASS::SetAtGrow(nIndex, newElement); }
    INT_PTR Add(TYPE newElement) { return BASE_CLASS::Add(newElement); }
    INT_PTR Append(const CTypedPtrArray<BASE_CLASS, TYPE>& src) { return BASE_CLASS::Append(src); }
    void Copy(const CTypedPtrArray<BASE_CLASS, TYPE>& src) { BASE_CLASS::Copy(src); }
    void InsertAt(INT_PTR nIndex, TYPE newElement, INT_PTR nCount = 1)
    { BASE_CLASS::InsertAt(nIndex, newElement, nCount); }
    void InsertAt(INT_PTR nStartIndex, CTypedPtrArray<BASE_CLASS, TYPE>* pNewArray)
    { BASE_CLASS::InsertAt(nStartIndex, pNewArray); }
    TYPE operator[](INT_PTR nIndex) const { return (TYPE)BASE_CLASS::operator[](nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return (TYPE&)BASE_CLASS::operator[](nIndex); }
};

template <class BASE_CLASS, class TYPE>
class CTypedPtrList : public BASE_CLASS
{
public:
    explicit CTypedPtrList(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) { }

    TYPE& GetHead() { return (TYPE&)BASE_CLASS::GetHead(); }
    TYPE GetHead() const { return (TYPE)BASE_CLASS::GetHead(); }
    TYPE& GetTail() { return (TYPE&)BASE_CLASS::GetTail(); }
    TYPE GetTail() const { return (TYPE)BASE_CLASS::GetTail(); }
    TYPE RemoveHead() { return (TYPE)BASE_CLASS::RemoveHead(); }
    TYPE RemoveTail() { return (TYPE)BASE_CLASS::RemoveTail(); }
    POSITION AddHead(TYPE newElement) { return BASE_CLASS::AddHead(newElement); }
    POSITION AddTail(TYPE newElement) { return BASE_CLASS::AddTail(newElement); }
    void AddHead(CTypedPtrList<BASE_CLASS, TYPE>* pNewList) { BASE_CLASS::AddHead(pNewList); }
    void AddTail(CTypedPtrList<BASE_CLASS, TYPE>* pNewList) { BASE_CLASS::AddTail(pNewList); }
    TYPE& GetNext(POSITION& rPosition) { return (TYPE&)BASE_CLASS::GetNext(rPosition); }
    TYPE GetNext(POSITION& rPosition) const { return (TYPE)BASE_CLASS::GetNext(rPosition); }
    TYPE& GetPrev(POSITION& rPosition) { return (TYPE&)BASE_CLASS::GetPrev(rPosition); }
    TYPE GetPrev(POSITION& rPosition) const { return (TYPE)BASE_CLASS::GetPrev(rPosition); }
    TYPE& GetAt(POSITION position) { return (TYPE&)BASE_CLASS::GetAt(position); }
    TYPE GetAt(POSITION position) const { return (TYPE)BASE_CLASS::GetAt(position); }
    void SetAt(POSITION pos, TYPE newElement) { BASE_CLASS::SetAt(pos, newElement); }
};

template <class BASE_CLASS, class KEY, class VALUE>
class CTypedPtrMap : public BASE_CLASS
{
public:
    explicit CTypedPtrMap(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) { }

    BOOL Lookup(typename BASE_CLASS::BASE_ARG_KEY key, VALUE& rValue) const
    {
        typename BASE_CLASS::BASE_VALUE value;
        if (!BASE_CLASS::Lookup(key, value))
            return FALSE;
        rValue = (VALUE)value;
        return TRUE;
    }
    VALUE& operator[](typename BASE_CLASS::BASE_ARG_KEY key) { return (VALUE&)BASE_CLASS::operator[](key); }
    void SetAt(KEY key, VALUE newValue) { BASE_CLASS::SetAt(key, newValue); }
    BOOL RemoveKey(KEY key) { return BASE_CLASS::RemoveKey(key); }
    void GetNextAssoc(POSITION& rPosition, KEY& rKey, VALUE& rValue) const
    {
        typename BASE_CLASS::BASE_KEY key;
        typename BASE_CLASS::BASE_VALUE value;
        BASE_CLASS::GetNextAssoc(rPosition, key, value);
        rKey = (KEY)key;
        rValue = (VALUE)value;
    }
};
