#pragma once

#include "CustomToolbarCloseRule.h"
#include "OnBoardUIExport.h"

#include <afxext.h>

#include <string>
#include <vector>

// A tool bar whose buttons the host can put into the order that it keeps in its settings.
class ONBOARDUI_API CustomToolbar : public CToolBar
{
    DECLARE_DYNAMIC(CustomToolbar)

public:
    // Which fly-outs a tool bar closes; the values are the host's.
    using CLOSERULE = CUSTOMTOOLBAR_CLOSERULE;

    // Orders the buttons as far as it goes: order lists their command ids from left to right.
    // Appends one message for each way in which order and tool bar do not fit together; true when
    // there is none. Buttons that order does not know end up after the others, as they follow one
    // another now.
    //
    // Buttons change places by their command id and picture alone; style, state and text stay with
    // the place. A hidden place stays hidden and a separator's place stays a separator, whatever
    // comes there, and the host's command updates give the commands their states again. Of several
    // buttons with one id the first is meant, each time anew.
    virtual bool OrderBtns(const std::vector<unsigned int>& order,
                           std::vector<std::string>& messages);
};
