#include "support/HostWindow.h"

#include <algorithm>

HostWindow::HostWindow()
{
    CreateEx(0,
             AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                 static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH))),
             "Host", WS_POPUP | WS_CLIPCHILDREN, 100, 80, 800, 600, nullptr, nullptr);
    ShowWindow(SW_SHOWNORMAL);
    SetForegroundWindow();
    UpdateWindow();
}

LRESULT HostWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_recorded.count(message) != 0)
    {
        ToldMessage told = {message, wParam, lParam, 0, 0, {}};
        if (message == WM_COMMAND)
        {
            told.id = LOWORD(wParam);
            told.code = HIWORD(wParam);
        }
        else if (message == WM_NOTIFY)
        {
            const auto* header = reinterpret_cast<const NMHDR*>(lParam);
            told.id = UINT(header->idFrom);
            told.code = header->code;
        }
        m_told.push_back(told);
        if (hook)
        {
            hook(told);
        }
        if (told.answer)
        {
            return *told.answer;
        }
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

std::vector<UINT> HostWindow::CodesFrom(UINT id) const
{
    std::vector<UINT> codes;
    for (const ToldMessage& told : m_told)
    {
        if ((told.message == WM_COMMAND || told.message == WM_NOTIFY) && told.id == id)
        {
            codes.push_back(told.code);
        }
    }
    return codes;
}

int HostWindow::Count(UINT message) const
{
    return int(std::count_if(m_told.begin(), m_told.end(),
                             [=](const ToldMessage& told) { return told.message == message; }));
}
