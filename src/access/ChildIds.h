#pragma once

// The selected rows of a list, as an assistive program goes through them.

#include <afxwin.h>

#include <algorithm>
#include <new>
#include <utility>
#include <vector>

namespace access {

class ChildIds final : public IEnumVARIANT
{
public:
    // With one reference, the caller's.
    explicit ChildIds(std::vector<long> ids, size_t next = 0)
        : m_ids(std::move(ids))
        , m_next(next)
    {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override
    {
        if (object == nullptr)
        {
            return E_POINTER;
        }
        const bool known = wanted == IID_IUnknown || wanted == IID_IEnumVARIANT;
        *object = known ? static_cast<IEnumVARIANT*>(this) : nullptr;
        if (!known)
        {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ULONG(::InterlockedIncrement(&m_count)); }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const LONG left = ::InterlockedDecrement(&m_count);
        if (left == 0)
        {
            delete this;
        }
        return ULONG(left);
    }

    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT* ids, ULONG* given) override
    {
        if (ids == nullptr || (given == nullptr && wanted > 1))
        {
            return E_POINTER;
        }
        ULONG copied = 0;
        for (; copied < wanted && m_next < m_ids.size(); ++copied)
        {
            ids[copied].vt = VT_I4;
            ids[copied].lVal = m_ids[m_next++];
        }
        if (given != nullptr)
        {
            *given = copied;
        }
        return copied == wanted ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override
    {
        const size_t left = m_ids.size() - m_next;
        m_next += std::min(size_t{count}, left);
        return count <= left ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() override
    {
        m_next = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** clone) override
    {
        if (clone == nullptr)
        {
            return E_POINTER;
        }
        try
        {
            *clone = new ChildIds(m_ids, m_next);
        } catch (const std::bad_alloc&)
        {
            *clone = nullptr; // whoever asks may be another program
        }
        return *clone == nullptr ? E_OUTOFMEMORY : S_OK;
    }

private:
    ~ChildIds() = default;

    std::vector<long> m_ids;
    size_t m_next;
    LONG m_count = 1;
};

} // namespace access
