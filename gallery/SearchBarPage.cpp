#include "SearchBarPage.h"

#include "resource.h"

#include <CustomStatic.h>

namespace {

constexpr UINT FirstId = IDC_PAGE_FIRST;
constexpr UINT BarId = FirstId + 10;

// In pixels of the standard mode: two columns of buttons, a hint below.
constexpr int ButtonWidth = 124;
constexpr int ButtonHeight = 29;
constexpr int ColumnStep = 136;
constexpr int RowStep = 40;
constexpr int HintTop = 94;
constexpr int HintHeight = 60;
constexpr int HintWidth = ColumnStep + ButtonWidth;

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
        const CRect design(CPoint(index % 2 * ColumnStep, index / 2 * RowStep),
                           CSize(ButtonWidth, ButtonHeight));
        CCustomPushbutton& button = m_commands[index];
        button.Create(Captions[index], WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON, design,
                      this, FirstId + UINT(index));
        button.SetFont(&CCustomStatic::GetStdFont());
        Place(button, design);
    }
    AddLabel("A search gains a dot each second; loading stands still. Neither starts while the "
             "other goes on, and both keep their text when they are stopped.",
             CRect(CPoint(0, HintTop), CSize(HintWidth, HintHeight)));
    m_bar.Create(WS_CHILD | WS_VISIBLE | CCS_BOTTOM, CRect(0, 0, 0, 0), this, BarId);
}

void SearchBarPage::OnLaidOut()
{
    m_bar.SendMessage(WM_SIZE); // it takes its place at the page's edge by itself
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
