#include "ComboDialog.h"

#include "resource.h"

namespace {

constexpr const char* Runways[] = {"07L", "07R", "18", "25L", "25R"};
constexpr const char* Procedures[] = {"ILS", "RNP", "VOR", "Visual"};

} // namespace

ComboDialog::ComboDialog(IAppAccess* host)
    : CCustomDialog(IDD_GALLERY_COMBOS, nullptr, host)
{}

BOOL ComboDialog::Open(CWnd& owner)
{
    if (GetSafeHwnd() == nullptr && !Create(IDD_GALLERY_COMBOS, &owner))
    {
        return FALSE;
    }
    ShowWindow(SW_SHOW);
    return TRUE;
}

void ComboDialog::MoveTo(CPoint corner)
{
    SetWindowPos(nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

void ComboDialog::DoDataExchange(CDataExchange* exchange)
{
    CCustomDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_COMBOS_RUNWAY, m_departure);
    DDX_Control(exchange, IDOK, m_close);
}

BOOL ComboDialog::OnInitDialog()
{
    CCustomDialog::OnInitDialog();
    for (const char* runway : Runways)
    {
        m_departure.AddString(runway);
    }
    m_departure.SetCurSel(2);
    if (auto* const procedure =
            CCustomDropListCombo::FromWindow(::GetDlgItem(*this, IDC_COMBOS_PROCEDURE)))
    {
        for (const char* name : Procedures)
        {
            procedure->AddString(name);
        }
        procedure->SetCurSel(0);
    }
    return TRUE;
}
