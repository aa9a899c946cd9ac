#include "trees/TreeLook.h"

#include "CustomListBox.h"
#include "OnBoardUIGeneral.h"
#include "modes/ModeFollowing.h"
#include "modes/WindowAlive.h"
#include "paint/BackBuffer.h"
#include "paint/GdiGuards.h"
#include "paint/Metrics.h"
#include "paint/PaintContext.h"
#include "paint/Palette.h"
#include "paint/RowText.h"
#include "trees/DragImage.h"

#include <algorithm>
#include <array>

namespace trees {

// Following the mode ----------------------------------------------------------------------------

bool TreeLook::Before(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    const WindowAlive alive(m_owner.Window());
    const bool before = m_onBoard;
    switch (message)
    {
    case WM_SIZE:
    case WM_PAINT:
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_KEYDOWN:
        Follow();
        if (!alive)
        {
            return true;
        }
        if (message == WM_SIZE && m_onBoard != before)
        {
            // The frame is another one by now, and the platform has been told of the size in it.
            CRect client;
            m_owner.Window().GetClientRect(&client);
            if (WORD(client.right) != LOWORD(lParam) || WORD(client.bottom) != HIWORD(lParam))
            {
                result = 0;
                return true;
            }
        }
        break;
    case TVM_SETINDENT:
    case TVM_SETITEMHEIGHT:
        if (m_onBoard && !m_following)
        {
            result = TakeSize(message, wParam);
            return true;
        }
        break;
    default:
        break;
    }
    return m_onBoard && m_bars.Before(message, wParam, lParam, result);
}

void TreeLook::After(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    const WindowAlive alive(m_owner.Window());
    if (message == TVM_EDITLABELA || message == TVM_EDITLABELW || message == WM_TIMER)
    {
        NoteLabelEdit();
        if (!alive)
        {
            return;
        }
    }
    // While it follows the mode, the frame alone is laid out.
    const bool frame = message == WM_NCCALCSIZE || message == WM_WINDOWPOSCHANGING;
    if (m_onBoard && (!m_following || frame))
    {
        m_bars.After(message, wParam, lParam, result);
    }
    if (alive && message == WM_ENABLE && m_onBoard)
    {
        // Every colour is another one.
        m_owner.Window().RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ERASE);
    }
    if (!alive || (message != WM_SETFONT && message != TVM_SETIMAGELIST))
    {
        return;
    }
    const bool held = IsLabelEditBold();
    if (!alive)
    {
        return;
    }
    m_bold.DeleteObject();
    if (!m_onBoard || m_following)
    {
        if (held && !m_following)
        {
            FollowLabelEdit(true);
        }
        return;
    }
    const auto font = reinterpret_cast<HFONT>(wParam);
    if (message == WM_SETFONT && font != CCustomListBox::GetOnBoardFont().GetSafeHandle())
    {
        m_standardFont = font;
        m_sawStandard = true;
    }
    // The host has given it another font, or pictures: the platform makes a level as wide as those.
    const int indent = int(m_items.Ask(TVM_GETINDENT));
    if (indent != std::max(m_standardIndent, metrics::FingerRow))
    {
        m_standardIndent = indent;
        MakeLevelsForFinger();
    }
    if (alive)
    {
        MakeRowsForFinger();
    }
    if (alive)
    {
        FollowLabelEdit(true);
    }
}

// A size that the host sets in an on-board mode: it is that of the standard mode, and the least one
// in this mode.
LRESULT TreeLook::TakeSize(UINT message, WPARAM wParam)
{
    const LRESULT before = m_items.RowHeight();
    if (message == TVM_SETINDENT)
    {
        m_standardIndent = int(wParam);
        MakeLevelsForFinger();
        return 0;
    }
    m_standardRow = int(wParam);
    MakeRowsForFinger();
    return before;
}

void TreeLook::Follow()
{
    CWnd& window = m_owner.Window();
    if (!m_following && !m_onBoard && !COnBoardUIGeneral::InOnBoardMode() &&
        window.GetSafeHwnd() != nullptr)
    {
        m_sawStandard = true;
    }
    const WindowAlive alive(window);
    const auto change = [&](void (TreeLook::*layOut)()) {
        (this->*layOut)();
        if (alive)
        {
            m_bold.DeleteObject();
            FollowLabelEdit(true);
        }
        if (alive) // last: an edit that moves has the frame painted at once
        {
            window.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ERASE);
        }
    };
    FollowMode(
        window, m_onBoard, m_following, [&] { change(&TreeLook::EnterOnBoard); },
        [&] { change(&TreeLook::LeaveOnBoard); });
}

void TreeLook::Reset()
{
    m_bars.Reset();
    m_onBoard = false;
    m_following = false;
    m_sawStandard = false;
    m_standardFont = nullptr;
    m_standardRow = -1;
    m_standardIndent = 0;
    m_bold.DeleteObject();
}

void TreeLook::EnterOnBoard()
{
    m_standardFont = reinterpret_cast<HFONT>(m_items.Ask(WM_GETFONT));
    const auto large = HFONT(CCustomListBox::GetOnBoardFont().GetSafeHandle());
    // One that opens on-board has its host's already, unless it was let go on-board.
    m_sawStandard = m_sawStandard || (m_standardFont != nullptr && m_standardFont != large);
    m_standardIndent = int(m_items.Ask(TVM_GETINDENT));
    // A height that is not the platform's own choice was set by the host, to be given back.
    const int height = m_items.RowHeight();
    m_items.Ask(TVM_SETITEMHEIGHT, WPARAM(-1));
    m_standardRow = height == m_items.RowHeight() ? -1 : height;
    m_items.Ask(WM_SETFONT, WPARAM(large), FALSE);
    MakeLevelsForFinger();
    MakeRowsForFinger();
    m_bars.EnterOnBoard();
}

void TreeLook::LeaveOnBoard()
{
    const WindowAlive alive(m_owner.Window());
    m_bars.LeaveOnBoard();
    if (!alive)
    {
        return;
    }
    // A tree that began on-board may have no font of the host's to go back to, and the host's may
    // be gone by now.
    const bool hosts =
        m_sawStandard && (m_standardFont == nullptr || ::GetObjectType(m_standardFont) == OBJ_FONT);
    m_items.Ask(WM_SETFONT,
                hosts ? WPARAM(m_standardFont)
                      : WPARAM(CCustomListBox::GetStdFont().GetSafeHandle()),
                FALSE);
    m_items.Ask(TVM_SETINDENT, WPARAM(m_standardIndent));
    m_items.Ask(TVM_SETITEMHEIGHT, WPARAM(m_standardRow));
    m_sawStandard = true;
}

void TreeLook::MakeLevelsForFinger()
{
    m_items.Ask(TVM_SETINDENT, WPARAM(std::max(m_standardIndent, metrics::FingerRow)));
}

void TreeLook::MakeRowsForFinger()
{
    const WindowAlive alive(m_owner.Window());
    m_items.Ask(TVM_SETITEMHEIGHT, WPARAM(-1));
    if (alive)
    {
        m_items.Ask(TVM_SETITEMHEIGHT,
                    WPARAM(std::max({metrics::FingerRow, m_items.RowHeight(), m_standardRow})));
    }
}

// Layout ----------------------------------------------------------------------------------------

CSize TreeLook::ImageSize(int list) const
{
    const auto images = HIMAGELIST(m_items.Ask(TVM_GETIMAGELIST, WPARAM(list)));
    int width = 0;
    int height = 0;
    if (images != nullptr)
    {
        ::ImageList_GetIconSize(images, &width, &height);
    }
    return CSize(width, height);
}

CRect TreeLook::IconAndText(HTREEITEM item) const
{
    const int icon = ImageSize(TVSIL_NORMAL).cx;
    CRect rect = m_items.Rect(item, true); // for a text's width the parent may be asked, and end us
    if (!rect.IsRectEmpty())
    {
        rect.left -= icon;
    }
    return rect;
}

bool TreeLook::Read(HTREEITEM item, Row& row) const
{
    char buffer[MAX_PATH] = "";
    TVITEMEX data = {};
    data.mask = TVIF_HANDLE | TVIF_TEXT | TVIF_STATE | TVIF_CHILDREN | TVIF_IMAGE |
                TVIF_SELECTEDIMAGE | TVIF_EXPANDEDIMAGE;
    data.hItem = item;
    data.iExpandedImage = I_IMAGENONE;
    data.stateMask = UINT(-1);
    data.pszText = buffer;
    data.cchTextMax = int(sizeof(buffer)) - 1;
    const WindowAlive alive(m_owner.Window());
    const WatchedItem held(m_items, item);
    // Items may leave text, icon and children to the parent, which is asked now.
    if (!m_items.Ask(TVM_GETITEM, 0, reinterpret_cast<LPARAM>(&data)) || !alive ||
        held.Get() == nullptr)
    {
        return false;
    }
    row.item = item;
    row.state = data.state;
    // The platform keeps sixteen bits, and some give them without a sign.
    const bool open = (data.state & TVIS_EXPANDED) != 0 && short(data.iExpandedImage) >= 0;
    row.image = (data.state & TVIS_SELECTED) != 0 ? data.iSelectedImage
                : open                            ? data.iExpandedImage
                                                  : data.iImage;
    row.branch = data.cChildren != 0;
    row.label = data.pszText == nullptr ? "" : data.pszText;
    row.text = m_items.Rect(item, true); // by the text, which the parent may be asked for again
    return alive && held.Get() != nullptr;
}

HGDIOBJ TreeLook::Font(bool bold)
{
    const auto font = HGDIOBJ(m_items.Ask(WM_GETFONT));
    if (!bold)
    {
        return font != nullptr ? font : ::GetStockObject(SYSTEM_FONT);
    }
    LOGFONT description = {};
    if (m_bold.GetSafeHandle() == nullptr &&
        ::GetObject(font != nullptr ? font : ::GetStockObject(SYSTEM_FONT), sizeof(description),
                    &description) != 0)
    {
        description.lfWeight = FW_BOLD;
        m_bold.CreateFontIndirect(&description);
    }
    return m_bold.GetSafeHandle();
}

// Painting --------------------------------------------------------------------------------------

namespace {

// The sides of a rubber band with a line so wide.
std::array<CRect, 4> SidesOf(const CRect& band, int line)
{
    return {CRect(band.left, band.top, band.right, band.top + line),
            CRect(band.left, band.bottom - line, band.right, band.bottom),
            CRect(band.left, band.top, band.left + line, band.bottom),
            CRect(band.right - line, band.top, band.right, band.bottom)};
}

} // namespace

void TreeLook::InvalidateBand(HWND window, const CRect& band)
{
    for (const CRect& side : SidesOf(band, metrics::RubberBandLineOnBoard))
    {
        ::InvalidateRect(window, &side, TRUE); // the platform paints no ground of its own
    }
}

void TreeLook::PaintBand(CDC& dc, const CRect& band) const
{
    const int line = m_onBoard ? metrics::RubberBandLineOnBoard : metrics::RubberBandLine;
    const COLORREF color = m_onBoard ? palette::RubberBand : ::GetSysColor(COLOR_WINDOWTEXT);
    for (const CRect& side : SidesOf(band, line))
    {
        dc.FillSolidRect(side, color);
    }
}

// The platform makes the pictures of the check boxes when it paints for the first time, and takes
// all checks away then: where it does not paint itself, that comes at our first paint.
void TreeLook::MakeCheckBoxes()
{
    if ((m_owner.Window().GetStyle() & TVS_CHECKBOXES) == 0 ||
        m_items.Ask(TVM_GETIMAGELIST, TVSIL_STATE) != 0)
    {
        return;
    }
    CDC nowhere;
    if (nowhere.CreateCompatibleDC(nullptr))
    {
        m_items.Ask(WM_PAINT, WPARAM(nowhere.GetSafeHdc()));
    }
}

void TreeLook::Paint(const CRect* band)
{
    const WindowAlive alive(m_owner.Window());
    Follow();
    if (!alive)
    {
        return;
    }
    m_items.WriteUnwritten();
    if (!alive)
    {
        return;
    }
    if (m_onBoard)
    {
        MakeCheckBoxes();
        if (alive)
        {
            m_bars.Mirror();
        }
        if (alive)
        {
            FollowLabelEdit(false); // rows may have moved under it
        }
        if (!alive)
        {
            return;
        }
    }
    const DragImageHidden hidden; // it would be painted over, and its ground be out of date
    if (!m_onBoard && band == nullptr)
    {
        m_owner.DefaultOfCurrent();
        return;
    }
    CWnd& window = m_owner.Window();
    PaintContext context(window);
    if (!alive)
    {
        return;
    }
    CRect client;
    window.GetClientRect(&client);
    const CRect given = band == nullptr ? CRect(0, 0, 0, 0) : *band;
    if (m_onBoard)
    {
        BackBuffer buffer(context, context.Area());
        PaintRows(buffer, context.Area());
        if (alive && band != nullptr)
        {
            PaintBand(buffer, given);
        }
        return;
    }
    // The platform paints all of itself into a context that it is given, and erases nothing.
    BackBuffer buffer(context, client);
    const auto ground = COLORREF(m_items.Ask(TVM_GETBKCOLOR));
    buffer.DC().FillSolidRect(client,
                              ground == COLORREF(-1) ? ::GetSysColor(COLOR_WINDOW) : ground);
    m_items.Ask(WM_PAINT, WPARAM(buffer.DC().GetSafeHdc()));
    if (alive)
    {
        PaintBand(buffer, given);
    }
}

void TreeLook::PaintRows(CDC& dc, const CRect& area)
{
    const WindowAlive alive(m_owner.Window());
    const bool enabled = m_owner.Window().IsWindowEnabled();
    dc.FillSolidRect(area, enabled ? palette::Field : palette::FieldDisabled);
    const BackgroundMode mode(dc, TRANSPARENT);
    // The parent may take items away when it is asked for their texts.
    WatchedItem item(m_items, m_items.Next(nullptr, TVGN_FIRSTVISIBLE));
    while (alive && item.Get() != nullptr)
    {
        const CRect row = m_items.Rect(item.Get(), false);
        if (row.top >= area.bottom)
        {
            break;
        }
        Row content = {};
        if (row.bottom > area.top && Read(item.Get(), content))
        {
            PaintRow(dc, content);
        }
        if (alive)
        {
            item.Set(item.Get() == nullptr ? nullptr : m_items.Next(item.Get(), TVGN_NEXTVISIBLE));
        }
    }
}

void TreeLook::PaintLabel(CDC& dc, const Row& row, COLORREF ground, COLORREF color)
{
    const Selected font(dc, Font((row.state & TVIS_BOLD) != 0));
    DrawTextOnGround(dc, row.text, metrics::TreeTextMargin, row.label, color, ground);
}

void TreeLook::PaintRow(CDC& dc, const Row& row)
{
    const CWnd& window = m_owner.Window();
    const DWORD style = window.GetStyle();
    const bool enabled = window.IsWindowEnabled();
    const bool marked = (row.state & (TVIS_SELECTED | TVIS_DROPHILITED)) != 0;
    if (enabled && marked && (style & TVS_FULLROWSELECT) != 0)
    {
        dc.FillSolidRect(m_items.Rect(row.item, false), palette::Highlight);
    }
    PaintLabel(dc, row,
               !enabled ? palette::FieldDisabled
               : marked ? palette::Highlight
                        : palette::Field,
               !enabled ? palette::FieldTextDisabled
               : marked ? palette::HighlightText
                        : palette::FieldText);
    const bool focused = (row.state & TVIS_FOCUSED) != 0 || row.item == m_items.Caret();
    if (focused && ::GetFocus() == window.GetSafeHwnd())
    {
        dc.DrawFocusRect(row.text);
    }
    int left = row.text.left;
    const auto draw = [&](int list, int image) {
        const auto images = HIMAGELIST(m_items.Ask(TVM_GETIMAGELIST, WPARAM(list)));
        const CSize size = ImageSize(list);
        left -= size.cx;
        if (images != nullptr && image >= 0)
        {
            const UINT cut = (row.state & TVIS_CUT) != 0 ? ILD_BLEND50 : ILD_NORMAL;
            const UINT overlay = list == TVSIL_NORMAL ? row.state & TVIS_OVERLAYMASK : 0;
            ::ImageList_Draw(images, image, dc.GetSafeHdc(), left,
                             row.text.top + (row.text.Height() - size.cy) / 2,
                             cut | overlay | ILD_TRANSPARENT);
        }
    };
    draw(TVSIL_NORMAL, row.image);
    if (const UINT stateImage = (row.state & TVIS_STATEIMAGEMASK) >> 12; stateImage != 0)
    {
        draw(TVSIL_STATE, int(stateImage));
    }
    if (row.branch && (style & TVS_HASBUTTONS) != 0 &&
        ((style & TVS_LINESATROOT) != 0 || m_items.Parent(row.item) != nullptr))
    {
        PaintMark(dc, row, left);
    }
}

namespace {

// Made at the first branch and kept for the life of the process.
struct MarkTools
{
    explicit MarkTools(COLORREF color)
        : brush(color)
        , pen(PS_SOLID, 1, color)
    {}

    CBrush brush;
    CPen pen;
};

} // namespace

// A triangle that points to the right at a closed branch and down at an open one.
void TreeLook::PaintMark(CDC& dc, const Row& row, int right)
{
    constexpr int Long = metrics::BranchMark;
    constexpr int Short = Long / 2;
    const CPoint middle(right - int(m_items.Ask(TVM_GETINDENT)) / 2,
                        row.text.top + row.text.Height() / 2);
    const bool open = (row.state & TVIS_EXPANDED) != 0;
    const POINT closedMark[] = {{middle.x - Short / 2, middle.y - Long / 2},
                                {middle.x - Short / 2, middle.y + Long / 2},
                                {middle.x + Short / 2, middle.y}};
    const POINT openMark[] = {{middle.x - Long / 2, middle.y - Short / 2},
                              {middle.x + Long / 2, middle.y - Short / 2},
                              {middle.x, middle.y + Short / 2}};
    static const MarkTools enabled(palette::BranchMark);
    static const MarkTools disabled(palette::BranchMarkDisabled);
    const MarkTools& tools = m_owner.Window().IsWindowEnabled() ? enabled : disabled;
    const Selected brush(dc, tools.brush);
    const Selected pen(dc, tools.pen);
    dc.Polygon(open ? openMark : closedMark, 3);
}

void TreeLook::DrawIconAndText(CDC& dc, HTREEITEM item, const CRect& text, bool selected)
{
    Row row = {};
    if (!Read(item, row))
    {
        return;
    }
    row.text = text;
    const COLORREF ground = m_onBoard ? palette::Highlight : ::GetSysColor(COLOR_HIGHLIGHT);
    const COLORREF color = m_onBoard ? palette::HighlightText : ::GetSysColor(COLOR_HIGHLIGHTTEXT);
    const BackgroundMode mode(dc, TRANSPARENT);
    PaintLabel(dc, row, selected ? ground : ::GetSysColor(COLOR_WINDOW),
               selected ? color : ::GetSysColor(COLOR_WINDOWTEXT));
    const auto images = HIMAGELIST(m_items.Ask(TVM_GETIMAGELIST, TVSIL_NORMAL));
    const CSize size = ImageSize(TVSIL_NORMAL);
    if (images != nullptr && row.image >= 0)
    {
        ::ImageList_Draw(images, row.image, dc.GetSafeHdc(), text.left - size.cx,
                         text.top + (text.Height() - size.cy) / 2, ILD_TRANSPARENT);
    }
}

} // namespace trees
