#include "framework/ControlBar.h"

#include "framework/CommonControls.h"

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_WM_NCCALCSIZE()
END_MESSAGE_MAP()

CSize CControlBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    constexpr int most = 0x7FFF;
    return CSize(stretch && horizontal ? most : 0, stretch && !horizontal ? most : 0);
}

// The controls behind the bars would place themselves along their parent's edges: that is the
// frame's business here.
BOOL CControlBar::CreateBar(LPCSTR className, CWnd* parent, DWORD controlStyle, DWORD style,
                            UINT id)
{
    SetBarStyle(style);
    const DWORD placedByFrame = CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER;
    return framework::UseCommonControls() &&
           CWnd::CreateEx(0, className, nullptr, (style & ~CBRS_ALL) | controlStyle | placedByFrame,
                          CRect(0, 0, 0, 0), parent, id);
}

void CControlBar::PostNcDestroy()
{
    if (m_bAutoDelete)
    {
        delete this;
    }
}

void CControlBar::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS* params)
{
    Default();
    if (params != nullptr)
    {
        CRect client(params->rgrc[0]);
        client.DeflateRect(m_borders);
        params->rgrc[0] = client;
    }
}
