// Internal: the storage engines behind MFC's collections. <afxtempl.h> (CArray, CList,
// CMap) and <afxcoll.h> (CPtrArray, CStringList, CMapStringToPtr, ...) both derive from these,
// so every collection shares one implementation of growth, linking and hashing.
//
// Out-of-range indexes and NULL positions throw CInvalidArgException, as MFC does.
#pragma once
#include <afx.h>

namespace zoafx {

// ---- array ----------------------------------------------------------------------------

template <class BASE, class TYPE, class ARG_TYPE>
class CArrayImpl : public BASE
{
public:
    CArrayImpl() : m_pData(NULL), m_nSize(0), m_nMaxSize(0), m_nGrowBy(0) { }
    virtual ~CArrayImpl() { Reallocate(0, 0); }

    INT_PTR GetCount() const { return m_nSize; }
    INT_PTR GetSize() const { return m_nSize; }
    INT_PTR GetUpperBound() const { return m_nSize - 1; }
    BOOL IsEmpty() const { return m_nSize == 0; }

    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1)
    {
        if (nNewSize < 0)
            AfxThrowInvalidArgException();
        if (nGrowBy >= 0)
            m_nGrowBy = nGrowBy;
        if (nNewSize == 0)
        {
            Reallocate(0, 0);
            return;
        }
        if (nNewSize > m_nMaxSize)
        {
            INT_PTR nNewMax = nNewSize;
            if (m_pData == NULL)
            {
                if (m_nGrowBy > nNewMax)
                    nNewMax = m_nGrowBy;
            }
            else
            {
                INT_PTR nStep = m_nGrowBy;
                if (nStep == 0) // grow by an eighth of the size, between 4 and 1024 slots
                    nStep = m_nSize / 8 < 4 ? 4 : (m_nSize / 8 > 1024 ? 1024 : m_nSize / 8);
                if (m_nMaxSize + nStep > nNewMax)
                    nNewMax = m_nMaxSize + nStep;
            }
            Reallocate(m_nSize, nNewMax);
        }
        for (; m_nSize < nNewSize; ++m_nSize)
            ::new ((void*)(m_pData + m_nSize)) TYPE();
        for (; m_nSize > nNewSize; --m_nSize)
            (m_pData + m_nSize - 1)->~TYPE();
    }

    void FreeExtra()
    {
        if (m_nSize != m_nMaxSize)
            Reallocate(m_nSize, m_nSize);
    }
    void RemoveAll() { SetSize(0, -1); }

    const TYPE& GetAt(INT_PTR nIndex) const { return m_pData[CheckIndex(nIndex)]; }
    TYPE& GetAt(INT_PTR nIndex) { return m_pData[CheckIndex(nIndex)]; }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { m_pData[CheckIndex(nIndex)] = newElement; }
    const TYPE& ElementAt(INT_PTR nIndex) const { return m_pData[CheckIndex(nIndex)]; }
    TYPE& ElementAt(INT_PTR nIndex) { return m_pData[CheckIndex(nIndex)]; }
    const TYPE* GetData() const { return m_pData; }
    TYPE* GetData() { return m_pData; }
    const TYPE& operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }

    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement)
    {
        if (nIndex < 0)
            AfxThrowInvalidArgException();
        TYPE value(newElement); // newElement may live in this array's storage
        if (nIndex >= m_nSize)
            SetSize(nIndex + 1, -1);
        m_pData[nIndex] = value;
    }

    INT_PTR Add(ARG_TYPE newElement)
    {
        INT_PTR nIndex = m_nSize;
        SetAtGrow(nIndex, newElement);
        return nIndex;
    }

    INT_PTR Append(const CArrayImpl& src)
    {
        INT_PTR nOldSize = m_nSize;
        INT_PTR nCount = src.m_nSize; // src may be this array
        SetSize(m_nSize + nCount, -1);
        for (INT_PTR i = 0; i < nCount; ++i)
            m_pData[nOldSize + i] = src.m_pData[i];
        return nOldSize;
    }

    void Copy(const CArrayImpl& src)
    {
        if (&src == this)
            return;
        SetSize(src.m_nSize, -1);
        for (INT_PTR i = 0; i < m_nSize; ++i)
            m_pData[i] = src.m_pData[i];
    }

    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1)
    {
        if (nIndex < 0 || nCount <= 0)
        {
            if (nIndex < 0 || nCount < 0)
                AfxThrowInvalidArgException();
            return;
        }
        TYPE value(newElement);
        OpenGap(nIndex, nCount);
        for (INT_PTR i = 0; i < nCount; ++i)
            m_pData[nIndex + i] = value;
    }

    void InsertAt(INT_PTR nStartIndex, CArrayImpl* pNewArray)
    {
        if (pNewArray == NULL || nStartIndex < 0)
            AfxThrowInvalidArgException();
        if (pNewArray->m_nSize == 0)
            return;
        CArrayImpl copy; // the source may be this array
        copy.Copy(*pNewArray);
        OpenGap(nStartIndex, copy.m_nSize);
        for (INT_PTR i = 0; i < copy.m_nSize; ++i)
            m_pData[nStartIndex + i] = copy.m_pData[i];
    }

    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1)
    {
        if (nIndex < 0 || nCount < 0 || nIndex + nCount > m_nSize)
            AfxThrowInvalidArgException();
        for (INT_PTR i = nIndex; i + nCount < m_nSize; ++i)
            m_pData[i] = m_pData[i + nCount];
        SetSize(m_nSize - nCount, -1);
    }

private:
    CArrayImpl(const CArrayImpl&);
    void operator=(const CArrayImpl&);

    INT_PTR CheckIndex(INT_PTR nIndex) const
    {
        if (nIndex < 0 || nIndex >= m_nSize)
            AfxThrowInvalidArgException();
        return nIndex;
    }

    // Makes room for nCount default elements at nIndex (past the end grows the array).
    void OpenGap(INT_PTR nIndex, INT_PTR nCount)
    {
        INT_PTR nOldSize = m_nSize;
        if (nIndex >= nOldSize)
        {
            SetSize(nIndex + nCount, -1);
            return;
        }
        SetSize(nOldSize + nCount, -1);
        for (INT_PTR i = nOldSize - 1; i >= nIndex; --i)
            m_pData[i + nCount] = m_pData[i];
        for (INT_PTR i = nIndex; i < nIndex + nCount; ++i)
            m_pData[i] = TYPE();
    }

    // Moves the first nKeep elements into storage for nNewMax elements (0 frees everything).
    void Reallocate(INT_PTR nKeep, INT_PTR nNewMax)
    {
        if ((size_t)nNewMax > ((size_t)-1) / 2 / sizeof(TYPE))
            AfxThrowMemoryException();
        TYPE* pNew = NULL;
        if (nNewMax > 0)
        {
            pNew = static_cast<TYPE*>(::operator new((size_t)nNewMax * sizeof(TYPE), std::nothrow));
            if (pNew == NULL)
                AfxThrowMemoryException();
            for (INT_PTR i = 0; i < nKeep; ++i)
                ::new ((void*)(pNew + i)) TYPE(static_cast<TYPE&&>(m_pData[i]));
        }
        for (INT_PTR i = 0; i < m_nSize; ++i)
            (m_pData + i)->~TYPE();
        ::operator delete(m_pData);
        m_pData = pNew;
        m_nSize = nKeep;
        m_nMaxSize = nNewMax;
    }

protected:
    TYPE* m_pData;
    INT_PTR m_nSize;
    INT_PTR m_nMaxSize;
    INT_PTR m_nGrowBy;
};

// ---- list ------------------------------------------------------------------------------

template <class BASE, class TYPE, class ARG_TYPE, class EQUAL>
class CListImpl : public BASE
{
protected:
    struct CNode
    {
        CNode* pNext;
        CNode* pPrev;
        TYPE data;
        explicit CNode(ARG_TYPE value) : pNext(NULL), pPrev(NULL), data(value) { }
    };

public:
    explicit CListImpl(INT_PTR nBlockSize = 10)
        : m_pNodeHead(NULL), m_pNodeTail(NULL), m_nCount(0), m_nBlockSize(nBlockSize) { }
    virtual ~CListImpl() { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    TYPE& GetHead() { return Check(m_pNodeHead)->data; }
    const TYPE& GetHead() const { return Check(m_pNodeHead)->data; }
    TYPE& GetTail() { return Check(m_pNodeTail)->data; }
    const TYPE& GetTail() const { return Check(m_pNodeTail)->data; }

    TYPE RemoveHead()
    {
        CNode* pNode = Check(m_pNodeHead);
        TYPE value(pNode->data);
        Unlink(pNode);
        return value;
    }
    TYPE RemoveTail()
    {
        CNode* pNode = Check(m_pNodeTail);
        TYPE value(pNode->data);
        Unlink(pNode);
        return value;
    }

    POSITION AddHead(ARG_TYPE newElement) { return Link(NewNode(newElement), NULL, m_pNodeHead); }
    POSITION AddTail(ARG_TYPE newElement) { return Link(NewNode(newElement), m_pNodeTail, NULL); }
    void AddHead(CListImpl* pNewList)
    {
        if (pNewList == NULL)
            AfxThrowInvalidArgException();
        CListImpl copy; // the source may be this list
        copy.AddTail(pNewList);
        for (CNode* p = copy.m_pNodeTail; p != NULL; p = p->pPrev)
            AddHead(p->data);
    }
    void AddTail(CListImpl* pNewList)
    {
        if (pNewList == NULL)
            AfxThrowInvalidArgException();
        INT_PTR nCount = pNewList->m_nCount;
        CNode* p = pNewList->m_pNodeHead;
        for (INT_PTR i = 0; i < nCount; ++i, p = p->pNext)
            AddTail(p->data);
    }

    void RemoveAll()
    {
        while (m_pNodeHead != NULL)
            Unlink(m_pNodeHead);
    }

    POSITION GetHeadPosition() const { return (POSITION)m_pNodeHead; }
    POSITION GetTailPosition() const { return (POSITION)m_pNodeTail; }

    TYPE& GetNext(POSITION& rPosition)
    {
        CNode* pNode = Check((CNode*)rPosition);
        rPosition = (POSITION)pNode->pNext;
        return pNode->data;
    }
    const TYPE& GetNext(POSITION& rPosition) const
    {
        CNode* pNode = Check((CNode*)rPosition);
        rPosition = (POSITION)pNode->pNext;
        return pNode->data;
    }
    TYPE& GetPrev(POSITION& rPosition)
    {
        CNode* pNode = Check((CNode*)rPosition);
        rPosition = (POSITION)pNode->pPrev;
        return pNode->data;
    }
    const TYPE& GetPrev(POSITION& rPosition) const
    {
        CNode* pNode = Check((CNode*)rPosition);
        rPosition = (POSITION)pNode->pPrev;
        return pNode->data;
    }

    TYPE& GetAt(POSITION position) { return Check((CNode*)position)->data; }
    const TYPE& GetAt(POSITION position) const { return Check((CNode*)position)->data; }
    void SetAt(POSITION pos, ARG_TYPE newElement) { Check((CNode*)pos)->data = newElement; }
    void RemoveAt(POSITION position) { Unlink(Check((CNode*)position)); }

    POSITION InsertBefore(POSITION position, ARG_TYPE newElement)
    {
        if (position == NULL)
            return AddHead(newElement);
        CNode* pOld = (CNode*)position;
        return Link(NewNode(newElement), pOld->pPrev, pOld);
    }
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement)
    {
        if (position == NULL)
            return AddTail(newElement);
        CNode* pOld = (CNode*)position;
        return Link(NewNode(newElement), pOld, pOld->pNext);
    }

    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = NULL) const
    {
        CNode* pNode = startAfter ? ((CNode*)startAfter)->pNext : m_pNodeHead;
        for (; pNode != NULL; pNode = pNode->pNext)
            if (EQUAL::Equal(&pNode->data, &searchValue))
                return (POSITION)pNode;
        return NULL;
    }

    POSITION FindIndex(INT_PTR nIndex) const
    {
        if (nIndex < 0 || nIndex >= m_nCount)
            return NULL;
        CNode* pNode = m_pNodeHead;
        while (nIndex-- > 0)
            pNode = pNode->pNext;
        return (POSITION)pNode;
    }

private:
    CListImpl(const CListImpl&);
    void operator=(const CListImpl&);

    static CNode* Check(CNode* pNode)
    {
        if (pNode == NULL)
            AfxThrowInvalidArgException();
        return pNode;
    }

    static CNode* NewNode(ARG_TYPE value)
    {
        CNode* pNode = new (std::nothrow) CNode(value);
        if (pNode == NULL)
            AfxThrowMemoryException();
        return pNode;
    }

    POSITION Link(CNode* pNode, CNode* pPrev, CNode* pNext)
    {
        pNode->pPrev = pPrev;
        pNode->pNext = pNext;
        (pPrev ? pPrev->pNext : m_pNodeHead) = pNode;
        (pNext ? pNext->pPrev : m_pNodeTail) = pNode;
        ++m_nCount;
        return (POSITION)pNode;
    }

    void Unlink(CNode* pNode)
    {
        (pNode->pPrev ? pNode->pPrev->pNext : m_pNodeHead) = pNode->pNext;
        (pNode->pNext ? pNode->pNext->pPrev : m_pNodeTail) = pNode->pPrev;
        --m_nCount;
        delete pNode;
    }

protected:
    CNode* m_pNodeHead;
    CNode* m_pNodeTail;
    INT_PTR m_nCount;
    INT_PTR m_nBlockSize;
};

// ---- map -------------------------------------------------------------------------------

// TRAITS supplies static UINT Hash(ARG_KEY) and BOOL Equal(const KEY*, const ARG_KEY*).
// Iteration visits buckets in order and, within a bucket, the newest key first.
template <class BASE, class KEY, class ARG_KEY, class VALUE, class ARG_VALUE, class TRAITS>
class CMapImpl : public BASE
{
public:
    class CPair
    {
    public:
        const KEY key;
        VALUE value;
    protected:
        explicit CPair(ARG_KEY keyval) : key(keyval), value() { }
    };

protected:
    class CAssoc : public CPair
    {
    public:
        CAssoc* pNext;
        UINT nHashValue; // bucket index
        CAssoc(ARG_KEY key, UINT nBucket) : CPair(key), pNext(NULL), nHashValue(nBucket) { }
    };

public:
    explicit CMapImpl(INT_PTR nBlockSize = 10)
        : m_pHashTable(NULL), m_nHashTableSize(17), m_nCount(0), m_nBlockSize(nBlockSize) { }
    virtual ~CMapImpl() { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }
    UINT GetHashTableSize() const { return m_nHashTableSize; }

    BOOL Lookup(ARG_KEY key, VALUE& rValue) const
    {
        const CAssoc* pAssoc = Find(key);
        if (pAssoc == NULL)
            return FALSE;
        rValue = pAssoc->value;
        return TRUE;
    }
    const CPair* PLookup(ARG_KEY key) const { return Find(key); }
    CPair* PLookup(ARG_KEY key) { return Find(key); }

    VALUE& operator[](ARG_KEY key)
    {
        if (CAssoc* pAssoc = Find(key))
            return pAssoc->value;
        if (m_pHashTable == NULL)
            InitHashTable(m_nHashTableSize, TRUE);
        UINT nBucket = Bucket(key);
        CAssoc* pAssoc = new (std::nothrow) CAssoc(key, nBucket);
        if (pAssoc == NULL)
            AfxThrowMemoryException();
        pAssoc->pNext = m_pHashTable[nBucket];
        m_pHashTable[nBucket] = pAssoc;
        ++m_nCount;
        return pAssoc->value;
    }

    void SetAt(ARG_KEY key, ARG_VALUE newValue) { (*this)[key] = newValue; }

    BOOL RemoveKey(ARG_KEY key)
    {
        if (m_pHashTable == NULL)
            return FALSE;
        for (CAssoc** ppLink = &m_pHashTable[Bucket(key)]; *ppLink != NULL; ppLink = &(*ppLink)->pNext)
        {
            if (TRAITS::Equal(&(*ppLink)->key, &key))
            {
                CAssoc* pAssoc = *ppLink;
                *ppLink = pAssoc->pNext;
                delete pAssoc;
                --m_nCount;
                return TRUE;
            }
        }
        return FALSE;
    }

    void RemoveAll()
    {
        if (m_pHashTable != NULL)
        {
            for (UINT i = 0; i < m_nHashTableSize; ++i)
            {
                for (CAssoc* pAssoc = m_pHashTable[i]; pAssoc != NULL;)
                {
                    CAssoc* pNext = pAssoc->pNext;
                    delete pAssoc;
                    pAssoc = pNext;
                }
            }
            delete[] m_pHashTable;
            m_pHashTable = NULL;
        }
        m_nCount = 0;
    }

    POSITION GetStartPosition() const { return (POSITION)FirstFrom(0); }

    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const
    {
        const CAssoc* pAssoc = (const CAssoc*)rNextPosition;
        if (pAssoc == NULL)
            AfxThrowInvalidArgException();
        rKey = pAssoc->key;
        rValue = pAssoc->value;
        rNextPosition = (POSITION)Next(pAssoc);
    }

    const CPair* PGetFirstAssoc() const { return FirstFrom(0); }
    CPair* PGetFirstAssoc() { return FirstFrom(0); }
    const CPair* PGetNextAssoc(const CPair* pAssocRet) const
    {
        return pAssocRet ? Next(static_cast<const CAssoc*>(pAssocRet)) : NULL;
    }
    CPair* PGetNextAssoc(const CPair* pAssocRet)
    {
        return pAssocRet ? Next(static_cast<const CAssoc*>(pAssocRet)) : NULL;
    }

    // A zero size is taken as 1 so that hashing never divides by zero. Existing entries
    // are redistributed.
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE)
    {
        if (hashSize == 0)
            hashSize = 1;
        CAssoc** pOld = m_pHashTable;
        UINT nOldSize = m_nHashTableSize;
        m_pHashTable = NULL;
        m_nHashTableSize = hashSize;
        if (bAllocNow || pOld != NULL)
        {
            m_pHashTable = new (std::nothrow) CAssoc*[hashSize]();
            if (m_pHashTable == NULL)
            {
                m_pHashTable = pOld;
                m_nHashTableSize = nOldSize;
                AfxThrowMemoryException();
            }
        }
        if (pOld == NULL)
            return;
        for (UINT i = 0; i < nOldSize; ++i)
        {
            for (CAssoc* pAssoc = pOld[i]; pAssoc != NULL;)
            {
                CAssoc* pNext = pAssoc->pNext;
                pAssoc->nHashValue = TRAITS::Hash(pAssoc->key) % m_nHashTableSize;
                pAssoc->pNext = m_pHashTable[pAssoc->nHashValue];
                m_pHashTable[pAssoc->nHashValue] = pAssoc;
                pAssoc = pNext;
            }
        }
        delete[] pOld;
    }

private:
    CMapImpl(const CMapImpl&);
    void operator=(const CMapImpl&);

    UINT Bucket(ARG_KEY key) const { return TRAITS::Hash(key) % m_nHashTableSize; }

    CAssoc* Find(ARG_KEY key) const
    {
        if (m_pHashTable == NULL)
            return NULL;
        for (CAssoc* pAssoc = m_pHashTable[Bucket(key)]; pAssoc != NULL; pAssoc = pAssoc->pNext)
            if (TRAITS::Equal(&pAssoc->key, &key))
                return pAssoc;
        return NULL;
    }

    CAssoc* FirstFrom(UINT nBucket) const
    {
        if (m_pHashTable == NULL)
            return NULL;
        for (; nBucket < m_nHashTableSize; ++nBucket)
            if (m_pHashTable[nBucket] != NULL)
                return m_pHashTable[nBucket];
        return NULL;
    }

    CAssoc* Next(const CAssoc* pAssoc) const
    {
        return pAssoc->pNext ? pAssoc->pNext : FirstFrom(pAssoc->nHashValue + 1);
    }

protected:
    CAssoc** m_pHashTable;
    UINT m_nHashTableSize;
    INT_PTR m_nCount;
    INT_PTR m_nBlockSize;
};

// Hashing and equality for afxcoll's fixed key types.
struct CollTraits
{
    static UINT Hash(const void* key) { return (UINT)(((UINT_PTR)key) >> 4); }
    static UINT Hash(WORD key) { return (UINT)(key >> 4); }
    static UINT Hash(LPCWSTR key)
    {
        UINT nHash = 0;
        if (key != NULL)
            for (; *key; ++key)
                nHash = (nHash << 5) + nHash + *key;
        return nHash;
    }
    template <class KEY, class ARG_KEY>
    static BOOL Equal(const KEY* pKey, const ARG_KEY* pArg) { return *pKey == *pArg; }
};

} // namespace zoafx
