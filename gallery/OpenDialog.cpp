#include "OpenDialog.h"

#include "Look.h"
#include "WindowMoves.h"

#include <OnBoardUIGeneral.h>

#include <algorithm>
#include <cmath>

namespace {

// How the library scales a window's children on leaving the standard mode.
constexpr double Down = 1.7;
constexpr double Across = Down * 1.32;

std::vector<OpenDialog*>& All()
{
    static std::vector<OpenDialog*> dialogs;
    return dialogs;
}

// The library cuts fractions off, so the next whole number is what it started from.
int Standard(int inMode, double scale)
{
    return look::Dark() ? int(std::ceil(inMode / scale)) : inMode;
}

} // namespace

int AcrossInMode(int standard)
{
    return look::Dark() ? int(standard * Across) : standard;
}

int DownInMode(int standard)
{
    return look::Dark() ? int(standard * Down) : standard;
}

CRect RectInMode(const CRect& standard)
{
    return CRect(CPoint(AcrossInMode(standard.left), DownInMode(standard.top)),
                 CSize(AcrossInMode(standard.Width()), DownInMode(standard.Height())));
}

CRect StandardRect(const CRect& inMode)
{
    return CRect(CPoint(Standard(inMode.left, Across), Standard(inMode.top, Down)),
                 CSize(Standard(inMode.Width(), Across), Standard(inMode.Height(), Down)));
}

CRect PlaceInParent(HWND child)
{
    CRect place;
    ::GetWindowRect(child, &place);
    ::MapWindowPoints(nullptr, ::GetParent(child), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void ResizeClient(CWnd& window, CSize client)
{
    // Once, so that the frame is the mode's; then its thickness is known.
    window.SetWindowPos(nullptr, 0, 0, 0, 0,
                        SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    CRect whole;
    window.GetWindowRect(&whole);
    CRect inside;
    window.GetClientRect(&inside);
    const CSize size = whole.Size() - inside.Size() + client;
    window.SetWindowPos(nullptr, 0, 0, size.cx, size.cy,
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void PlaceOverOwner(CWnd& dialog, int offset)
{
    dialog.CenterWindow();
    CRect place;
    dialog.GetWindowRect(&place);
    dialog.SetWindowPos(nullptr, place.left + offset, place.top + offset, 0, 0,
                        SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

OpenDialog::OpenDialog()
{
    All().push_back(this);
}

OpenDialog::~OpenDialog()
{
    std::erase(All(), this);
}

void OpenDialog::NoteMode()
{
    m_mode = COnBoardUIGeneral::GetAppMode();
}

void OpenDialog::KeepStateAll()
{
    ForAll(&OpenDialog::KeepState);
}

void OpenDialog::FollowModeAll()
{
    ForAll(&OpenDialog::FollowModeOnce);
}

void OpenDialog::FollowModeOnce()
{
    const int mode = COnBoardUIGeneral::GetAppMode();
    if (m_mode != mode)
    {
        m_mode = mode;
        FollowMode();
    }
}

void OpenDialog::ForAll(void (OpenDialog::*action)())
{
    for (OpenDialog* const dialog : std::vector(All()))
    {
        const bool stillThere = std::find(All().begin(), All().end(), dialog) != All().end();
        if (stillThere && dialog->m_mode != -1)
        {
            (dialog->*action)();
        }
    }
}

void StandardLayout::Read(const CWnd& dialog)
{
    dialog.GetClientRect(&m_client);
    m_client = StandardRect(m_client);
    m_children.clear();
    for (HWND child = ::GetWindow(dialog.GetSafeHwnd(), GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT))
    {
        m_children.push_back({child, StandardRect(PlaceInParent(child))});
    }
}

void StandardLayout::Apply(CWnd& dialog) const
{
    {
        WindowMoves moves;
        for (const StandardPlace& child : m_children)
        {
            moves.Add(child.window, RectInMode(child.place));
        }
    }
    dialog.Invalidate();
}

CSize StandardLayout::ClientInMode() const
{
    return RectInMode(m_client).Size();
}
