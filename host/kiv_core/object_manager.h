// The host's object registry: objects by backslash-separated path ("terminal\quote\panel1").
// The registry does not own the objects, nor hold references: an object unregisters itself
// before it goes away. Paths are case-sensitive.
#pragma once
#include "kiv_core/kiv_core_api.h"
#include "kiv_core/kiv_object.h"
#include <map>
#include <mutex>
#include <string>

namespace obj_system {

class KIV_CORE_API ObjectManager {
public:
    static ObjectManager* GetInstance();

    ObjectManager(const ObjectManager&) = delete;
    ObjectManager& operator=(const ObjectManager&) = delete;

    // Registers object at path. Fails (false) for a null object or path, a path that is empty,
    // starts or ends with a backslash or holds two in a row, a path already taken, or an object
    // already registered.
    bool Register(const char* path, IKivObject* object);
    // Removes object from the registry; false when it was not registered.
    bool Unregister(IKivObject* object);
    // The object's path; "" when it is not registered.
    std::string GetPathByIns(IKivObject* object) const;
    // The object at path; null when none is (or path is null).
    IKivObject* GetInsByPath(const char* path) const;

private:
    ObjectManager() = default;

    mutable std::mutex m_lock;
    std::map<std::string, IKivObject*> m_byPath;
    std::map<IKivObject*, std::string> m_byObject;
};

}  // namespace obj_system
