#pragma once

// What dialogs, sheets, pages and forms share in the on-board modes: the frame with its caption
// band, the colours of the controls, the host's services, and following the mode.

#include "AppMode.h"
#include "dialogs/DialogGeometry.h"
#include "modes/WindowAlive.h"

#include <afxwin.h>

#include <functional>
#include <optional>
#include <span>
#include <vector>

class IAppAccess;
class IEFB;

namespace dialogs {

class ControlList;

// Makes the shared brushes, pens and font of CCustomDialog that do not exist yet.
void CreateSharedObjects();

// Takes away the styles by which the platform would draw a caption, if the mode is on-board, and
// has the frame calculated again. Before that, taken gets the styles that were there, to be given
// back; 0 in the standard mode.
void TakePlatformCaption(CWnd& window, DWORD& taken);

// Before a window follows the mode back to the standard one: tells the platform, which paints its
// caption by what it was told last, what the system has told the window meanwhile; nothing paints.
void TellPlatformOfActivation(const CWnd& window, const std::optional<bool>& active);

// Whether a message finds a page or a sheet on its way to its initialisation, given whether the one
// before it has: from its creation on, if it is a dialog, for the mode may change before that.
bool IsInitialising(const CWnd& window, UINT message, bool before);

// What a window knows of its children when the mode changes.
struct Children
{
    // Theirs in the standard mode, unless they were given another.
    HFONT standardFont = nullptr;
    // The window is being initialised and scales them at the end of that.
    bool scaledLater = false;
    // Called once they are scaled and the frame is the mode's, before the window is repainted.
    std::function<void()> layOut;
};

// As they are for a window whose own font is theirs in the standard mode. It is asked for its font
// and may end in that.
Children ChildrenOf(const CWnd& window, bool scaledLater);

// After a change of mode: children, frame and colours follow. Children in the standard font get the
// on-board one and back, so that what the platform draws fits its place in every mode. In the
// standard mode the window gets the styles back that TakePlatformCaption took, and taken is
// cleared.
void FollowMode(CWnd& window, APPMODE newMode, APPMODE oldMode, DWORD& taken,
                const Children& children);

// The same for a window without a caption of its own.
void FollowMode(CWnd& window, APPMODE newMode, APPMODE oldMode, const Children& children);

// How much wider and higher than its client area a window is with the on-board frame, less the
// same with the platform's frame that the styles ask for.
CSize OnBoardFrameGrowth(DWORD style, DWORD exStyle);

// WM_NCCALCSIZE on-board, before the default processing: adjusts what is proposed and gives the
// frame that it counted with.
Frame CalcOnBoardFrame(const CWnd& window, RECT& proposed, int captionHeight);

// WM_NCHITTEST on-board: HTCAPTION in the band, else HTNOWHERE. A dialog offers no sizing border
// and no system buttons, and its client area takes no press: it is meant.
LRESULT HitOnBoardFrame(const CWnd& window, const CPoint& screen, int captionHeight);

// Whether a message to a window with the on-board frame would have the platform open its system
// menu: by Alt or F10, by Alt+Space, or by the right button on the frame. A window that was open
// when the mode changed still has the style for it. A child leaves the keys to its frame.
// Or whether it would maximise the window, by two taps on the caption: it would lie over the whole
// screen, not only the host's area, without a box to restore it by. One that is maximised already
// is restored by them.
// An icon has no such frame: its menu opens, and two taps restore it.
bool AsksForSystemCommand(const CWnd& window, const MSG& request);

// What a frame is painted from.
struct FrameLook
{
    CRect window; // from (0, 0)
    CString title;
    int captionHeight = 0;
    bool active = true;
    bool centred = false;
};

// Paints caption band and frame in window coordinates.
void PaintOnBoardFrame(CDC& dc, const FrameLook& look);

// Paints them on a window now, the band in one copy; the client area is left alone.
void DrawOnBoardFrame(CWnd& window, int captionHeight, bool active, bool centred);

// Sets the on-board colours of a control for WM_CTLCOLOR and gives its background brush. Empty
// when the framework is to answer: outside the on-board modes and for kinds that have no colours of
// their own here. A control that answers for itself has its say first.
std::optional<HBRUSH> OnBoardColors(CDC* dc, CWnd* control, UINT kind);

// WM_MOVING on-board, after the default processing. Nothing without a host, when the host has no
// area to offer or no place is proposed. The window keeps its size, which may be another than at
// the press, of which the platform proposes: the mode may have changed in the middle of the drag.
void KeepInHostArea(const CWnd& window, IAppAccess* host, RECT* proposed, bool whole);

// Has the host put its windows back into order; nothing without a host or a manager.
void UpdateHostZOrder(IAppAccess* host);

// Whether a WM_WINDOWPOSCHANGED tells of another order.
inline bool IsRestacked(const WINDOWPOS* position)
{
    return position != nullptr && (position->flags & SWP_NOZORDER) == 0;
}

// Passes a message to the platform by a call of pass, and then has the host put its windows back
// into order if they were restacked and the window is still there.
template <class Pass>
void PassAndKeepOrder(CWnd& window, IAppAccess* host, bool restacked, Pass pass)
{
    const WindowAlive alive(window);
    pass();
    if (alive && restacked)
    {
        UpdateHostZOrder(host);
    }
}

// Tells the flight bag before a modal window opens and after it has closed, in the two
// electronic-flight-bag modes. Whoever was told of the beginning is told of the end, whatever the
// mode is by then, unless the host has taken its flight bag back.
class ModalNotice
{
public:
    explicit ModalNotice(IEFB* const& current);
    ModalNotice(const ModalNotice&) = delete;
    ModalNotice& operator=(const ModalNotice&) = delete;
    ~ModalNotice();

private:
    IEFB* const& m_current; // the host's, as it is at the moment
    IEFB* m_told = nullptr;
};

// Scales the children of a window that opens in an on-board mode, but for those that are placed
// already, and gives those that still have its standard font the on-board one. Nothing in the
// standard mode.
void OpenOnBoard(HWND window, HFONT standard, std::span<const HWND> placed = {});

// The same for a form or a page whose template is not rewritten, and the list of its controls.
void OpenForm(CWnd& window, ControlList& list, std::vector<CWnd*>& controls);

} // namespace dialogs
