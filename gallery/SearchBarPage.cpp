#include "SearchBarPage.h"

#include "resource.h"

namespace {

constexpr UINT FirstId = IDC_PAGE_FIRST;
constexpr UINT BarId = FirstId + 10;

// Two columns of buttons, a hint below.
constexpr int Columns = 3;
constexpr int HintHeight = 60;

constexpr const char* Captions[] = {"Start search", "Stop search", "Start loading", "Stop loading"};

} // namespace

BEGIN_MESSAGE_MAP(SearchBarPage, GalleryPage)
    ON_CONTROL_RANGE(BN_CLICKED, FirstId, FirstId + CommandCount - 1,
                     &SearchBarPage::OnCommandButton)
END_MESSAGE_MAP()

void SearchBarPage::CreateContent()
{
    for (int index = 0; index < CommandCount; ++index)
    {
        AddButton(m_commands[index], Captions[index], PushStyle,
                  grid::Cell(Columns, index % 2, index / 2 * grid::PushStep, grid::Push),
                  FirstId + UINT(index));
    }
    AddLabel("A search gains a dot each second; loading stands still. Neither starts while the "
             "other goes on, and both keep their text when they are stopped.",
             grid::Cell(Columns, 0, 2 * grid::PushStep + grid::Gap, HintHeight, 2));
    m_bar.Create(WS_CHILD | WS_VISIBLE | CCS_BOTTOM, CRect(0, 0, 0, 0), this, BarId);
}

void SearchBarPage::OnLaidOut()
{
    m_bar.SendMessage(WM_SIZE); // it takes its place at the page's edge by itself
    CRect bar;
    m_bar.GetWindowRect(&bar);
    ScreenToClient(&bar);
    m_bar.SetWindowPos(nullptr, bar.left - Origin().x, ContentSize().cy - bar.Height() - Origin().y,
                       0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE); // below content that scrolls
}

void SearchBarPage::OnCommandButton(UINT id)
{
    switch (id - FirstId)
    {
    case StartSearch:
        m_bar.StartSearchProgress();
        break;
    case StopSearch:
        m_bar.StopSearchProgress();
        break;
    case StartLoading:
        m_bar.StartLoadingProgress();
        break;
    default:
        m_bar.StopLoadingProgress();
        break;
    }
    Events().ParentWasTold(CString(Captions[id - FirstId]) + ": \"" + m_bar.GetText(0) + "\"");
}

void SearchBarPage::PoseForPicture()
{
    constexpr UINT_PTR SearchTimer = 1189;
    m_bar.StartSearchProgress();
    for (int second = 0; second < 3; ++second)
    {
        m_bar.SendMessage(WM_TIMER, SearchTimer);
    }
    m_bar.StopSearchProgress(); // a picture does not move
    Events().ParentWasTold("A search of three seconds: \"" + m_bar.GetText(0) + "\"");
}
