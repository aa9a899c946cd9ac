#pragma once

#include "CustomChecklistBox.h"

#include <unordered_set>

namespace lists {

// The state records of one check list. What lies in an item's slot is a record only if it is known
// here: a list box that was filled before it became a check list holds its owner's own values.
class CheckRecords
{
public:
    using Record = _KES_CHECKLIST_STATE;

    CheckRecords() = default;
    CheckRecords(const CheckRecords&) = delete;
    CheckRecords& operator=(const CheckRecords&) = delete;
    ~CheckRecords() { Clear(); }

    Record* Make(ULONG_PTR data)
    {
        auto* const record = new Record;
        record->data = data;
        m_records.insert(record);
        return record;
    }
    // The record in a slot, or null.
    Record* Find(ULONG_PTR slot) const
    {
        const auto found = m_records.find(reinterpret_cast<Record*>(slot));
        return found == m_records.end() ? nullptr : *found;
    }
    // What the owner of the list keeps with the item.
    ULONG_PTR DataIn(ULONG_PTR slot) const
    {
        const Record* const record = Find(slot);
        return record == nullptr ? slot : record->data;
    }
    // A pointer that is no record of this list is left alone.
    void Free(Record* record)
    {
        if (m_records.erase(record) != 0)
        {
            delete record;
        }
    }
    void Clear()
    {
        for (Record* const record : m_records)
        {
            delete record;
        }
        m_records.clear();
    }
    size_t Count() const { return m_records.size(); }

private:
    std::unordered_set<Record*> m_records;
};

} // namespace lists
