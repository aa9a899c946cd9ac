#pragma once

// Linked lists of pointers. The list never owns what the pointers lead to.

#include "framework/Collections.h"

#include <list>

// A list of untyped pointers. A POSITION stays good until its own element is removed.
class CPtrList : public CObject
{
public:
    explicit CPtrList(INT_PTR /*blockSize*/ = 10) {}

    INT_PTR GetCount() const { return INT_PTR(m_elements.size()); }
    INT_PTR GetSize() const { return GetCount(); }
    BOOL IsEmpty() const { return m_elements.empty(); }

    // Not for an empty list.
    void*& GetHead() { return Checked().front().value; }
    void* GetHead() const { return Checked().front().value; }
    void*& GetTail() { return Checked().back().value; }
    void* GetTail() const { return Checked().back().value; }
    void* RemoveHead()
    {
        void* const value = GetHead();
        m_elements.pop_front();
        return value;
    }
    void* RemoveTail()
    {
        void* const value = GetTail();
        m_elements.pop_back();
        return value;
    }

    POSITION AddHead(void* value) { return PositionOf(Insert(m_elements.begin(), value)); }
    POSITION AddTail(void* value) { return PositionOf(Insert(m_elements.end(), value)); }
    // Another list's elements in its order; it keeps its own.
    void AddHead(CPtrList* other)
    {
        const Elements copy(other->m_elements);
        for (auto element = copy.rbegin(); element != copy.rend(); ++element)
        {
            AddHead(element->value);
        }
    }
    void AddTail(CPtrList* other)
    {
        const Elements copy(other->m_elements);
        for (const Element& element : copy)
        {
            AddTail(element.value);
        }
    }
    void RemoveAll() { m_elements.clear(); }

    // Walking: the element at the place, which then moves on and is null at the end.
    POSITION GetHeadPosition() const { return PositionOf(m_elements.begin()); }
    POSITION GetTailPosition() const
    {
        return m_elements.empty() ? nullptr : PositionOf(std::prev(m_elements.end()));
    }
    void*& GetNext(POSITION& position) { return Step(position, true).value; }
    void* GetNext(POSITION& position) const { return Step(position, true).value; }
    void*& GetPrev(POSITION& position) { return Step(position, false).value; }
    void* GetPrev(POSITION& position) const { return Step(position, false).value; }

    void*& GetAt(POSITION position) { return At(position)->value; }
    void* GetAt(POSITION position) const { return At(position)->value; }
    void SetAt(POSITION position, void* value) { At(position)->value = value; }
    void RemoveAt(POSITION position) { m_elements.erase(At(position)->self); }
    // A null place means the head or the tail.
    POSITION InsertBefore(POSITION position, void* value)
    {
        return position == nullptr ? AddHead(value) : PositionOf(Insert(At(position)->self, value));
    }
    POSITION InsertAfter(POSITION position, void* value)
    {
        return position == nullptr ? AddTail(value)
                                   : PositionOf(Insert(std::next(At(position)->self), value));
    }

    // The place of the first such pointer from startAfter's successor on, or null.
    POSITION Find(void* value, POSITION startAfter = nullptr) const
    {
        auto element = startAfter == nullptr
                           ? m_elements.begin()
                           : std::next(Elements::const_iterator(At(startAfter)->self));
        while (element != m_elements.end() && element->value != value)
        {
            ++element;
        }
        return PositionOf(element);
    }
    POSITION FindIndex(INT_PTR index) const
    {
        return index < 0 || index >= GetCount() ? nullptr
                                                : PositionOf(std::next(m_elements.begin(), index));
    }

private:
    struct Element;
    using Elements = std::list<Element>;
    struct Element
    {
        void* value;
        typename Elements::iterator self; // a POSITION is the address of its element
    };

    Elements& Checked()
    {
        ASSERT(!m_elements.empty());
        return m_elements;
    }
    const Elements& Checked() const
    {
        ASSERT(!m_elements.empty());
        return m_elements;
    }
    Elements::iterator Insert(Elements::const_iterator before, void* value)
    {
        const auto inserted = m_elements.insert(before, Element{value, {}});
        inserted->self = inserted;
        return inserted;
    }
    static Element* At(POSITION position)
    {
        ASSERT(position != nullptr);
        return reinterpret_cast<Element*>(position);
    }
    POSITION PositionOf(Elements::const_iterator element) const
    {
        return element == m_elements.end()
                   ? nullptr
                   : reinterpret_cast<POSITION>(const_cast<Element*>(&*element));
    }
    Element& Step(POSITION& position, bool forwards) const
    {
        Element& element = *At(position);
        const Elements::const_iterator self = element.self;
        if (forwards)
        {
            position = PositionOf(std::next(self));
        }
        else
        {
            position = self == m_elements.begin() ? nullptr : PositionOf(std::prev(self));
        }
        return element;
    }

    Elements m_elements;
};

// A pointer list, CPtrList as BASE_CLASS, whose elements have the pointer type TYPE.
template <class BASE_CLASS, class TYPE> class CTypedPtrList : public BASE_CLASS
{
public:
    explicit CTypedPtrList(INT_PTR blockSize = 10)
        : BASE_CLASS(blockSize)
    {}

    TYPE& GetHead() { return Typed(BASE_CLASS::GetHead()); }
    TYPE GetHead() const { return TYPE(BASE_CLASS::GetHead()); }
    TYPE& GetTail() { return Typed(BASE_CLASS::GetTail()); }
    TYPE GetTail() const { return TYPE(BASE_CLASS::GetTail()); }
    TYPE RemoveHead() { return TYPE(BASE_CLASS::RemoveHead()); }
    TYPE RemoveTail() { return TYPE(BASE_CLASS::RemoveTail()); }
    POSITION AddHead(TYPE value) { return BASE_CLASS::AddHead(value); }
    POSITION AddTail(TYPE value) { return BASE_CLASS::AddTail(value); }
    void AddHead(CTypedPtrList* other) { BASE_CLASS::AddHead(other); }
    void AddTail(CTypedPtrList* other) { BASE_CLASS::AddTail(other); }
    TYPE& GetNext(POSITION& position) { return Typed(BASE_CLASS::GetNext(position)); }
    TYPE GetNext(POSITION& position) const { return TYPE(BASE_CLASS::GetNext(position)); }
    TYPE& GetPrev(POSITION& position) { return Typed(BASE_CLASS::GetPrev(position)); }
    TYPE GetPrev(POSITION& position) const { return TYPE(BASE_CLASS::GetPrev(position)); }
    TYPE& GetAt(POSITION position) { return Typed(BASE_CLASS::GetAt(position)); }
    TYPE GetAt(POSITION position) const { return TYPE(BASE_CLASS::GetAt(position)); }
    void SetAt(POSITION position, TYPE value) { BASE_CLASS::SetAt(position, value); }

private:
    static TYPE& Typed(void*& value) { return reinterpret_cast<TYPE&>(value); }
};
