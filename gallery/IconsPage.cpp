#include "IconsPage.h"

#include "Look.h"
#include "resource.h"

#include <AppAccess.h>
#include <AppIcons.h>
#include <MappedImageList.h>

namespace {

constexpr int ImagesTop = 334;
constexpr int IconsHeight = ImagesTop - 2 * grid::CaptionStep - 4;

// The table by id: heads of rows, then ten columns.
constexpr UINT FirstTen = 3520;
constexpr UINT Tens = 9;
constexpr UINT LastId = FirstTen + Tens * 10 - 1;
constexpr int IdColumns = 11;
constexpr int IconSize = 32;

// The images of the list.
constexpr int ImageColumns = 24;
constexpr int ImageRows = 3;

constexpr COLORREF MarkColor = RGB(40, 100, 190);

enum ControlId : UINT
{
    IconsId = IDC_PAGE_FIRST,
    ImagesId
};

CRect Centred(const CRect& cell, int width, int height)
{
    return CRect(
        CPoint(cell.left + (cell.Width() - width) / 2, cell.top + (cell.Height() - height) / 2),
        CSize(width, height));
}

} // namespace

BEGIN_MESSAGE_MAP(IconTable, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

BOOL IconTable::Open(CWnd& page, UINT id)
{
    return Create(AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW)), "",
                  WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &page, id);
}

void IconTable::Mark(UINT id)
{
    m_marked = id;
    Invalidate(FALSE);
}

const MappedImageList* IconTable::CurrentList() const
{
    return look::Dark() ? m_host.GetMasterLargeIconList() : m_host.GetMasterIconList();
}

CRect IconTable::CellAt(int column, int row) const
{
    CRect area;
    GetClientRect(&area);
    const int columns = m_kind == Icons ? IdColumns : ImageColumns;
    const int rows = m_kind == Icons ? int(Tens) : ImageRows;
    return CRect(area.Width() * column / columns, area.Height() * row / rows,
                 area.Width() * (column + 1) / columns, area.Height() * (row + 1) / rows);
}

CRect IconTable::CellOf(UINT id) const
{
    if (m_kind == Icons)
    {
        return CellAt(int(id % 10) + 1, int((id - FirstTen) / 10));
    }
    const int index = CurrentList()->GetIdxFromCtrlID(id);
    return CellAt(index % ImageColumns, index / ImageColumns);
}

UINT IconTable::IdAt(CPoint point) const
{
    for (UINT id = FirstTen; id <= LastId; ++id)
    {
        if (AppIcons().GetIcon(int(id)) != nullptr && CellOf(id).PtInRect(point))
        {
            return id;
        }
    }
    return 0;
}

void IconTable::OnPaint()
{
    BufferedPaint paint(*this);
    CDC& dc = paint.Context();
    const InUse font(dc, look::LabelFont());
    if (m_kind == Icons)
    {
        for (UINT ten = 0; ten < Tens; ++ten)
        {
            CString head;
            head.Format("%u", FirstTen + ten * 10);
            CRect cell = CellAt(0, int(ten));
            dc.DrawText(head, &cell, DT_LEFT | DT_VCENTER | DT_SINGLELINE);
        }
    }
    const MappedImageList* const list = CurrentList();
    int width = IconSize;
    int height = IconSize;
    if (m_kind == Images)
    {
        ::ImageList_GetIconSize(*list, &width, &height);
    }
    std::vector<AppIcons::ICON_INFO> icons;
    AppIcons().GetIcons(icons);
    for (const AppIcons::ICON_INFO& each : icons)
    {
        const CRect cell = CellOf(each.id);
        const CRect place = Centred(cell, width, height);
        if (each.id == m_marked)
        {
            const CRect mark = Centred(cell, width + 4, height + 4);
            dc.FillSolidRect(&mark, look::Dark() ? look::DarkActiveEdge : MarkColor);
        }
        if (m_kind == Icons)
        {
            ::DrawIconEx(dc.GetSafeHdc(), place.left, place.top, each.icon, width, height, 0,
                         nullptr, DI_NORMAL);
        }
        else
        {
            ::ImageList_Draw(*list, list->GetIdxFromCtrlID(each.id), dc.GetSafeHdc(), place.left,
                             place.top, ILD_NORMAL);
        }
    }
}

void IconTable::OnLButtonDown(UINT, CPoint point)
{
    Mark(IdAt(point));
    GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), STN_CLICKED), LPARAM(m_hWnd));
}

BEGIN_MESSAGE_MAP(IconsPage, GalleryPage)
    ON_CONTROL_RANGE(STN_CLICKED, IconsId, ImagesId, &IconsPage::OnPressed)
END_MESSAGE_MAP()

IconsPage::IconsPage(IAppAccess& host, GalleryEvents& events)
    : GalleryPage(host, events)
    , m_services(host)
    , m_icons(IconTable::Icons, host)
    , m_images(IconTable::Images, host)
{}

void IconsPage::CreateContent()
{
    AppIcons().LoadIcons();
    AddLabel("The application's icons by id", grid::Across(0, grid::Caption));
    m_icons.Open(*this, IconsId);
    Place(m_icons, grid::Across(grid::CaptionStep, IconsHeight));
    AddLabel("The same as images of the host's mapped list",
             grid::Across(ImagesTop - grid::CaptionStep, grid::Caption));
    m_images.Open(*this, ImagesId);
    Place(m_images, grid::Across(ImagesTop, grid::Height - ImagesTop));
}

void IconsPage::OnLaidOut()
{
    m_icons.Invalidate(FALSE);
    m_images.Invalidate(FALSE);
}

void IconsPage::PoseForPicture()
{
    constexpr UINT shown = 3561;
    const CPoint point = m_icons.CellOf(shown).CenterPoint();
    m_icons.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
}

void IconsPage::OnPressed(UINT tableId)
{
    IconTable& pressed = tableId == IconsId ? m_icons : m_images;
    const UINT id = pressed.Marked();
    m_icons.Mark(id);
    m_images.Mark(id);
    CString text;
    if (id == 0)
    {
        text = "No icon there";
    }
    else
    {
        text.Format("Icon %u is image %d of the list", id,
                    m_services.GetMasterIconList()->GetIdxFromCtrlID(id));
    }
    Events().ParentWasTold(text);
}
