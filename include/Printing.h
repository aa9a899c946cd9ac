#pragma once

#include <afxwin.h>

#include "OnBoardUIExport.h"
#include "ProviderBase.h"

struct CPrintInfo;

// The host's printing service. The library only passes it on and never calls its two own
// operations; a host that offers the service supplies both.
class ONBOARDUI_API IPrinting : public IProviderBase
{
public:
    ~IPrinting() override;

    // @{
    // Around the pages of one job.
    virtual void BeginPrinting(CDC* dc, CPrintInfo* info) = 0;
    virtual void EndPrinting(CDC* dc, CPrintInfo* info) = 0;
    // @}
};
