#pragma once

#include "paint/GdiGuards.h"

#include <optional>

// What a control paints on: its window, in answer to WM_PAINT, or the context that somebody else
// gives it in WM_PRINTCLIENT, whose handler paints as for the other. It may end as that begins.
class PaintContext
{
public:
    explicit PaintContext(CWnd& window)
    {
        const MSG message = *CWnd::GetCurrentMessage();
        if (message.message == WM_PRINTCLIENT && message.hwnd == window.m_hWnd)
        {
            m_dc = CDC::FromHandle(reinterpret_cast<HDC>(message.wParam));
            if (m_dc == nullptr)
            {
                m_none.CreateCompatibleDC(nullptr); // its pixel takes what is drawn for nobody
                m_dc = &m_none;
            }
            m_given.emplace(*m_dc);
            window.GetClientRect(&m_area);
        }
        else
        {
            m_dc = &m_window.emplace(&window);
            m_area = m_window->m_ps.rcPaint;
        }
    }

    CDC& DC() { return *m_dc; }
    operator CDC&() { return DC(); }
    // All that has to be painted.
    const CRect& Area() const { return m_area; }

private:
    CDC m_none;
    std::optional<CPaintDC> m_window;
    CDC* m_dc;
    std::optional<SavedState> m_given;
    CRect m_area;
};
