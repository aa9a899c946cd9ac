#pragma once

#include <afxwin.h>

#include <functional>
#include <optional>
#include <set>
#include <vector>

// A message that the host window was sent.
struct ToldMessage
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam; // dead once the message is done, if it is a pointer
    UINT id;       // of the control, for WM_COMMAND and WM_NOTIFY
    UINT code;     // the notification
    // A hook sets it to answer in the place of the host.
    std::optional<LRESULT> answer;
};

// What comes with a notification, or with a message that brings a record.
template <class Record> Record& About(const ToldMessage& told)
{
    return *reinterpret_cast<Record*>(told.lParam);
}

// The window that a test puts its controls on: it writes down what it is told and can act on it.
// No frame: client and window are the same 800 x 600 pixels at (100, 80) of the screen.
class HostWindow : public CWnd
{
public:
    HostWindow();

    // WM_COMMAND, WM_NOTIFY and what was asked for, in order.
    const std::vector<ToldMessage>& Told() const { return m_told; }
    // The notification codes of one control, in order.
    std::vector<UINT> CodesFrom(UINT id) const;
    int Count(UINT message) const;
    void Forget() { m_told.clear(); }
    void AlsoRecord(std::initializer_list<UINT> messages) { m_recorded.insert(messages); }

    // Called inside each recorded message, before the host's own default: to destroy the sender,
    // to change the mode, to answer.
    using Hook = std::function<void(ToldMessage&)>;
    Hook hook;
    // The same, in notifications of one code only, or in one message, which is recorded from now
    // on.
    void OnCode(UINT code, const Hook& act)
    {
        hook = [=](ToldMessage& told) { told.code == code ? act(told) : void(); };
    }
    void OnMessage(UINT message, const Hook& act)
    {
        AlsoRecord({message});
        hook = [=](ToldMessage& told) { told.message == message ? act(told) : void(); };
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    std::set<UINT> m_recorded = {WM_COMMAND, WM_NOTIFY};
    std::vector<ToldMessage> m_told;
};
