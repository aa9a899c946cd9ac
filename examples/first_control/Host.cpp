// The README's first example, kept the same as there.

#include <CustomListBox.h>
#include <OnBoardUI.h>
#include <OnBoardUIGeneral.h>

class HostFrame : public CFrameWnd
{
public:
    HostFrame()
    {
        Create(nullptr, "Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(50, 50, 650, 450));
        m_list.CreateEx(WS_EX_CLIENTEDGE, "LISTBOX", "",
                        WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT |
                            LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, // rows drawn by the library
                        CRect(20, 20, 420, 340), this, 100);
        for (int leg = 1; leg <= 60; ++leg)
        {
            CString text;
            text.Format("Leg %d", leg);
            m_list.AddString(text);
        }
    }

private:
    CCustomListBox m_list;
};

class HostApp : public CWinApp
{
    BOOL InitInstance() override
    {
        COnBoardUIGeneral::SetStdModeGoals(); // the standard fonts for this screen
        SetOnBoardAppMode(ONBOARD);
        OnBoardSetSysColors(ONBOARD); // system-wide, so ...
        m_pMainWnd = new HostFrame;
        return TRUE;
    }

    int ExitInstance() override
    {
        OnBoardRestoreSysColors(); // ... the host gives them back
        return CWinApp::ExitInstance();
    }
} theApp;
