#include "YAUL.h"

#include <cstddef>

int KArray::GetCount() const
{
    return static_cast<int>(m_items.size());
}

int KArray::Add(void* item)
{
    m_items.push_back(item);
    return GetCount() - 1;
}

void* KArray::GetAt(int index) const
{
    return IsIndex(index) ? m_items[static_cast<std::size_t>(index)] : nullptr;
}

bool KArray::SetAt(int index, void* item)
{
    if (!IsIndex(index))
    {
        return false;
    }
    m_items[static_cast<std::size_t>(index)] = item;
    return true;
}

bool KArray::RemoveAt(int index)
{
    if (!IsIndex(index))
    {
        return false;
    }
    m_items.erase(m_items.begin() + index);
    return true;
}

void KArray::RemoveAll()
{
    m_items.clear();
}

bool KArray::IsIndex(int index) const
{
    return index >= 0 && index < GetCount();
}
