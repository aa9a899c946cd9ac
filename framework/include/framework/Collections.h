#pragma once

// Arrays and maps. Indices out of bounds are mistakes of the caller and asserted.

#include "framework/Object.h"
#include "framework/String.h"

#include <functional>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <vector>

// A place in a collection; null at its end.
struct __POSITION;
using POSITION = __POSITION*;

template <class TYPE, class ARG_TYPE = const TYPE&> class CArray : public CObject
{
    static_assert(!std::is_same_v<TYPE, bool>, "elements need an address; use BOOL");

public:
    INT_PTR GetSize() const { return INT_PTR(m_elements.size()); }
    INT_PTR GetCount() const { return GetSize(); }
    INT_PTR GetUpperBound() const { return GetSize() - 1; }
    BOOL IsEmpty() const { return m_elements.empty(); }
    // New elements are zero or default constructed. growBy is a hint of how many more will come.
    void SetSize(INT_PTR size, INT_PTR growBy = -1)
    {
        ASSERT(size >= 0);
        if (growBy > 0)
        {
            m_elements.reserve(size_t(size + growBy));
        }
        m_elements.resize(size_t(size));
    }
    void FreeExtra() { m_elements.shrink_to_fit(); }
    void RemoveAll() { m_elements.clear(); }

    const TYPE& GetAt(INT_PTR index) const { return m_elements[Checked(index)]; }
    TYPE& GetAt(INT_PTR index) { return m_elements[Checked(index)]; }
    TYPE& ElementAt(INT_PTR index) { return m_elements[Checked(index)]; }
    const TYPE& ElementAt(INT_PTR index) const { return m_elements[Checked(index)]; }
    TYPE& operator[](INT_PTR index) { return m_elements[Checked(index)]; }
    const TYPE& operator[](INT_PTR index) const { return m_elements[Checked(index)]; }
    void SetAt(INT_PTR index, ARG_TYPE element) { m_elements[Checked(index)] = element; }
    TYPE* GetData() { return m_elements.data(); }
    const TYPE* GetData() const { return m_elements.data(); }

    // Insertions at or behind the end grow the array as far as needed.
    void SetAtGrow(INT_PTR index, ARG_TYPE element)
    {
        TYPE copy(element); // may be an element itself, and growing moves those
        if (index >= GetSize())
        {
            SetSize(index + 1);
        }
        m_elements[Checked(index)] = std::move(copy);
    }
    INT_PTR Add(ARG_TYPE element)
    {
        m_elements.push_back(element);
        return GetUpperBound();
    }
    // Returns the index of the first appended element.
    INT_PTR Append(const CArray& source)
    {
        const INT_PTR first = GetSize();
        const std::vector<TYPE> copy(source.m_elements);
        m_elements.insert(m_elements.end(), copy.begin(), copy.end());
        return first;
    }
    void Copy(const CArray& source) { m_elements = source.m_elements; }
    void InsertAt(INT_PTR index, ARG_TYPE element, INT_PTR count = 1)
    {
        ASSERT(index >= 0 && count >= 0);
        const TYPE copy(element);
        if (index > GetSize())
        {
            SetSize(index);
        }
        m_elements.insert(m_elements.begin() + index, size_t(count), copy);
    }
    void InsertAt(INT_PTR index, CArray* source)
    {
        ASSERT(index >= 0 && source != this);
        if (index > GetSize() && !source->IsEmpty())
        {
            SetSize(index);
        }
        m_elements.insert(m_elements.begin() + (source->IsEmpty() ? 0 : index),
                          source->m_elements.begin(), source->m_elements.end());
    }
    void RemoveAt(INT_PTR index, INT_PTR count = 1)
    {
        ASSERT(index >= 0 && count >= 0 && index + count <= GetSize());
        m_elements.erase(m_elements.begin() + index, m_elements.begin() + index + count);
    }

private:
    size_t Checked(INT_PTR index) const
    {
        ASSERT(index >= 0 && index < GetSize());
        return size_t(index);
    }

    std::vector<TYPE> m_elements;
};

class CPtrArray : public CArray<void*, void*>
{};
class CStringArray : public CArray<CString, const CString&>
{};
class CUIntArray : public CArray<UINT, UINT>
{};
class CDWordArray : public CArray<DWORD, DWORD>
{};
class CByteArray : public CArray<BYTE, BYTE>
{};

// The hash of a key; to be specialised for keys that are neither text nor known to std::hash.
template <class ARG_KEY> UINT HashKey(ARG_KEY key)
{
    if constexpr (std::is_convertible_v<ARG_KEY, LPCTSTR>)
    {
        return UINT(std::hash<std::string_view>()(LPCTSTR(key)));
    }
    else
    {
        return UINT(std::hash<std::decay_t<ARG_KEY>>()(key));
    }
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE> class CMap : public CObject
{
public:
    explicit CMap(INT_PTR /*blockSize*/ = 10) {}

    INT_PTR GetCount() const { return INT_PTR(m_values.size()); }
    INT_PTR GetSize() const { return GetCount(); }
    BOOL IsEmpty() const { return m_values.empty(); }
    UINT GetHashTableSize() const { return UINT(m_values.bucket_count()); }
    void InitHashTable(UINT size, BOOL /*allocateNow*/ = TRUE) { m_values.rehash(size); }

    BOOL Lookup(ARG_KEY key, VALUE& value) const
    {
        const auto found = m_values.find(key);
        if (found == m_values.end())
        {
            return FALSE;
        }
        value = found->second;
        return TRUE;
    }
    // A key that is new gets an empty value.
    VALUE& operator[](ARG_KEY key) { return m_values[key]; }
    void SetAt(ARG_KEY key, ARG_VALUE value) { m_values[key] = value; }
    BOOL RemoveKey(ARG_KEY key) { return m_values.erase(key) != 0; }
    void RemoveAll() { m_values.clear(); }

    // The order is not defined. What was given out already may be removed on the way.
    POSITION GetStartPosition() const { return PositionOf(m_values.begin()); }
    void GetNextAssoc(POSITION& position, KEY& key, VALUE& value) const
    {
        ASSERT(position != nullptr);
        auto found = m_values.find(*reinterpret_cast<const KEY*>(position));
        ASSERT(found != m_values.end());
        key = found->first;
        value = found->second;
        position = PositionOf(++found);
    }

private:
    struct Hash
    {
        size_t operator()(const KEY& key) const { return HashKey<ARG_KEY>(key); }
    };
    using Values = std::unordered_map<KEY, VALUE, Hash>;

    // The address of the key, which stays where it is.
    POSITION PositionOf(typename Values::const_iterator found) const
    {
        return found == m_values.end()
                   ? nullptr
                   : reinterpret_cast<POSITION>(const_cast<KEY*>(&found->first));
    }

    Values m_values;
};
