#pragma once

// Which object stands for a platform handle, per thread. Permanent entries belong to objects that
// own or attached their handle; temporary ones are made for handles that nobody wrapped, own
// nothing and are dropped when the thread is idle. A modal loop that is idle drops those that were
// found in it: whoever called it still uses his own.

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <vector>

namespace framework {

// How many modal loops of the framework the calling thread is in.
int ModalDepth();

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
        const int depth = ModalDepth();
        Temporary& entry = m_temporary[handle];
        if (entry.object == nullptr)
        {
            entry = {make(handle), depth};
        }
        entry.depth = std::min(entry.depth, depth);
        return entry.object.get();
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

    // Drops the temporaries that were not found outside so many modal loops; release(object) takes
    // the handle away from each before it is deleted.
    template <class Release> void DeleteTemporaries(Release release, int depth = ModalDepth())
    {
        std::vector<std::unique_ptr<Object>> dropped;
        for (auto entry = m_temporary.begin(); entry != m_temporary.end();)
        {
            if (entry->second.depth < depth)
            {
                ++entry;
                continue;
            }
            dropped.push_back(std::move(entry->second.object));
            entry = m_temporary.erase(entry);
        }
        for (const auto& object : dropped)
        {
            release(*object);
        }
    }

private:
    struct Temporary
    {
        std::unique_ptr<Object> object;
        int depth = 0; // the least at which it was found
    };

    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, Temporary> m_temporary;
};

} // namespace framework
