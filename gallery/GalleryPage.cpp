#include "GalleryPage.h"

#include "Look.h"
#include "OpenDialog.h"
#include "WindowMoves.h"
#include "resource.h"

#include <OnBoardUIGeneral.h>

#include <algorithm>

namespace {

// The least share of its design that a page's content shrinks to.
constexpr int LeastShare = 75; // percent

// A length of the content in a page that is larger or smaller than its design.
int Fitted(int length, int available, int designed, bool grows)
{
    const int least = ::MulDiv(designed, LeastShare, 100);
    const int most = grows ? std::max(available, designed) : designed;
    return ::MulDiv(length, std::clamp(available, least, most), designed);
}

} // namespace

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
    CRect page;
    GetClientRect(&page);
    const CRect rect = RectInMode(look::Scaled(design));
    const CSize designed = SizeInMode();
    const auto across = [&](int x) { return Fitted(x, page.Width(), designed.cx, FillsPage()); };
    const auto down = [&](int y) { return Fitted(y, page.Height(), designed.cy, FillsPage()); };
    return CRect(across(rect.left), down(rect.top), across(rect.right), down(rect.bottom));
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
    const CPoint point = rect.CenterPoint();
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
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
