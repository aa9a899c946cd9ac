#include "PolygonPage.h"

#include "Look.h"
#include "World.h"
#include "resource.h"

#include <K3Grfx.h>

#include <cmath>
#include <numbers>

namespace {

constexpr int Columns = 2;
constexpr int HintTop = grid::Height - grid::Caption;
constexpr int ChartsBottom = HintTop - 6;

// Enough for an edge to bend smoothly.
constexpr int OutlinePoints = 401;

// What the first chart shows first.
constexpr double ViewLatitude = 50;
constexpr double ViewLongitude = 12;

struct ChartColors
{
    K3Color sea;
    K3Color graticule;
    K3Color coast;
    K3Color outline;
};
constexpr ChartColors Light = {{222, 234, 243}, {188, 205, 219}, {60, 84, 104}, {200, 40, 30}};
constexpr ChartColors Dark = {{28, 38, 48}, {58, 72, 86}, {150, 164, 176}, {255, 190, 70}};

enum ControlId : UINT
{
    ViewId = IDC_PAGE_FIRST,
    GlobeId
};

constexpr UINT ChartMoved = 1; // the notification of a chart that was dragged

CString PositionText(double latitude, double longitude)
{
    CString text;
    text.Format("%.1f %c, %.1f %c", std::abs(latitude), latitude < 0 ? 'S' : 'N',
                std::abs(longitude), longitude < 0 ? 'W' : 'E');
    return text;
}

void FillGlobe(CDC& dc, const K3Chart& chart, const K3Color& sea)
{
    const int radius = int(chart.Scale() * 180 / std::numbers::pi); // of so many points per degree
    const CPoint center(chart.Center().x, chart.Center().y);
    CBrush brush(sea.ToColorRef());
    CRgn disc;
    disc.CreateEllipticRgn(center.x - radius, center.y - radius, center.x + radius + 1,
                           center.y + radius + 1);
    dc.FillRgn(&disc, &brush);
}

} // namespace

BEGIN_MESSAGE_MAP(ChartWindow, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

ChartWindow::ChartWindow(K3Chart::Projection projection, double latitude, double longitude,
                         double degrees)
    : m_projection(projection)
    , m_latitude(latitude)
    , m_longitude(longitude)
    , m_degrees(degrees)
    , m_outline(OutlinePoints, 1, K3Color())
{}

BOOL ChartWindow::Open(CWnd& page, UINT id)
{
    return Create(AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_SIZEALL)), "",
                  WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &page, id);
}

K3Chart ChartWindow::Chart() const
{
    CRect area;
    GetClientRect(&area);
    return K3Chart(m_projection, m_latitude, m_longitude, area.Width() / m_degrees,
                   {area.Width() / 2, area.Height() / 2});
}

void ChartWindow::GoTo(double latitude, double longitude)
{
    m_latitude = latitude;
    m_longitude = longitude;
    Invalidate(FALSE);
}

void ChartWindow::OnPaint()
{
    const ChartColors& colors = look::Dark() ? Dark : Light;
    CRect area;
    GetClientRect(&area);
    BufferedPaint paint(*this);
    CDC& dc = paint.Context();
    K3Chart chart = Chart();
    if (m_projection == K3Chart::Mercator)
    {
        dc.FillSolidRect(&area, colors.sea.ToColorRef());
    }
    else
    {
        FillGlobe(dc, chart, colors.sea);
    }
    K3Grfx graphics(dc.GetSafeHdc());
    const auto draw = [&](const std::vector<Coast>& lines, const K3Color& color, int thickness) {
        graphics.SetLineColor(color);
        graphics.SetLineThickness(thickness);
        for (const Coast& line : lines)
        {
            graphics.Polyline(chart, line.latitudes.data(), line.longitudes.data(),
                              int(line.latitudes.size()));
        }
    };
    const int thick = look::Dark() ? 2 : 1;
    draw(Graticule(), colors.graticule, 1);
    draw(Coasts(), colors.coast, thick);
    if (m_outlined != nullptr)
    {
        CRect view;
        m_outlined->GetClientRect(&view);
        K3Chart other = m_outlined->Chart();
        m_outline.LineColor(colors.outline);
        m_outline.LineThickness(2 * thick);
        m_outline.Draw(&graphics, &chart, view, &other);
    }
}

void ChartWindow::OnLButtonDown(UINT, CPoint point)
{
    m_dragged = true;
    m_draggedFrom = point;
    SetCapture();
}

void ChartWindow::OnMouseMove(UINT, CPoint point)
{
    if (!m_dragged || point == m_draggedFrom)
    {
        return;
    }
    // What lay so far from the centre as the pointer came lies in the centre now.
    const K3Chart chart = Chart();
    const K3DevPt center = chart.Center();
    double latitude = 0;
    double longitude = 0;
    chart.ToPosition(center.x - (point.x - m_draggedFrom.x), center.y - (point.y - m_draggedFrom.y),
                     latitude, longitude);
    m_draggedFrom = point;
    GoTo(latitude, longitude);
    GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), ChartMoved), LPARAM(m_hWnd));
}

void ChartWindow::OnLButtonUp(UINT, CPoint)
{
    if (m_dragged)
    {
        ::ReleaseCapture();
    }
}

void ChartWindow::OnCaptureChanged(CWnd*)
{
    m_dragged = false;
}

BEGIN_MESSAGE_MAP(PolygonPage, GalleryPage)
    ON_CONTROL(ChartMoved, ViewId, &PolygonPage::OnMoved)
END_MESSAGE_MAP()

PolygonPage::PolygonPage(IAppAccess& host, GalleryEvents& events)
    : GalleryPage(host, events)
    , m_view(K3Chart::Mercator, ViewLatitude, ViewLongitude, 56)
    , m_globe(K3Chart::Orthographic, 34, 2, 118)
{
    m_globe.Outline(m_view);
}

void PolygonPage::CreateContent()
{
    const auto add = [this](ChartWindow& chart, const char* caption, int column, UINT id) {
        AddLabel(caption, grid::Cell(Columns, column, 0, grid::Caption));
        chart.Open(*this, id);
        Place(chart,
              grid::Cell(Columns, column, grid::CaptionStep, ChartsBottom - grid::CaptionStep));
    };
    add(m_view, "Mercator", 0, ViewId);
    add(m_globe, "The globe, with the left view's outline", 1, GlobeId);
    AddLabel("Drag the left chart, and its outline follows; the globe turns as well.",
             grid::Across(HintTop, grid::Caption));
}

void PolygonPage::OnLaidOut()
{
    m_view.Invalidate(FALSE);
    m_globe.Invalidate(FALSE);
}

void PolygonPage::PoseForPicture()
{
    // From the same place and by the same share of the window in every mode.
    m_view.GoTo(ViewLatitude, ViewLongitude);
    CRect area;
    m_view.GetClientRect(&area);
    const CPoint from = area.CenterPoint();
    const CPoint to(from.x + area.Width() / 8, from.y - area.Height() / 12);
    m_view.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.x, from.y));
    m_view.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to.x, to.y));
    m_view.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(to.x, to.y));
}

void PolygonPage::OnMoved()
{
    m_globe.Invalidate(FALSE);
    Events().ParentWasTold("The left chart shows " +
                           PositionText(m_view.Latitude(), m_view.Longitude()));
}
