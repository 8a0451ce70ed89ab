// Permanent and temporary handle maps (per thread) and the temporary-map lock count.
#include <afx.h>
#include <zoafx/handlemap.h>
#include <map>
#include <set>
#include <vector>

namespace zoafx {

struct HandleMapAccess
{
    static CObject* NewTemporary(CHandleMapBase* pMap, HANDLE h) { return pMap->NewTemporary(h); }
    static void DetachTemporary(CHandleMapBase* pMap, CObject* p) { pMap->DetachTemporary(p); }
};

} // namespace zoafx

namespace {

using zoafx::CHandleMapBase;
using zoafx::HandleMapAccess;
typedef std::map<HANDLE, CObject*> ObjectMap;

struct ThreadMaps
{
    ObjectMap permanent;
    ObjectMap temporary;
};

// Map objects that exist; a thread ending after a map was destroyed must not call it.
struct LiveMaps
{
    CRITICAL_SECTION lock;
    std::set<const CHandleMapBase*> maps;
    LiveMaps() { InitializeCriticalSection(&lock); }
};

LiveMaps& Live()
{
    static LiveMaps* live = new LiveMaps; // never freed: threads may end after unload starts
    return *live;
}

bool IsLive(const CHandleMapBase* pMap)
{
    EnterCriticalSection(&Live().lock);
    bool live = Live().maps.count(pMap) != 0;
    LeaveCriticalSection(&Live().lock);
    return live;
}

std::vector<CHandleMapBase*> LiveSnapshot()
{
    EnterCriticalSection(&Live().lock);
    std::vector<CHandleMapBase*> maps;
    for (const CHandleMapBase* pMap : Live().maps)
        maps.push_back(const_cast<CHandleMapBase*>(pMap));
    LeaveCriticalSection(&Live().lock);
    return maps;
}

void DeleteTemporaries(CHandleMapBase* pMap, ObjectMap& temporary)
{
    // Destructors may touch the map again, so work on a detached copy.
    ObjectMap doomed;
    doomed.swap(temporary);
    for (ObjectMap::value_type& entry : doomed)
    {
        HandleMapAccess::DetachTemporary(pMap, entry.second);
        delete entry.second;
    }
}

struct ThreadState
{
    int nTempMapLock = 0;
    std::map<const CHandleMapBase*, ThreadMaps> maps;

    ~ThreadState()
    {
        for (auto& entry : maps)
            if (IsLive(entry.first))
                DeleteTemporaries(const_cast<CHandleMapBase*>(entry.first), entry.second.temporary);
    }
};

thread_local ThreadState t_state;

ThreadMaps& MapsOf(const CHandleMapBase* pMap)
{
    return t_state.maps[pMap];
}

CObject* Lookup(const ObjectMap& map, HANDLE h)
{
    ObjectMap::const_iterator it = map.find(h);
    return it == map.end() ? NULL : it->second;
}

} // namespace

namespace zoafx {

CHandleMapBase::CHandleMapBase()
{
    EnterCriticalSection(&Live().lock);
    Live().maps.insert(this);
    LeaveCriticalSection(&Live().lock);
}

CHandleMapBase::~CHandleMapBase()
{
    EnterCriticalSection(&Live().lock);
    Live().maps.erase(this);
    LeaveCriticalSection(&Live().lock);
}

CObject* CHandleMapBase::FromHandle(HANDLE h)
{
    if (h == NULL)
        return NULL;
    ThreadMaps& maps = MapsOf(this);
    if (CObject* pObject = Lookup(maps.permanent, h))
        return pObject;
    if (CObject* pObject = Lookup(maps.temporary, h))
        return pObject;
    CObject* pObject = HandleMapAccess::NewTemporary(this, h);
    if (pObject != NULL)
        MapsOf(this).temporary[h] = pObject; // re-fetch: creation may have added maps
    return pObject;
}

CObject* CHandleMapBase::LookupPermanent(HANDLE h) const
{
    return h ? Lookup(MapsOf(this).permanent, h) : NULL;
}

CObject* CHandleMapBase::LookupTemporary(HANDLE h) const
{
    return h ? Lookup(MapsOf(this).temporary, h) : NULL;
}

void CHandleMapBase::SetPermanent(HANDLE h, CObject* pObject)
{
    if (h == NULL || pObject == NULL)
        return;
    ObjectMap& temporary = MapsOf(this).temporary;
    ObjectMap::iterator it = temporary.find(h);
    if (it != temporary.end())
    {
        CObject* pTemp = it->second;
        temporary.erase(it);
        if (pTemp != pObject)
        {
            DetachTemporary(pTemp);
            delete pTemp;
        }
    }
    MapsOf(this).permanent[h] = pObject;
}

void CHandleMapBase::RemoveHandle(HANDLE h)
{
    if (h == NULL)
        return;
    ThreadMaps& maps = MapsOf(this);
    maps.permanent.erase(h);
    maps.temporary.erase(h);
}

void CHandleMapBase::DeleteTemp()
{
    DeleteTemporaries(this, MapsOf(this).temporary);
}

int CHandleMapBase::GetPermanentCount() const
{
    return (int)MapsOf(this).permanent.size();
}

int CHandleMapBase::GetTemporaryCount() const
{
    return (int)MapsOf(this).temporary.size();
}

} // namespace zoafx

void AFXAPI AfxLockTempMaps()
{
    ++t_state.nTempMapLock;
}

// TRUE when this call brought the thread's lock count to zero.
BOOL AFXAPI AfxUnlockTempMaps(BOOL bDeleteTemps)
{
    if (t_state.nTempMapLock <= 0)
        return FALSE;
    if (--t_state.nTempMapLock > 0)
        return FALSE;
    if (bDeleteTemps)
        for (CHandleMapBase* pMap : LiveSnapshot())
            pMap->DeleteTemp();
    return TRUE;
}
