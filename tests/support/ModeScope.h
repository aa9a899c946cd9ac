#pragma once

#include "OnBoardUIGeneral.h"

// Sets the display mode and puts it back.
class ModeScope
{
public:
    explicit ModeScope(APPMODE mode)
        : m_before(COnBoardUIGeneral::GetAppMode())
    {
        COnBoardUIGeneral::SetAppMode(mode);
    }
    ModeScope(const ModeScope&) = delete;
    ModeScope& operator=(const ModeScope&) = delete;
    ~ModeScope() { COnBoardUIGeneral::SetAppMode(m_before); }

private:
    APPMODE m_before;
};
