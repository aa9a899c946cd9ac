#include "DialogsPage.h"

#include "resource.h"

#include <OnBoardUI.h>

namespace {

constexpr UINT FirstId = IDC_PAGE_FIRST;

constexpr int Columns = 3;
constexpr int HintHeight = 90;

constexpr const char* Captions[] = {"Modal dialog", "Modeless dialog", "Property sheet"};

} // namespace

BEGIN_MESSAGE_MAP(DialogsPage, GalleryPage)
    ON_WM_SHOWWINDOW()
    ON_BN_CLICKED(FirstId + Modal, &DialogsPage::OnModal)
    ON_BN_CLICKED(FirstId + Modeless, &DialogsPage::OnModeless)
    ON_BN_CLICKED(FirstId + Sheet, &DialogsPage::OnSheet)
END_MESSAGE_MAP()

DialogsPage::DialogsPage(IAppAccess& host, GalleryEvents& events)
    : GalleryPage(host, events)
    , m_services(host)
    , m_modeless(nullptr, &host)
{}

void DialogsPage::CreateContent()
{
    for (int index = 0; index < OpenerCount; ++index)
    {
        AddButton(m_openers[index], Captions[index], PushStyle,
                  grid::Cell(Columns, 0, index * grid::PushStep, grid::Push),
                  FirstId + UINT(index));
    }
    AddLabel("On-board, a dialog is dragged by its caption and stops at the edges of this window.",
             grid::Cell(Columns, 0, OpenerCount * grid::PushStep + grid::Gap, HintHeight));
}

CPoint DialogsPage::DialogCorner() const
{
    CRect opener;
    m_openers[0].GetWindowRect(&opener);
    return CPoint(opener.right + opener.Height() / 2, opener.top);
}

void DialogsPage::PoseForPicture()
{
    OnModeless();
}

void DialogsPage::OnShowWindow(BOOL show, UINT status)
{
    GalleryPage::OnShowWindow(show, status);
    if (!show)
    {
        m_modeless.DestroyWindow(); // the dialog belongs to the page
    }
}

void DialogsPage::OnModal()
{
    const INT_PTR result = FlightDialog(this, &m_services).DoModal();
    Events().ParentWasTold(result == IDOK ? "The modal dialog ended with OK"
                                          : "The modal dialog was cancelled");
}

void DialogsPage::OnModeless()
{
    if (m_modeless.OpenModeless(*this, DialogCorner()))
    {
        EnsureWndVisible(&m_services, m_modeless);
        Events().ParentWasTold("The modeless dialog is open");
    }
}

void DialogsPage::OnSheet()
{
    FlightSheet sheet(this, &m_services);
    Events().ParentWasTold(sheet.DoModal() == IDOK ? "The sheet ended with OK"
                                                   : "The sheet was cancelled");
}
