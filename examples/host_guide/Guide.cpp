// The host of docs/hosts.md: each block of C++ that the guide shows stands here, and the build
// fails when one does not.

#include "GuideIds.h"

#include <AppAccess.h>
#include <CustomChecklistBox.h>
#include <CustomDialog.h>
#include <CustomDropListCombo.h>
#include <CustomEdit.h>
#include <CustomFormView.h>
#include <CustomListBox.h>
#include <CustomListCtrl.h>
#include <CustomPropPage.h>
#include <CustomPropSheet.h>
#include <CustomPushbutton.h>
#include <CustomRadiobutton.h>
#include <CustomStatic.h>
#include <CustomStatusBar.h>
#include <EFB.h>
#include <MultiTree.h>
#include <OnBoardUI.h>
#include <OnBoardUIGeneral.h>
#include <ZepMsgBoxDlg.h>

// Services --------------------------------------------------------------------------------------

class DeskFlightBag : public IEFB
{
public:
    const char* GetProviderName() override { return "Desk flight bag"; }

    void ShowVKB(bool show, VKB_SHOW_POS, HWND window) override
    {
        m_keyboardFor = show ? window : nullptr; // a real host shows its keyboard here
    }

private:
    HWND m_keyboardFor = nullptr;
};

class DeskHost : public IAppAccess
{
public:
    const char* GetProviderName() override { return "Desk"; }

    IEFB* GetEFB() override { return &m_flightBag; }

    bool GetAvailableArea(GAA_TYPE type, int& x, int& y, int& width, int& height) override
    {
        CRect area;
        if (type != GAA_WINDOW_AREA || !::SystemParametersInfo(SPI_GETWORKAREA, 0, &area, 0))
        {
            return IAppAccess::GetAvailableArea(type, x, y, width, height);
        }
        x = area.left;
        y = area.top;
        width = area.Width();
        height = area.Height();
        return true;
    }

private:
    DeskFlightBag m_flightBag;
};

// A control of the host's own -------------------------------------------------------------------

class FuelGauge : public CStatic
{
protected:
    afx_msg void OnPaint()
    {
        CPaintDC dc(this);
        CRect area;
        GetClientRect(&area);
        const bool dark = COnBoardUIGeneral::InOnBoardMode(); // asked at each paint
        dc.FillSolidRect(area, dark ? RGB(50, 50, 50) : ::GetSysColor(COLOR_BTNFACE));
        area.right = area.left + area.Width() * 2 / 3;
        dc.FillSolidRect(area, dark ? RGB(160, 160, 160) : RGB(60, 110, 60));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(FuelGauge, CStatic)
    ON_WM_PAINT()
END_MESSAGE_MAP()

// Other windows that follow the mode ------------------------------------------------------------

class RemarksPage : public CCustomPropPage
{
public:
    RemarksPage()
        : CCustomPropPage(IDD_SHEET_REMARKS)
    {}

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        CCustomPropPage::DoDataExchange(exchange);
        DDX_Control(exchange, IDC_REMARKS, m_remarks);
    }

private:
    CCustomEdit m_remarks;
};

class RemarksForm : public CCustomFormView
{
    DECLARE_DYNCREATE(RemarksForm) // for the frame, which makes it

    RemarksForm()
        : CCustomFormView(IDD_FORM_REMARKS)
    {}
    void DoDataExchange(CDataExchange* exchange) override;

    CCustomEdit m_remarks;
};

IMPLEMENT_DYNCREATE(RemarksForm, CCustomFormView)

void RemarksForm::DoDataExchange(CDataExchange* exchange)
{
    CCustomFormView::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_REMARKS, m_remarks);
}

class RemarksFrame : public CFrameWnd
{
public:
    void RecalcLayout(BOOL notify = TRUE) override
    {
        CFrameWnd::RecalcLayout(notify);
        CWnd* const form = GetDlgItem(AFX_IDW_PANE_FIRST);
        if (form == nullptr || m_status.GetSafeHwnd() == nullptr)
        {
            return;
        }
        m_status.SendMessage(WM_SIZE); // takes the lower edge, as high as the mode has it
        CRect bar, place;
        m_status.GetWindowRect(&bar);
        form->GetWindowRect(&place);
        place.bottom = bar.top;
        ScreenToClient(&place);
        form->MoveWindow(&place);
    }

protected:
    afx_msg int OnCreate(CREATESTRUCT* cs)
    {
        return CFrameWnd::OnCreate(cs) != -1 &&
                       m_status.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this,
                                       AFX_IDW_STATUS_BAR)
                   ? 0
                   : -1;
    }
    DECLARE_MESSAGE_MAP()

private:
    CCustomStatusBar m_status;
};

BEGIN_MESSAGE_MAP(RemarksFrame, CFrameWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

// A dialog --------------------------------------------------------------------------------------

class FlightDialog : public CCustomDialog
{
public:
    explicit FlightDialog(IAppAccess* host)
        : CCustomDialog(IDD_FLIGHT, nullptr, host)
        , m_services(host)
    {}

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        CCustomDialog::DoDataExchange(exchange);
        DDX_Control(exchange, IDC_AIRPORTS, m_airports);
        DDX_Control(exchange, IDC_EQUIPMENT, m_equipment);
        DDX_Control(exchange, IDC_RUNWAY, m_runway);
        DDX_Control(exchange, IDC_LEGS, m_legs);
        DDX_Control(exchange, IDC_REMARKS, m_remarks);
        DDX_Control(exchange, IDC_RULES, m_rules);
        DDX_Control(exchange, IDC_VISUAL, m_visual);
        DDX_Control(exchange, IDC_INSTRUMENT, m_instrument);
        DDX_Control(exchange, IDC_GAUGE, m_gauge);
        DDX_Control(exchange, IDC_MODE, m_mode);
        DDX_Control(exchange, IDC_ASK, m_ask);
        DDX_Control(exchange, IDC_SHEET, m_sheet);
        DDX_Control(exchange, IDC_FORM, m_form);
        DDX_Control(exchange, IDOK, m_ok);
    }

    BOOL OnInitDialog() override
    {
        CCustomDialog::OnInitDialog(); // attaches the controls, then scales them
        m_route.SubclassTreeCtrlId(IDC_ROUTE, this);
        FillAirports();
        FillEquipment();
        FillRunways();
        FillLegs();
        FillRoute();
        m_visual.SetCheck(BST_CHECKED);
        return TRUE;
    }

    afx_msg void OnAirport();
    afx_msg void OnEquipment();
    afx_msg void OnRunway();
    afx_msg void OnLegClick(NMHDR* header, LRESULT* result);
    afx_msg void OnMode();
    afx_msg void OnAsk();
    afx_msg void OnSheet();
    afx_msg void OnForm();
    afx_msg LRESULT OnEndSession(WPARAM ending, LPARAM reason);
    DECLARE_MESSAGE_MAP()

private:
    void FillAirports();
    void FillEquipment();
    void FillRunways();
    void FillLegs();
    void FillRoute();
    void SwitchMode(APPMODE mode);

    IAppAccess* m_services;
    HWND m_frame = nullptr; // of the form
    CCustomListBox m_airports;
    CCustomChecklistBox m_equipment;
    CCustomDropListCombo m_runway;
    CCustomListCtrl m_legs;
    MultiTree m_route;
    CCustomEdit m_remarks;
    CCustomStatic m_rules;
    CCustomRadiobutton m_visual;
    CCustomRadiobutton m_instrument;
    FuelGauge m_gauge;
    CCustomPushbutton m_mode;
    CCustomPushbutton m_ask;
    CCustomPushbutton m_sheet;
    CCustomPushbutton m_form;
    CCustomPushbutton m_ok;
};

BEGIN_MESSAGE_MAP(FlightDialog, CCustomDialog)
    ON_LBN_SELCHANGE(IDC_AIRPORTS, &FlightDialog::OnAirport)
    ON_CONTROL(CLBN_CHKCHANGE, IDC_EQUIPMENT, &FlightDialog::OnEquipment)
    ON_CBN_SELCHANGE(IDC_RUNWAY, &FlightDialog::OnRunway)
    ON_NOTIFY(NM_CLICK, IDC_LEGS, &FlightDialog::OnLegClick)
    ON_BN_CLICKED(IDC_MODE, &FlightDialog::OnMode)
    ON_BN_CLICKED(IDC_ASK, &FlightDialog::OnAsk)
    ON_BN_CLICKED(IDC_SHEET, &FlightDialog::OnSheet)
    ON_BN_CLICKED(IDC_FORM, &FlightDialog::OnForm)
    ON_MESSAGE(WM_ENDSESSION, &FlightDialog::OnEndSession)
END_MESSAGE_MAP()

void FlightDialog::FillAirports()
{
    for (const char* name : {"EDDF Frankfurt", "EGLL London", "EHAM Amsterdam", "LSZH Zurich"})
    {
        m_airports.AddString(name);
    }
    m_airports.SetCurSel(0);
}

void FlightDialog::OnAirport()
{
    CString name;
    m_airports.GetText(m_airports.GetCurSel(), name);
    SetWindowText("Flight to " + name);
}

void FlightDialog::FillEquipment()
{
    m_equipment.SetCheckStyle(BS_AUTO3STATE);
    m_equipment.AddString("Transponder");
    m_equipment.AddString("Weather radar");
    m_equipment.SetCheck(0, 1);
    m_equipment.Enable(1, FALSE); // can be selected, not checked
}

void FlightDialog::OnEquipment()
{
    m_remarks.SetWindowText(m_equipment.GetCheck(0) == 1 ? "Mode S" : "No transponder");
}

void FlightDialog::FillRunways()
{
    for (const char* runway : {"07L", "07R", "18", "25L", "25R"})
    {
        m_runway.AddString(runway);
    }
    m_runway.SetCurSel(0); // without a selection the arrow keys select nothing
}

void FlightDialog::OnRunway()
{
    SetWindowText("Runway " + m_runway.GetSelString());
}

void FlightDialog::FillLegs()
{
    // Widths in pixels of the standard mode, in whatever mode they are given.
    m_legs.InsertColumn(0, "From", LVCFMT_LEFT, 50);
    m_legs.InsertColumn(1, "To", LVCFMT_LEFT, 50);
    m_legs.InsertColumn(2, "Miles", LVCFMT_RIGHT, 50); // on-board it fills the list
    m_legs.SetMinColWidth(20);
    m_legs.InsertItem(0, "EDDF");
    m_legs.SetItemText(0, 1, "EGLL");
    m_legs.SetItemText(0, 2, "355");
}

void FlightDialog::OnLegClick(NMHDR* header, LRESULT* result)
{
    const auto* const click = reinterpret_cast<const NMITEMACTIVATE*>(header);
    if (click->iItem >= 0)
    {
        SetWindowText("Leg from " + m_legs.GetItemText(click->iItem, 0));
    }
    *result = 0;
}

void FlightDialog::FillRoute()
{
    const HTREEITEM route = m_route.InsertItem("EDDF - EGLL");
    for (const char* point : {"TOBAK", "NOKDI", "SUMUM"})
    {
        m_route.InsertItem(point, route);
    }
    m_route.Expand(route, TVE_EXPAND);
}

void FlightDialog::SwitchMode(APPMODE mode)
{
    const int visual = m_visual.GetCheck(); // the two kinds of mode keep their own checks
    const int instrument = m_instrument.GetCheck();
    CRect before, after, window;
    m_legs.GetWindowRect(&before);
    GetWindowRect(&window);

    SetOnBoardAppMode(mode); // every window of the library has followed when this returns
    OnBoardSetSysColors(mode);

    m_visual.SetCheck(visual);
    m_instrument.SetCheck(instrument);
    m_legs.GetWindowRect(&after); // the dialog's own size is its host's
    SetWindowPos(nullptr, 0, 0, ::MulDiv(window.Width(), after.Width(), before.Width()),
                 ::MulDiv(window.Height(), after.Height(), before.Height()),
                 SWP_NOMOVE | SWP_NOZORDER);
    EnsureWndVisible(m_services, GetSafeHwnd());
    if (auto* const frame = DYNAMIC_DOWNCAST(CFrameWnd, FromHandlePermanent(m_frame)))
    {
        frame->RecalcLayout(); // its status bar has another height
    }
}

void FlightDialog::OnMode()
{
    SwitchMode(COnBoardUIGeneral::InOnBoardMode() ? STD : ONBOARD);
}

void FlightDialog::OnAsk()
{
    CZepMsgBoxDlg box("The route has changed.\nFile it again?",
                      MB_YESNOCANCEL | MB_ICONQUESTION | MB_DEFBUTTON2, CSize(600, 400),
                      m_services);
    box.DoModal();
    if (box.GetButtonPressed() == IDYES)
    {
        SetWindowText("Filed");
    }
}

void FlightDialog::OnSheet()
{
    RemarksPage remarks;
    CCustomPropSheet sheet("Particulars", m_services, this);
    sheet.AddPage(&remarks);
    sheet.DoModal();
}

void FlightDialog::OnForm()
{
    if (auto* const open = DYNAMIC_DOWNCAST(CFrameWnd, FromHandlePermanent(m_frame)))
    {
        open->ActivateFrame();
        return;
    }
    CCreateContext form = {};
    form.m_pNewViewClass = RUNTIME_CLASS(RemarksForm);
    auto* const frame = new RemarksFrame; // deletes itself with its window, as the form does
    if (frame->Create(nullptr, "Remarks", WS_OVERLAPPEDWINDOW, CRect(80, 80, 620, 320), this,
                      nullptr, 0, &form))
    {
        m_frame = *frame;
        frame->InitialUpdateFrame(nullptr, TRUE); // initialises the form and shows the frame
    }
}

LRESULT FlightDialog::OnEndSession(WPARAM ending, LPARAM)
{
    if (ending)
    {
        OnBoardRestoreSysColors(); // the program may be ended without another word
    }
    return 0;
}

// Start-up --------------------------------------------------------------------------------------

class DeskApp : public CWinApp
{
    DeskHost m_host;

    BOOL InitInstance() override
    {
        ::CoInitialize(nullptr);              // assistive programs reach the windows by it
        COnBoardUIGeneral::SetStdModeGoals(); // before the first control of the standard mode
        SetOnBoardAppTitle("Flight desk");    // of message boxes
        CCustomDropListCombo::RegisterWndClass(AfxGetInstanceHandle()); // templates may name it
        CCustomEdit::SetEfb(m_host.GetEFB());
        CCustomDialog::SetEfb(m_host.GetEFB());
        CCustomPropSheet::SetEfb(m_host.GetEFB());
        FlightDialog flight(&m_host);
        m_pMainWnd = &flight; // the owner of message boxes
        flight.DoModal();
        return FALSE; // the dialog was all
    }

    int ExitInstance() override
    {
        CCustomEdit::SetEfb(nullptr); // the flight bag ends with this object
        CCustomDialog::SetEfb(nullptr);
        CCustomPropSheet::SetEfb(nullptr);
        OnBoardRestoreSysColors(); // they are the whole system's
        return CWinApp::ExitInstance();
    }
} theApp;
