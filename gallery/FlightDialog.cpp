#include "FlightDialog.h"

#include "Look.h"
#include "WindowMoves.h"
#include "resource.h"

#include <OnBoardUI.h>
#include <afxcmn.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr const char* Airports[] = {
    "EDDF Frankfurt", "EDDM Munich", "EGLL London", "EHAM Amsterdam", "KJFK New York",
    "LFPG Paris",     "LIRF Rome",   "LSZH Zurich", "OMDB Dubai",     "ZBAA Beijing",
};
constexpr COLORREF FlightColour = RGB(232, 120, 30);

constexpr const char* Remarks = "Taxi clearance is given on the apron frequency.\r\n"
                                "Birds near the approach path of runway 27.\r\n"
                                "Noise abatement: maximum thrust on takeoff, then power back.\r\n"
                                "Follow-me car compulsory on the cargo apron.\r\n"
                                "Approaches over the south until 0700 local time.";

} // namespace

void FlightControls::Attach(CWnd& dialog)
{
    m_callsign.SubclassDlgItem(IDC_FLIGHT_CALLSIGN, &dialog);
    m_remarks.SubclassDlgItem(IDC_FLIGHT_REMARKS, &dialog);
    m_alternate.SubclassDlgItem(IDC_FLIGHT_ALTERNATE, &dialog);
    m_visual.SubclassDlgItem(IDC_FLIGHT_VISUAL, &dialog);
    m_instrument.SubclassDlgItem(IDC_FLIGHT_INSTRUMENT, &dialog);
    m_rules.SubclassDlgItem(IDC_FLIGHT_RULES, &dialog);
    m_airports.SubclassDlgItem(IDC_FLIGHT_AIRPORTS, &dialog);
    constexpr UINT pushed[] = {IDOK, IDCANCEL, IDC_FLIGHT_ANOTHER};
    for (size_t index = 0; index < std::size(pushed); ++index)
    {
        m_buttons[index].SubclassDlgItem(pushed[index], &dialog);
    }
    if (dialog.GetDlgItem(IDC_FLIGHT_GATE) != nullptr)
    {
        AttachParticulars(dialog);
    }
    Fill();
}

void FlightControls::AttachParticulars(CWnd& dialog)
{
    m_caption.SubclassDlgItem(IDC_FLIGHT_CAPTION, &dialog);
    m_colour.SubclassDlgItem(IDC_FLIGHT_COLOUR, &dialog);
    m_colour.Set(FlightColour);
    m_frame.SubclassDlgItem(IDC_FLIGHT_FRAME, &dialog);
    m_frame.SetColor(FlightColour);
    m_route.SetPromptText("Waypoints");
    m_route.SubclassDlgItem(IDC_FLIGHT_ROUTE, &dialog);
    m_squawk.SubclassDlgItem(IDC_FLIGHT_SQUAWK, &dialog);
    m_squawk.SetTextColor(look::ColouredText);
    m_squawk.SetBackgroundColor(look::ColouredGround);
    m_squawk.SetWindowText("7000");
    // The library has not scaled anything yet.
    m_gatePlace = PlaceInParent(*dialog.GetDlgItem(IDC_FLIGHT_GATE));
    m_gate.SetFixedPlace(m_gatePlace.left, m_gatePlace.top, m_gatePlace.Width());
    m_gate.SubclassDlgItem(IDC_FLIGHT_GATE, &dialog);
    m_gate.SetWindowText("B 42");
}

void FlightControls::PlaceFixed()
{
    if (m_gate.GetSafeHwnd() != nullptr)
    {
        const CRect place = RectInMode(m_gatePlace);
        m_gate.SetFixedPlace(place.left, place.top, place.Width());
    }
}

void FlightControls::Fill()
{
    if (m_callsign.GetSafeHwnd() != nullptr)
    {
        m_callsign.SetWindowText("DLH 4711");
    }
    if (m_remarks.GetSafeHwnd() != nullptr)
    {
        m_remarks.SetWindowText(Remarks);
    }
    if (m_airports.GetSafeHwnd() != nullptr)
    {
        for (const char* airport : Airports)
        {
            m_airports.AddString(airport);
        }
        m_airports.SetCurSel(2);
    }
    if (m_instrument.GetSafeHwnd() != nullptr)
    {
        m_visual.SetCheck(BST_UNCHECKED); // takes the Tab key from it, which its template gave it
        m_instrument.SetCheck(BST_CHECKED);
    }
    if (m_alternate.GetSafeHwnd() != nullptr)
    {
        m_alternate.SetCheck(BST_CHECKED);
    }
}

std::vector<CCustomButton*> FlightControls::Choices()
{
    std::vector<CCustomButton*> there = {&m_alternate, &m_visual, &m_instrument};
    std::erase_if(there,
                  [](const CCustomButton* choice) { return choice->GetSafeHwnd() == nullptr; });
    return there;
}

void FlightControls::KeepChecks()
{
    m_checks.clear();
    for (const CCustomButton* const choice : Choices())
    {
        m_checks.push_back(choice->GetCheck());
    }
}

void FlightControls::PutChecks()
{
    const auto choices = Choices();
    for (size_t index = 0; index < std::min(choices.size(), m_checks.size()); ++index)
    {
        choices[index]->SetCheck(m_checks[index]);
    }
}

BEGIN_MESSAGE_MAP(FlightDialog, CCustomDialog)
    ON_BN_CLICKED(IDC_FLIGHT_ANOTHER, &FlightDialog::OnAnother)
END_MESSAGE_MAP()

FlightDialog::FlightDialog(CWnd* parent, IAppAccess* host, int depth)
    : CCustomDialog(IDD_GALLERY_FLIGHT, parent, host)
    , m_services(host)
    , m_depth(depth)
{}

BOOL FlightDialog::OpenModeless(CWnd& owner, CPoint corner)
{
    if (GetSafeHwnd() == nullptr && !Create(IDD_GALLERY_FLIGHT, &owner))
    {
        return FALSE;
    }
    SetWindowPos(nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ShowWindow(SW_SHOW);
    return TRUE;
}

BOOL FlightDialog::OnInitDialog()
{
    m_content.Attach(*this);
    CCustomDialog::OnInitDialog();
    if (m_depth > 0)
    {
        CString title;
        title.Format("Flight, opened by a dialog (%d)", m_depth);
        SetWindowText(title);
    }
    m_content.PlaceFixed();
    m_layout.Read(*this);
    NoteMode();
    PlaceOverOwner(*this, m_depth > 0 ? 2 * ::GetSystemMetrics(SM_CYCAPTION) : 0);
    return TRUE;
}

void FlightDialog::FollowMode()
{
    if (GetSafeHwnd() == nullptr)
    {
        return;
    }
    ResizeClient(*this, m_layout.ClientInMode());
    m_content.PlaceFixed();
    m_layout.Apply(*this);
    m_content.PutChecks();
    EnsureWndVisible(m_services, *this);
}

void FlightDialog::Close(int result)
{
    if (IsModal())
    {
        EndDialog(result);
    }
    else
    {
        DestroyWindow();
    }
}

void FlightDialog::OnAnother()
{
    FlightDialog(this, m_services, m_depth + 1).DoModal();
}

BOOL FlightPage::OnInitDialog()
{
    m_content.Attach(*this);
    const BOOL result = CCustomPropPage::OnInitDialog();
    m_layout.Read(*this);
    return result;
}

void FlightPage::FollowMode()
{
    m_layout.Apply(*this);
    m_content.PutChecks();
}

FlightSheet::FlightSheet(CWnd* parent, IAppAccess* host)
    : CCustomPropSheet("Flight plan", host, parent)
    , m_services(host)
    , m_pages{FlightPage(IDD_GALLERY_SHEET_GENERAL), FlightPage(IDD_GALLERY_SHEET_AIRPORTS),
              FlightPage(IDD_GALLERY_SHEET_REMARKS)}
{
    for (FlightPage& page : m_pages)
    {
        AddPage(&page);
    }
}

CRect FlightSheet::PageArea() const
{
    CRect area = PlaceInParent(*GetTabControl());
    GetTabControl()->AdjustRect(FALSE, &area);
    return area;
}

BOOL FlightSheet::OnInitDialog()
{
    const BOOL result = CCustomPropSheet::OnInitDialog();
    m_tabs = StandardRect(PlaceInParent(*GetTabControl()));
    m_page = StandardRect(PageArea()).Size();
    CRect item;
    GetTabControl()->GetItemRect(0, &item);
    m_tabItem = StandardRect(item).Size();
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP})
    {
        if (const CWnd* const button = GetDlgItem(id))
        {
            m_buttons.push_back({*button, StandardRect(PlaceInParent(*button))});
        }
    }
    NoteMode();
    PlaceOverOwner(*this);
    return result;
}

void FlightSheet::KeepState()
{
    for (FlightPage& page : m_pages)
    {
        page.KeepState();
    }
}

// The pages get what they need; the tabs of the mode, the buttons and the frame lie round them.
void FlightSheet::FollowMode()
{
    if (GetSafeHwnd() == nullptr)
    {
        return;
    }
    GetTabControl()->SetItemSize(RectInMode(CRect(CPoint(0, 0), m_tabItem)).Size());
    CRect tabs(RectInMode(m_tabs).TopLeft(), CSize(AcrossInMode(m_page.cx), DownInMode(m_page.cy)));
    const CPoint margin = tabs.TopLeft();
    GetTabControl()->AdjustRect(TRUE, &tabs);
    tabs.MoveToXY(margin);
    GetTabControl()->MoveWindow(&tabs);
    int bottom = tabs.bottom;
    {
        WindowMoves moves;
        for (FlightPage& page : m_pages)
        {
            if (page.GetSafeHwnd() != nullptr)
            {
                moves.Add(page, PageArea());
            }
        }
        for (const StandardPlace& button : m_buttons)
        {
            CRect place = RectInMode(button.place);
            place.MoveToXY(tabs.right - AcrossInMode(m_tabs.right - button.place.left),
                           tabs.bottom + DownInMode(button.place.top - m_tabs.bottom));
            moves.Add(button.window, place);
            bottom = std::max(bottom, int(place.bottom));
        }
    }
    for (FlightPage& page : m_pages)
    {
        if (page.GetSafeHwnd() != nullptr)
        {
            page.FollowMode();
        }
    }
    ResizeClient(*this, CSize(tabs.right + margin.x, bottom + margin.y));
    EnsureWndVisible(m_services, *this);
    Invalidate();
}
