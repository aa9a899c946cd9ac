#pragma once

// Guards that put a device context back as it was found, or give it back. Nothing is restored by
// hand.

#include <afxwin.h>

// Selects a pen, brush, font or bitmap for the life of the guard. Owns neither; the context and the
// object have to outlive it. A null object leaves the selection alone.
class Selected
{
public:
    Selected(CDC& dc, HGDIOBJ object)
        : m_dc(dc.GetSafeHdc())
        , m_old(object != nullptr ? ::SelectObject(m_dc, object) : nullptr)
    {}

    Selected(CDC& dc, const CGdiObject& object)
        : Selected(dc, object.GetSafeHandle())
    {}

    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

    ~Selected()
    {
        if (m_old != nullptr)
        {
            ::SelectObject(m_dc, m_old);
        }
    }

private:
    HDC m_dc;
    HGDIOBJ m_old;
};

// What a setter of the context sets, for the life of the guard.
template <auto Set, class Value> class Setting
{
public:
    Setting(CDC& dc, Value value)
        : m_dc(dc)
        , m_old((dc.*Set)(value))
    {}

    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;
    ~Setting() { (m_dc.*Set)(m_old); }

private:
    CDC& m_dc;
    Value m_old;
};

using TextColor = Setting<&CDC::SetTextColor, COLORREF>;
using BackgroundColor = Setting<&CDC::SetBkColor, COLORREF>;
using BackgroundMode = Setting<&CDC::SetBkMode, int>; // TRANSPARENT or OPAQUE

// All that is selected, set and clipped, for the life of the guard. The window of the context may
// go meanwhile.
class SavedState
{
public:
    explicit SavedState(CDC& dc)
        : m_dc(dc.GetSafeHdc())
        , m_saved(::SaveDC(m_dc))
    {}

    SavedState(const SavedState&) = delete;
    SavedState& operator=(const SavedState&) = delete;
    ~SavedState() { ::RestoreDC(m_dc, m_saved); }

private:
    HDC m_dc;
    int m_saved;
};

// A window's own device context where there may be none to be had, which is no error: then it is
// false, and nothing is drawn. The window may go meanwhile.
class OwnContext : public CDC
{
public:
    enum Area
    {
        Client,
        Whole
    };

    OwnContext(HWND window, Area area)
        : m_window(window)
    {
        if (const HDC context = area == Whole ? ::GetWindowDC(window) : ::GetDC(window))
        {
            Attach(context);
        }
    }

    OwnContext(const OwnContext&) = delete;
    OwnContext& operator=(const OwnContext&) = delete;

    ~OwnContext() override
    {
        if (*this)
        {
            ::ReleaseDC(m_window, Detach());
        }
    }

    explicit operator bool() const { return GetSafeHdc() != nullptr; }

private:
    HWND m_window;
};
