#pragma once

#include "CustomCheckBox.h"
#include "CustomPushbutton.h"
#include "CustomRadiobutton.h"
#include "support/Canvas.h"
#include "support/OnBoard.h"
#include "support/WindowTest.h"

// A button that lets a test see its state and notes the steps of its clicks.
template <class Base> class Traced : public Base
{
public:
    using Base::DrawRCText;
    using Base::m_check;
    using Base::m_focused;
    using Base::m_mouseDown;
    using Base::m_pressed;
    using Base::m_tracking;

    std::vector<std::string> steps;

    void HandleBMClick() override
    {
        steps.push_back(::GetCapture() == this->m_hWnd ? "click, captured" : "click");
        Base::HandleBMClick();
    }
    void HandleGroupClick() override
    {
        steps.push_back(::GetCapture() == nullptr ? "group, free" : "group");
        Base::HandleGroupClick();
    }

    // What it draws, for the size of its client area.
    Pixels Drawn()
    {
        const CRect client = ClientRectOf(*this);
        Canvas canvas(client.Width(), client.Height());
        this->DrawOB(canvas.DC());
        return canvas.Picture();
    }

    CPoint Middle() const { return ClientPoint(*this, ClientRectOf(*this).CenterPoint()); }
};

using TestCheckBox = Traced<CCustomCheckBox>;
using TestRadio = Traced<CCustomRadiobutton>;
using TestPush = Traced<CCustomPushbutton>;

// The smallest rectangle round all pixels of a colour.
inline CRect Extent(const Pixels& pixels, COLORREF color, const CRect& within)
{
    CRect extent;
    for (int y = within.top; y < within.bottom; ++y)
    {
        for (int x = within.left; x < within.right; ++x)
        {
            if (pixels.At(x, y) == color)
            {
                extent.UnionRect(CRect(extent), CRect(x, y, x + 1, y + 1));
            }
        }
    }
    return extent;
}

constexpr int ButtonId = 77;
const CRect ButtonPlace(20, 20, 240, 44);

using ButtonOnBoard = OnBoard<WindowTest>;
