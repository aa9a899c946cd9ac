#pragma once

#include "framework/Wnd.h"

class CException;

// A thread's message loop.
class FRAMEWORK_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread() = default;
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr; // when it is destroyed, the thread quits
    MSG m_msgCur = {};

    virtual BOOL InitInstance() { return FALSE; }
    virtual int ExitInstance() { return int(m_msgCur.wParam); }
    // Pumps messages until WM_QUIT; gives ExitInstance's value.
    virtual int Run();
    // Waits for one message and dispatches it; FALSE on WM_QUIT.
    virtual BOOL PumpMessage();
    virtual BOOL PreTranslateMessage(MSG* message);
    // Idle work in rounds; TRUE asks for another round. Drops temporary objects.
    virtual BOOL OnIdle(LONG count);
    virtual BOOL IsIdleMessage(MSG* message);
    virtual CWnd* GetMainWnd() { return m_pMainWnd; }
    // A handler of this message threw, and nobody caught it; gives the message's result. The window
    // that was to be created is not, what was to be painted is done with, and else nothing happens.
    // The exception is deleted afterwards.
    virtual LRESULT ProcessWndProcException(CException* thrown, const MSG* message);

private:
    UINT m_lastMove = 0;
    POINT m_lastMovePoint = {};
};
