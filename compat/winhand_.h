// MFC's handle maps behind FromHandle: a handle answers the permanent object attached to it, or
// else a temporary wrapper that never frees the handle. MFC deletes temporaries when its message
// loop is idle; a library has no loop of its own, so here a temporary goes once its handle is
// no longer valid, swept whenever the number of temporaries has doubled. The maps are shared by
// all threads behind one lock, and they are never destroyed: objects owned by statics detach
// themselves at exit, after function-local statics created later are gone.
#pragma once
#include <windows.h>
#include <map>
#include <mutex>

template <class T, class H> class CHandleMap {
public:
    using SetHandleFn = void (*)(T& wrapper, H handle);
    using IsValidFn = bool (*)(H handle);

    CHandleMap(SetHandleFn setHandle, IsValidFn isValid) : m_setHandle(setHandle), m_isValid(isValid) {}
    CHandleMap(const CHandleMap&) = delete;
    CHandleMap& operator=(const CHandleMap&) = delete;

    T* FromHandle(H h)
    {
        if (h == nullptr) return nullptr;
        std::lock_guard<std::mutex> lock(m_mutex);
        auto permanent = m_permanent.find(h);
        if (permanent != m_permanent.end()) return permanent->second;
        auto temporary = m_temporary.find(h);
        if (temporary != m_temporary.end()) return temporary->second;
        if (m_temporary.size() >= m_sweepAt) SweepInvalid();
        T* wrapper = new T;
        m_setHandle(*wrapper, h);
        m_temporary.emplace(h, wrapper);
        return wrapper;
    }
    T* LookupPermanent(H h)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        auto found = m_permanent.find(h);
        return found == m_permanent.end() ? nullptr : found->second;
    }
    void SetPermanent(H h, T* object)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_permanent[h] = object;
    }
    void RemoveHandle(H h)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_permanent.erase(h);
    }

private:
    static const size_t kFirstSweep = 256;

    void SweepInvalid()
    {
        for (auto it = m_temporary.begin(); it != m_temporary.end();) {
            if (m_isValid(it->first)) {
                ++it;
                continue;
            }
            m_setHandle(*it->second, nullptr);  // so its destructor frees nothing
            delete it->second;
            it = m_temporary.erase(it);
        }
        m_sweepAt = 2 * m_temporary.size() < kFirstSweep ? kFirstSweep : 2 * m_temporary.size();
    }

    SetHandleFn m_setHandle;
    IsValidFn m_isValid;
    std::mutex m_mutex;
    std::map<H, T*> m_permanent;
    std::map<H, T*> m_temporary;
    size_t m_sweepAt = kFirstSweep;
};
