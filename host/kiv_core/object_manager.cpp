#include "kiv_core/object_manager.h"

namespace obj_system {

namespace {

// Non-empty, no backslash at either end, no empty segment.
bool IsWellFormed(const std::string& path)
{
    return !path.empty() && path.front() != '\\' && path.back() != '\\' &&
           path.find("\\\\") == std::string::npos;
}

}  // namespace

ObjectManager* ObjectManager::GetInstance()
{
    static ObjectManager instance;
    return &instance;
}

bool ObjectManager::Register(const char* path, IKivObject* object)
{
    if (path == nullptr || object == nullptr || !IsWellFormed(path)) return false;
    std::lock_guard<std::mutex> hold(m_lock);
    if (m_byPath.count(path) != 0 || m_byObject.count(object) != 0) return false;
    m_byPath[path] = object;
    m_byObject[object] = path;
    return true;
}

bool ObjectManager::Unregister(IKivObject* object)
{
    std::lock_guard<std::mutex> hold(m_lock);
    auto found = m_byObject.find(object);
    if (found == m_byObject.end()) return false;
    m_byPath.erase(found->second);
    m_byObject.erase(found);
    return true;
}

std::string ObjectManager::GetPathByIns(IKivObject* object) const
{
    std::lock_guard<std::mutex> hold(m_lock);
    auto found = m_byObject.find(object);
    return found == m_byObject.end() ? std::string() : found->second;
}

IKivObject* ObjectManager::GetInsByPath(const char* path) const
{
    if (path == nullptr) return nullptr;
    std::lock_guard<std::mutex> hold(m_lock);
    auto found = m_byPath.find(path);
    return found == m_byPath.end() ? nullptr : found->second;
}

}  // namespace obj_system
