#pragma once

#include "SupportExport.h"

#include <vector>

class AbsTime;
class CharStr;

// Array of untyped pointers. It never owns what they point to; null is an entry like any other.
class SUPPORT_API KArray
{
public:
    int GetCount() const;

    // Appends and returns the new entry's index.
    int Add(void* item);

    // Null outside the array.
    void* GetAt(int index) const;

    // Both return false, and change nothing, outside the array. Removing closes the gap.
    bool SetAt(int index, void* item);
    bool RemoveAt(int index);

    void RemoveAll();

private:
    bool IsIndex(int index) const;

    std::vector<void*> m_items;
};

// The host's interfaces name the same array this way.
using PtrArray = KArray;
