#include "GalleryPage.h"

#include "Look.h"
#include "OpenDialog.h"
#include "Tap.h"
#include "WindowMoves.h"
#include "resource.h"

#include <CustomCheckBox.h>
#include <OnBoardUIGeneral.h>

#include <algorithm>

BEGIN_MESSAGE_MAP(GalleryPage, CCustomDialog)
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_NCPAINT()
    ON_WM_NCACTIVATE()
    ON_WM_NCCALCSIZE()
    ON_WM_NCHITTEST()
END_MESSAGE_MAP()

GalleryPage::GalleryPage(IAppAccess& host, GalleryEvents& events)
    : CCustomDialog(IDD_GALLERY_PAGE, nullptr, &host)
    , m_events(events)
{}

CSize GalleryPage::SizeInMode()
{
    return CSize(AcrossInMode(look::Scaled(grid::Width)), DownInMode(look::Scaled(grid::Height)));
}

BOOL GalleryPage::Open(CWnd& parent, UINT id)
{
    if (!Create(IDD_GALLERY_PAGE, &parent))
    {
        return FALSE;
    }
    SetDlgCtrlID(int(id));
    return TRUE;
}

BOOL GalleryPage::OnInitDialog()
{
    CreateContent();
    CCustomDialog::OnInitDialog();
    FollowMode();
    return FALSE;
}

void GalleryPage::FollowMode()
{
    // The library has scaled the children by the step between the two modes. Steps between two
    // on-board modes narrow them each time, so places are taken from the design: the same whichever
    // way the mode was reached.
    m_origin = Reachable(m_origin);
    {
        const int caption = DownInMode(look::Scaled(grid::Caption));
        const int captionStep = DownInMode(look::Scaled(grid::CaptionStep));
        WindowMoves moves;
        for (const Placed& placed : m_placed)
        {
            CRect rect = InPage(placed.design);
            if (placed.caption != nullptr)
            {
                moves.Add(*placed.caption, CRect(rect.TopLeft(), CSize(rect.Width(), caption)));
                rect.top += captionStep;
            }
            if (look::Dark() && dynamic_cast<CCustomCheckBox*>(placed.control) != nullptr)
            {
                const int whole = DownInMode(look::Scaled(grid::Check));
                rect.DeflateRect(0, (rect.Height() - whole) / 2);
                rect.bottom = rect.top + whole;
            }
            moves.Add(*placed.control, rect);
        }
    }
    for (const auto& label : m_labels)
    {
        label->SetFont(&look::LabelFont());
    }
    OnLaidOut();
}

CRect GalleryPage::InPage(const CRect& design) const
{
    const CRect rect = RectInMode(look::Scaled(design));
    const CSize designed = SizeInMode();
    const CSize content = FillsPage() ? ContentSize() : designed;
    return CRect(::MulDiv(rect.left, content.cx, designed.cx),
                 ::MulDiv(rect.top, content.cy, designed.cy),
                 ::MulDiv(rect.right, content.cx, designed.cx),
                 ::MulDiv(rect.bottom, content.cy, designed.cy)) -
           m_origin;
}

CSize GalleryPage::ContentSize() const
{
    CRect page;
    GetClientRect(&page);
    const CSize designed = SizeInMode();
    return CSize(std::max<int>(page.Width(), designed.cx),
                 std::max<int>(page.Height(), designed.cy));
}

CPoint GalleryPage::Reachable(CPoint origin) const
{
    CRect page;
    GetClientRect(&page);
    const CSize content = ContentSize();
    return CPoint(std::clamp<int>(origin.x, 0, content.cx - page.Width()),
                  std::clamp<int>(origin.y, 0, content.cy - page.Height()));
}

void GalleryPage::ScrollTo(CPoint origin)
{
    const CPoint before = m_origin;
    m_origin = Reachable(origin);
    if (m_origin != before)
    {
        ScrollWindow(before.x - m_origin.x, before.y - m_origin.y);
        OnScrolled();
        UpdateWindow();
    }
}

void GalleryPage::Reveal(HWND child)
{
    if (!::IsChild(m_hWnd, child))
    {
        return;
    }
    CRect page;
    GetClientRect(&page);
    CRect place;
    ::GetWindowRect(child, &place);
    ScreenToClient(&place);
    // The near edge, where both are not to be had.
    const auto step = [](LONG from, LONG to, LONG room) {
        return from < 0 || to - from > room ? from : std::max<LONG>(0, to - room);
    };
    ScrollTo(m_origin + CSize(step(place.left, place.right, page.Width()),
                              step(place.top, place.bottom, page.Height())));
}

CCustomStatic& GalleryPage::MakeLabel(const char* text)
{
    m_labels.push_back(std::make_unique<CCustomStatic>());
    CCustomStatic& label = *m_labels.back();
    label.Create(text, WS_CHILD | WS_VISIBLE | SS_LEFT, CRect(0, 0, 0, 0), this);
    return label;
}

CCustomStatic& GalleryPage::AddLabel(const char* text, const CRect& design)
{
    CCustomStatic& label = MakeLabel(text);
    Place(label, design);
    return label;
}

void GalleryPage::AddList(CCustomListBox& list, const char* caption, DWORD style,
                          const CRect& design, UINT id)
{
    CCustomStatic& label = MakeLabel(caption);
    list.CreateEx(WS_EX_CLIENTEDGE, "LISTBOX", "",
                  style | WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY |
                      LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS,
                  design, this, id);
    list.SetFont(&CCustomListBox::GetStdFont());
    Place(list, design, &label);
}

void GalleryPage::AddButton(CCustomButton& button, const char* caption, DWORD style,
                            const CRect& design, UINT id)
{
    button.Create(caption, style | WS_CHILD | WS_VISIBLE, design, this, id);
    button.SetFont(&CCustomStatic::GetStdFont());
    Place(button, design);
}

void GalleryPage::TapRow(CListBox& list, int row)
{
    CRect rect;
    list.GetItemRect(row, &rect);
    Tap(list, rect.CenterPoint());
}

void GalleryPage::Place(CWnd& control, const CRect& design, CWnd* caption)
{
    m_placed.push_back({&control, design, caption});
}

void GalleryPage::OnSize(UINT type, int width, int height)
{
    CCustomDialog::OnSize(type, width, height);
    FollowMode();
}

BOOL GalleryPage::OnEraseBkgnd(CDC* dc)
{
    CRect area;
    GetClientRect(&area);
    ::FillRect(dc->GetSafeHdc(), &area, look::GroundBrush());
    return TRUE;
}

// A page is part of the frame's window: no caption, and presses are its own.

void GalleryPage::OnNcPaint()
{
    Default();
}

BOOL GalleryPage::OnNcActivate(BOOL)
{
    return BOOL(Default());
}

void GalleryPage::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*)
{
    Default();
}

LRESULT GalleryPage::OnNcHitTest(CPoint)
{
    return Default();
}
