#include "CombosPage.h"

#include "resource.h"

#include <OnBoardUIGeneral.h>

namespace {

constexpr UINT FirstId = IDC_PAGE_FIRST;

constexpr int Columns = 2;

struct ComboPlace
{
    const char* caption;
    int column;
    int top;
};

// The long list drops down a column of its own.
constexpr ComboPlace Places[] = {
    {"Two hundred", 0, 0},
    {"A few", 1, 0},
    {"Disabled", 1, 54},
    {"Empty", 1, 108},
};

struct OpenerPlace
{
    const char* caption;
    int top;
};

constexpr OpenerPlace Openers[] = {{"In a dialog", 168},
                                   {"At the screen's bottom", 168 + grid::PushStep}};

constexpr const char* Airports[] = {
    "EDDF Frankfurt",
    "EGLL London",
    "EHAM Amsterdam",
    "LSZH Zurich",
};

constexpr int ManyItems = 200;

} // namespace

BEGIN_MESSAGE_MAP(CombosPage, GalleryPage)
    ON_WM_SHOWWINDOW()
    ON_CONTROL_RANGE(CBN_SELCHANGE, FirstId, FirstId + ComboCount - 1, &CombosPage::OnSelChange)
    ON_BN_CLICKED(FirstId + InDialog, &CombosPage::OnDialog)
    ON_BN_CLICKED(FirstId + BottomEdge, &CombosPage::OnBottomEdge)
END_MESSAGE_MAP()

CombosPage::CombosPage(IAppAccess& host, GalleryEvents& events)
    : GalleryPage(host, events)
    , m_dialog(&host)
{}

void CombosPage::CreateContent()
{
    // For the dialog's template.
    CCustomDropListCombo::RegisterWndClass(AfxGetInstanceHandle());
    for (int index = 0; index < ComboCount; ++index)
    {
        const ComboPlace& place = Places[index];
        AddLabel(place.caption, grid::Cell(Columns, place.column, place.top, grid::Caption));
        const CRect design =
            grid::Cell(Columns, place.column, place.top + grid::CaptionStep, grid::Drop);
        CCustomDropListCombo& combo = m_combos[index];
        combo.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | (index == Disabled ? WS_DISABLED : 0),
                     design, this, FirstId + UINT(index));
        combo.SetFont(&CCustomDropListCombo::GetStdFont());
        Place(combo, design);
    }
    for (int item = 0; item < ManyItems; ++item)
    {
        CString text;
        text.Format("Waypoint %03d", item);
        m_combos[Many].AddString(text);
    }
    for (const char* airport : Airports)
    {
        m_combos[Few].AddString(airport);
        m_combos[Disabled].AddString(airport);
    }
    m_combos[Many].SetCurSel(3);
    m_combos[Few].SetCurSel(0);
    m_combos[Disabled].SetCurSel(1);

    for (int index = ComboCount; index < ControlCount; ++index)
    {
        const OpenerPlace& place = Openers[index - ComboCount];
        AddButton(m_openers[index - ComboCount], place.caption, PushStyle,
                  grid::Cell(Columns, 1, place.top, grid::Push), FirstId + UINT(index));
    }
}

void CombosPage::OnLaidOut()
{
    // Opened anew, the dialog has the size of the mode, whichever way the mode was reached.
    if (m_dialog.GetSafeHwnd() != nullptr && COnBoardUIGeneral::GetAppMode() != m_openedIn)
    {
        m_dialog.DestroyWindow();
        OpenDialog(m_atBottomEdge);
    }
}

void CombosPage::PoseForPicture()
{
    OpenDialog(false);
    CCustomDropListCombo& combo = m_combos[Many];
    combo.SetFocus();
    // Activated, the frame would cover it in a picture, for which it lies above all windows.
    ::SetWindowPos(m_dialog, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    if (!combo.IsExpanded())
    {
        combo.ToggleDropList();
    }
}

void CombosPage::OpenDialog(bool atBottomEdge)
{
    m_openedIn = COnBoardUIGeneral::GetAppMode();
    m_atBottomEdge = atBottomEdge;
    if (!m_dialog.Open(*this))
    {
        return;
    }
    CRect dialog;
    CRect opener;
    CRect screen;
    m_dialog.GetWindowRect(&dialog);
    m_openers[1].GetWindowRect(&opener);
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &screen, 0);
    m_dialog.MoveTo(CPoint(opener.left, atBottomEdge ? int(screen.bottom - dialog.Height())
                                                     : int(opener.bottom + opener.Height() / 3)));
}

void CombosPage::OnShowWindow(BOOL show, UINT status)
{
    GalleryPage::OnShowWindow(show, status);
    if (!show)
    {
        m_dialog.DestroyWindow(); // the dialog belongs to the page
    }
}

void CombosPage::OnSelChange(UINT id)
{
    const UINT index = id - FirstId;
    CString text;
    text.Format("CBN_SELCHANGE from '%s' (item %d)", Places[index].caption,
                m_combos[index].GetCurSel());
    Events().ParentWasTold(text);
}

void CombosPage::OnDialog()
{
    OpenDialog(false);
}

void CombosPage::OnBottomEdge()
{
    OpenDialog(true);
}
