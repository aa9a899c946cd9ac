#include <CustomDialog.h>
#include <CustomListBox.h>
#include <CustomPushbutton.h>
#include <OnBoardUIGeneral.h>

class HostDialog : public CCustomDialog
{
    using CCustomDialog::CCustomDialog;

    CCustomListBox m_airports;
    CCustomPushbutton m_mode, m_close; // an on-board dialog has no close box

    BOOL OnInitDialog() override
    {
        m_airports.SubclassDlgItem(101, this); // the template's controls become the library's
        m_mode.SubclassDlgItem(IDOK, this);
        m_close.SubclassDlgItem(IDCANCEL, this);
        for (const char* name : {"EDDF", "EDDM", "EGLL", "EHAM", "EKCH", "ESSA", "LFPG", "LSZH"})
        {
            m_airports.AddString(name);
        }
        return CCustomDialog::OnInitDialog();
    }

    void OnOK() override
    {
        CRect window, before, after;
        GetWindowRect(window);
        m_airports.GetWindowRect(before);
        COnBoardUIGeneral::SetAppMode(COnBoardUIGeneral::InOnBoardMode() ? STD : ONBOARD);
        m_airports.GetWindowRect(after); // changed already; the dialog's size is its host's
        SetWindowPos(nullptr, 0, 0, window.Width() * after.Width() / before.Width(),
                     window.Height() * after.Height() / before.Height(), SWP_NOMOVE | SWP_NOZORDER);
    }
};

class HostApp : public CWinApp
{
    BOOL InitInstance() override
    {
        COnBoardUIGeneral::SetStdModeGoals(); // the standard fonts for this screen
        HostDialog(100, nullptr).DoModal();
        return FALSE; // the dialog was all
    }
} theApp;
