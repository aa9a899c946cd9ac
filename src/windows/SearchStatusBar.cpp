#include "SearchStatusBar.h"

#include "modes/WindowAlive.h"

IMPLEMENT_DYNAMIC(CSearchStatusBar, CCustomStatusBar)

BEGIN_MESSAGE_MAP(CSearchStatusBar, CCustomStatusBar)
    ON_WM_DESTROY()
    ON_WM_ERASEBKGND()
    ON_WM_TIMER()
END_MESSAGE_MAP()

namespace {

constexpr const char* Searching = "Searching.";
constexpr const char* Loading = "Loading Results.";

} // namespace

CSearchStatusBar::CSearchStatusBar()
{
    CString dots;
    for (int frame = 0; frame < FrameCount; ++frame)
    {
        dots += " .";
        m_searchFrames[frame] = Searching + dots;
        m_loadingFrames[frame] = Loading + dots;
    }
}

CSearchStatusBar::~CSearchStatusBar() = default;

// The timer of a window that the object has left is none of the next one's. One that was let go
// with it has it still, and nobody could stop it.
void CSearchStatusBar::PreSubclassWindow()
{
    m_activeTimer = -1;
    KillTimer(m_searchTimer);
    KillTimer(m_loadingTimer);
    CCustomStatusBar::PreSubclassWindow();
}

void CSearchStatusBar::StartSearchProgress()
{
    if (m_activeTimer != -1 || GetSafeHwnd() == nullptr)
    {
        return;
    }
    const WindowAlive alive(*this);
    SetText(Searching, 0, 0);
    if (alive)
    {
        Invalidate(FALSE);
        StartTimer(m_searchTimer);
    }
}

void CSearchStatusBar::StartLoadingProgress()
{
    if (m_activeTimer != -1 || GetSafeHwnd() == nullptr)
    {
        return;
    }
    const WindowAlive alive(*this);
    SetText(Loading, 0, 0);
    if (alive)
    {
        Invalidate();
        UpdateWindow();
    }
    if (alive)
    {
        StartTimer(m_loadingTimer);
    }
}

// Unless showing the text has started one.
void CSearchStatusBar::StartTimer(UINT id)
{
    if (m_activeTimer == -1 && SetTimer(id, m_period, nullptr) != 0)
    {
        m_activeTimer = int(id);
    }
}

void CSearchStatusBar::StopSearchProgress()
{
    if (m_activeTimer != -1)
    {
        KillTimer(UINT_PTR(m_activeTimer));
        m_activeTimer = -1;
    }
}

void CSearchStatusBar::StopLoadingProgress()
{
    StopSearchProgress();
}

// Meant: the timer of loading shows nothing, its text stands.
void CSearchStatusBar::OnTimer(UINT_PTR id)
{
    if (id != m_searchTimer)
    {
        return;
    }
    const WindowAlive alive(*this);
    SetText(m_searchFrames[m_frame], 0, 0);
    if (alive)
    {
        Invalidate();
        UpdateWindow();
    }
    if (alive)
    {
        m_frame = (m_frame + 1) % FrameCount;
    }
}

// The text is replaced once a second: erasing would flicker.
BOOL CSearchStatusBar::OnEraseBkgnd(CDC*)
{
    return FALSE;
}

void CSearchStatusBar::OnDestroy()
{
    StopSearchProgress();
    CCustomStatusBar::OnDestroy();
}
