#include "framework/ControlBar.h"

#include "StillThere.h"
#include "framework/CommonControls.h"
#include "framework/Frame.h"

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_WM_NCCALCSIZE()
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
    ON_NOTIFY_EX(TTN_GETDISPINFOA, 0, &CControlBar::OnToolTipText)
    ON_NOTIFY_EX(TTN_GETDISPINFOW, 0, &CControlBar::OnToolTipText)
END_MESSAGE_MAP()

CSize CControlBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    constexpr int most = 0x7FFF;
    return CSize(stretch && horizontal ? most : 0, stretch && !horizontal ? most : 0);
}

void CControlBar::SetBarStyle(DWORD style)
{
    const DWORD before = m_dwStyle;
    m_dwStyle = style & CBRS_ALL;
    if (m_hWnd != nullptr && m_dwStyle != before)
    {
        ApplyBarStyle();
    }
}

// The controls behind the bars would place themselves along their parent's edges: that is the
// frame's business here.
BOOL CControlBar::CreateBar(LPCSTR className, CWnd* parent, DWORD controlStyle, DWORD style,
                            UINT id)
{
    if (m_hWnd != nullptr)
    {
        return FALSE;
    }
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
    CRect client(params->rgrc[0]);
    client.DeflateRect(m_borders);
    params->rgrc[0] = client;
}

namespace {

// Whether a tip has its text: it comes with an empty one.
template <class Char> bool HasText(const Char* text)
{
    return text != nullptr && (IS_INTRESOURCE(text) || *text != 0);
}

// The second line of the string of a command, or of a control that is a tool by itself.
CString TipOf(const NMHDR& header, UINT flags)
{
    const UINT_PTR id = (flags & TTF_IDISHWND) != 0
                            ? UINT_PTR(::GetDlgCtrlID(reinterpret_cast<HWND>(header.idFrom)))
                            : header.idFrom;
    CString text;
    CString tip;
    if (id != 0 && id <= 0xFFFF && text.LoadString(UINT(id)))
    {
        AfxExtractSubString(tip, text, 1);
    }
    return tip;
}

} // namespace

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM)
{
    CFrameWnd* const frame = GetParentFrame();
    if (frame != nullptr && IsWindowVisible())
    {
        OnUpdateCmdUI(frame, BOOL(wParam));
    }
    return 0;
}

BOOL CControlBar::OnToolTipText(UINT, NMHDR* header, LRESULT* result)
{
    const framework::StillThere here(*this);
    *result = Default(); // the control asks the bar's parent
    if (!here || (m_dwStyle & CBRS_TOOLTIPS) == 0)
    {
        return TRUE;
    }
    if (header->code == TTN_GETDISPINFOA)
    {
        auto& info = *reinterpret_cast<NMTTDISPINFOA*>(header);
        if (!HasText(info.lpszText))
        {
            m_tip = TipOf(*header, info.uFlags);
            info.lpszText = m_tip.GetBuffer();
        }
        return TRUE;
    }
    auto& info = *reinterpret_cast<NMTTDISPINFOW*>(header);
    if (!HasText(info.lpszText))
    {
        const CString tip = TipOf(*header, info.uFlags);
        m_wideTip.resize(size_t(tip.GetLength())); // no more wide characters than narrow ones
        m_wideTip.resize(size_t(::MultiByteToWideChar(CP_ACP, 0, tip, tip.GetLength(),
                                                      m_wideTip.data(), tip.GetLength())));
        info.lpszText = m_wideTip.data();
    }
    return TRUE;
}
