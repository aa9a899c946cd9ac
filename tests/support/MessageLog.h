#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <initializer_list>
#include <iosfwd>
#include <vector>

// One message that a window received.
struct Received
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;

    friend bool operator==(const Received&, const Received&) = default;
    friend void PrintTo(const Received& received, std::ostream* out);
};

// Records chosen messages of a window, or all, in the order in which they arrive, before the window
// itself gets them. Ends with the window or with itself, whichever comes first.
class MessageLog
{
public:
    explicit MessageLog(const CWnd& window, std::initializer_list<UINT> chosen = {});
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;
    ~MessageLog();

    const std::vector<Received>& All() const { return m_received; }
    std::vector<WPARAM> WParams(UINT message) const;
    int Count(UINT message) const { return int(WParams(message).size()); }
    void Clear() { m_received.clear(); }

private:
    HWND m_window;
    std::vector<UINT> m_chosen;
    std::vector<Received> m_received;

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR id, DWORD_PTR log);
    void End();
};
