#include "dialogs/SheetTabs.h"

#include "OnBoardUIGeneral.h"
#include "access/Answers.h"
#include "modes/ChildRestyling.h"
#include "modes/PressAndHold.h"
#include "modes/WindowAlive.h"
#include "paint/BufferedPaint.h"
#include "paint/GdiGuards.h"
#include "paint/Palette.h"

#include <afxcmn.h>

namespace dialogs {

BEGIN_MESSAGE_MAP(SheetTabs, CTabCtrl)
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &SheetTabs::OnPrintClient)
    ON_WM_ERASEBKGND()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(WM_TABLET_QUERYSYSTEMGESTURESTATUS, &SheetTabs::OnQueryGestures)
    ON_MESSAGE(TCM_SETITEMSIZE, &SheetTabs::OnSetItemSize)
    ON_MESSAGE(access::ActMessage, &SheetTabs::OnAct)
END_MESSAGE_MAP()

LRESULT SheetTabs::OnQueryGestures(WPARAM, LPARAM screen)
{
    return AnswerGestures(*this, Refused::Everywhere, screen, [this] { return Default(); });
}

void SheetTabs::OnPaint()
{
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        Default();
        return;
    }
    PaintBuffered(*this, [this](CDC& dc) { Draw(dc); });
}

BOOL SheetTabs::OnEraseBkgnd(CDC* dc)
{
    return COnBoardUIGeneral::InOnBoardMode() ? TRUE : CTabCtrl::OnEraseBkgnd(dc);
}

// The platform paints what its own look of the focus needs.
void SheetTabs::OnSetFocus(CWnd* old)
{
    const WindowAlive alive(*this);
    CTabCtrl::OnSetFocus(old);
    if (alive)
    {
        Invalidate(FALSE);
    }
}

void SheetTabs::OnKillFocus(CWnd* taker)
{
    const WindowAlive alive(*this);
    CTabCtrl::OnKillFocus(taker);
    if (alive)
    {
        Invalidate(FALSE);
    }
}

// Each change of the mode adds to the height of tabs, which would soon reach over the pages. Here
// the first one that leads on-board does, and the one that leads back takes it away.
LRESULT SheetTabs::OnSetItemSize(WPARAM wParam, LPARAM size)
{
    const WindowAlive alive(*this);
    CRect tab;
    if (IsBeingPlaced(m_hWnd) && GetItemRect(0, &tab) && alive)
    {
        const bool onBoard = IsBeingPlacedOnBoard(m_hWnd);
        int height = HIWORD(size);
        if (onBoard && !m_standardHeight)
        {
            m_standardHeight = tab.Height();
        }
        else if (m_standardHeight)
        {
            height = onBoard ? tab.Height() : *m_standardHeight;
        }
        if (!onBoard)
        {
            m_standardHeight.reset();
        }
        size = MAKELPARAM(LOWORD(size), height);
    }
    return alive ? DefWindowProc(TCM_SETITEMSIZE, wParam, size) : 0;
}

CString SheetTabs::TextOf(int tab) const
{
    char text[MAX_PATH] = "";
    TCITEM item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    SendMessage(TCM_GETITEM, WPARAM(tab), reinterpret_cast<LPARAM>(&item));
    return text;
}

void SheetTabs::Draw(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, palette::Panel);
    CRect pages = client;
    // A host that has put itself in between may end the tabs in each of their own questions.
    const WindowAlive alive(*this);
    const auto ask = [&](UINT message, WPARAM wParam = 0, void* answer = nullptr) {
        return alive ? SendMessage(message, wParam, reinterpret_cast<LPARAM>(answer)) : 0;
    };
    ask(TCM_ADJUSTRECT, FALSE, &pages);
    pages.InflateRect(1, 1);
    dc.Draw3dRect(&pages, palette::Outline, palette::Outline);

    const Selected font(dc, reinterpret_cast<HGDIOBJ>(ask(WM_GETFONT)));
    const TextColor color(dc, palette::PanelText);
    const BackgroundMode mode(dc, TRANSPARENT);
    const int count = int(ask(TCM_GETITEMCOUNT));
    const int active = int(ask(TCM_GETCURSEL));
    for (int index = 0; index < count; ++index)
    {
        CRect face;
        ask(TCM_GETITEMRECT, WPARAM(index), &face);
        const CString text = alive ? TextOf(index) : CString();
        if (!alive)
        {
            return;
        }
        dc.FillSolidRect(&face, index == active ? palette::Caption : palette::Panel);
        dc.Draw3dRect(&face, palette::Outline, palette::Outline);
        dc.DrawText(text, -1, &face, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
        if (index == active && ::GetFocus() == GetSafeHwnd())
        {
            face.DeflateRect(3, 3);
            dc.DrawFocusRect(&face);
        }
    }
}

} // namespace dialogs
