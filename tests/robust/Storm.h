#pragma once

#include "robust/Subjects.h"
#include "robust/Watch.h"

// A storm of messages on one window: whatever input, a parent, a host and the platform send it, in
// any order, in any mode. The same seed gives the same storm.
class Storm
{
public:
    Storm(const Subject& subject, std::uint32_t seed);
    Storm(const Storm&) = delete;
    Storm& operator=(const Storm&) = delete;

    // So many messages. Ends early when the window is gone.
    void Blow(CWnd& parent, CWnd& window, int messages);
    int Sent() const { return m_sent; }

    // A press somewhere on it, released as a hand does it.
    void Touch(CWnd& window);

    // Subject, seed and the last messages, for whoever has to find out.
    std::string Log() const;

private:
    static constexpr size_t Remembered = 24;

    const Subject& m_subject;
    std::uint32_t m_seed;
    Arguments m_arguments;
    ToParent m_toParent{m_arguments};
    std::vector<Received> m_last;
    int m_sent = 0;
    Watch m_watch;

    int Between(int first, int last) { return m_arguments.Between(first, last); }
    void Note(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    void Send(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void SendOne(HWND window, const std::vector<Word>& words);

    HWND Target(CWnd& window);
    std::pair<LPARAM, LPARAM> Somewhere(HWND window);
    void Input(HWND window);
    void Press(HWND window, UINT down, UINT up, WPARAM wParam, LPARAM point);
    bool PressBar(HWND window, LPARAM onScreen);
    void OtherButton(HWND window, LPARAM point);
    void Key(HWND window);
    void Life(CWnd& parent, CWnd& window);
    void TellParent(HWND window);
    void Ask(HWND window);
    void Use(CWnd& window, HWND target);
    void PumpSome();
};
