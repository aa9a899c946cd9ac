#pragma once

#include "OnBoardUI.h"
#include "OnBoardUIGeneral.h"

// Sets the display mode, with the system colours if wished, and puts both back.
class ModeScope
{
public:
    enum Colors
    {
        KeepColors,
        SetColors,
    };

    explicit ModeScope(APPMODE mode, Colors colors = KeepColors)
        : m_before(COnBoardUIGeneral::GetAppMode())
        , m_colors(colors)
    {
        COnBoardUIGeneral::SetAppMode(mode);
        if (m_colors == SetColors)
        {
            OnBoardSetSysColors(mode);
        }
    }

    ModeScope(const ModeScope&) = delete;
    ModeScope& operator=(const ModeScope&) = delete;

    ~ModeScope()
    {
        COnBoardUIGeneral::SetAppMode(m_before);
        if (m_colors == SetColors)
        {
            OnBoardSetSysColors(m_before);
        }
    }

private:
    APPMODE m_before;
    Colors m_colors;
};
