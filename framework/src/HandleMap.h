#pragma once

// Which object stands for a platform handle, per thread. Permanent entries belong to objects that
// own or attached their handle; temporary ones are made for handles that nobody wrapped, own
// nothing and are dropped when the thread is idle.

#include <memory>
#include <unordered_map>
#include <vector>

namespace framework {

template <class Handle, class Object> class HandleMap
{
public:
    Object* FindPermanent(Handle handle) const
    {
        const auto found = m_permanent.find(handle);
        return found == m_permanent.end() ? nullptr : found->second;
    }

    // Permanent object, else the temporary one, made by make(handle) when there is none yet.
    template <class Make> Object* Find(Handle handle, Make make)
    {
        if (handle == nullptr)
        {
            return nullptr;
        }
        if (Object* permanent = FindPermanent(handle))
        {
            return permanent;
        }
        std::unique_ptr<Object>& entry = m_temporary[handle];
        if (entry == nullptr)
        {
            entry = make(handle);
        }
        return entry.get();
    }

    void SetPermanent(Handle handle, Object* object) { m_permanent[handle] = object; }

    // The entry goes only if it still speaks of this object: a handle value may have been reused.
    void Remove(Handle handle, const Object* object)
    {
        const auto found = m_permanent.find(handle);
        if (found != m_permanent.end() && found->second == object)
        {
            m_permanent.erase(found);
        }
    }

    // Drops the temporaries; release(object) takes the handle away from each before it is deleted.
    template <class Release> void DeleteTemporaries(Release release)
    {
        auto dropped = std::move(m_temporary);
        m_temporary.clear();
        for (auto& entry : dropped)
        {
            release(*entry.second);
        }
    }

private:
    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, std::unique_ptr<Object>> m_temporary;
};

} // namespace framework
