// Internal: the maps behind FromHandle (CWnd, CDC, CGdiObject, CMenu, CImageList, ...).
//
// Each wrapper class owns one map object, defined once inside zoafx.dll, e.g.
//
//     static CWnd* NewTempWnd(HWND hWnd) { CWnd* p = new CWnd; p->m_hWnd = hWnd; return p; }
//     static void DetachTempWnd(CWnd* p) { p->m_hWnd = NULL; }
//     zoafx::CHandleMap<CWnd, HWND>& WndMap()
//     {
//         static zoafx::CHandleMap<CWnd, HWND> map(&NewTempWnd, &DetachTempWnd);
//         return map;
//     }
//
// and uses it as follows:
//   CWnd::Attach(h)            -> WndMap().SetPermanent(h, this)
//   CWnd::Detach()             -> WndMap().RemoveHandle(m_hWnd)
//   CWnd::FromHandlePermanent  -> WndMap().LookupPermanent(h)
//   CWnd::FromHandle           -> WndMap().FromHandle(h): the permanent object if there is
//                                 one, else a temporary object created by the create function
//                                 (the same one for repeated calls until it is deleted);
//                                 NULL for a NULL handle or when creation fails
//   CWnd::DeleteTempMap        -> WndMap().DeleteTemp()
//
// Both maps belong to the calling thread, as in MFC: an object attached on one thread is not
// found from another. Temporary objects are deleted by DeleteTemp(), by AfxUnlockTempMaps()
// when the thread's lock count returns to zero (the idle loop calls AfxLockTempMaps /
// AfxUnlockTempMaps), and when the thread ends. Before a temporary object is deleted the
// detach function clears its handle member(s), so its destructor never destroys the handle.
// A temporary object's destructor may call RemoveHandle or FromHandle safely.
#pragma once
#include <afx.h>

namespace zoafx {

class ZOAFX_API CHandleMapBase
{
public:
    CObject* FromHandle(HANDLE h);
    CObject* LookupPermanent(HANDLE h) const;
    CObject* LookupTemporary(HANDLE h) const;
    // Registers pObject as the permanent wrapper of h (replacing an earlier one); a temporary
    // wrapper of h, if any, is deleted first. NULL h or pObject is ignored.
    void SetPermanent(HANDLE h, CObject* pObject);
    // Forgets h in both maps without deleting anything.
    void RemoveHandle(HANDLE h);
    // Deletes the calling thread's temporary objects of this map now.
    void DeleteTemp();
    // Number of objects in the calling thread's maps (for tests and diagnostics).
    int GetPermanentCount() const;
    int GetTemporaryCount() const;

protected:
    CHandleMapBase();
    virtual ~CHandleMapBase();
    virtual CObject* NewTemporary(HANDLE h) = 0;
    virtual void DetachTemporary(CObject* pObject) = 0;

private:
    CHandleMapBase(const CHandleMapBase&);
    void operator=(const CHandleMapBase&);
    friend struct HandleMapAccess;
};

template <class TObject, class THandle>
class CHandleMap : public CHandleMapBase
{
public:
    typedef TObject* (*PFN_NEWTEMP)(THandle h);
    typedef void (*PFN_DETACHTEMP)(TObject* pObject);

    CHandleMap(PFN_NEWTEMP pfnNewTemp, PFN_DETACHTEMP pfnDetachTemp)
        : m_pfnNewTemp(pfnNewTemp), m_pfnDetachTemp(pfnDetachTemp) { }

    TObject* FromHandle(THandle h) { return static_cast<TObject*>(CHandleMapBase::FromHandle(ToHandle(h))); }
    TObject* LookupPermanent(THandle h) const
    { return static_cast<TObject*>(CHandleMapBase::LookupPermanent(ToHandle(h))); }
    TObject* LookupTemporary(THandle h) const
    { return static_cast<TObject*>(CHandleMapBase::LookupTemporary(ToHandle(h))); }
    void SetPermanent(THandle h, TObject* pObject) { CHandleMapBase::SetPermanent(ToHandle(h), pObject); }
    void RemoveHandle(THandle h) { CHandleMapBase::RemoveHandle(ToHandle(h)); }

protected:
    virtual CObject* NewTemporary(HANDLE h) { return m_pfnNewTemp((THandle)h); }
    virtual void DetachTemporary(CObject* pObject) { m_pfnDetachTemp(static_cast<TObject*>(pObject)); }

private:
    static HANDLE ToHandle(THandle h) { return (HANDLE)h; }
    PFN_NEWTEMP m_pfnNewTemp;
    PFN_DETACHTEMP m_pfnDetachTemp;
};

} // namespace zoafx
