#include "FlightDialog.h"

#include "resource.h"

#include <iterator>

namespace {

constexpr const char* Airports[] = {
    "EDDF Frankfurt", "EDDM Munich", "EGLL London", "EHAM Amsterdam", "KJFK New York",
    "LFPG Paris",     "LIRF Rome",   "LSZH Zurich", "OMDB Dubai",     "ZBAA Beijing",
};
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
        m_instrument.SetCheck(BST_CHECKED);
    }
    if (m_alternate.GetSafeHwnd() != nullptr)
    {
        m_alternate.SetCheck(BST_CHECKED);
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
    return TRUE;
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
    return CCustomPropPage::OnInitDialog();
}
