#include "support/MessageLog.h"

#include <algorithm>
#include <ostream>

void PrintTo(const Received& received, std::ostream* out)
{
    *out << std::hex << "0x" << received.message << "(0x" << received.wParam << ", 0x"
         << received.lParam << ")" << std::dec;
}

MessageLog::MessageLog(const CWnd& window, std::initializer_list<UINT> chosen)
    : m_window(window.GetSafeHwnd())
    , m_chosen(chosen)
{
    ::SetWindowSubclass(m_window, &MessageLog::Procedure, reinterpret_cast<UINT_PTR>(this),
                        reinterpret_cast<DWORD_PTR>(this));
}

MessageLog::~MessageLog()
{
    End();
}

void MessageLog::End()
{
    if (m_window != nullptr)
    {
        ::RemoveWindowSubclass(m_window, &MessageLog::Procedure, reinterpret_cast<UINT_PTR>(this));
        m_window = nullptr;
    }
}

LRESULT CALLBACK MessageLog::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                       UINT_PTR, DWORD_PTR log)
{
    auto& self = *reinterpret_cast<MessageLog*>(log);
    if (self.m_chosen.empty() ||
        std::find(self.m_chosen.begin(), self.m_chosen.end(), message) != self.m_chosen.end())
    {
        self.m_received.push_back({message, wParam, lParam});
    }
    if (message == WM_NCDESTROY)
    {
        self.End();
    }
    return ::DefSubclassProc(window, message, wParam, lParam);
}

std::vector<WPARAM> MessageLog::WParams(UINT message) const
{
    std::vector<WPARAM> parameters;
    for (const Received& received : m_received)
    {
        if (received.message == message)
        {
            parameters.push_back(received.wParam);
        }
    }
    return parameters;
}
