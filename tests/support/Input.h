#pragma once

#include "modes/WindowFacts.h"

#include <afxwin.h>

#include <functional>
#include <string>
#include <vector>

// The pointer and the keyboard, through the system, exact to the pixel. All points are screen
// points; each verb pumps afterwards, so what it causes has happened when it returns.

// Screen point of a point of a window's client area, or of the window with its non-client area.
CPoint ClientPoint(HWND window, CPoint point);
CPoint WindowPoint(HWND window, CPoint point);

CRect ClientRectOf(HWND window); // from (0, 0)
CRect WindowRectOf(HWND window); // on the screen

// As its class gives it.
template <class Window> std::string TextOf(const Window& window)
{
    CString text;
    window.GetWindowText(text);
    return text.GetString();
}

void MoveTo(CPoint point);
void Press();
void Release();
void Press(CPoint point); // moves there before
void Release(CPoint point);
bool IsPressed(); // the left button, asked of the system now
void Click(CPoint point);
void Wheel(int delta); // at the pointer's place
// Presses at from, goes to to in so many moves, releases. DragTo does only the moves.
void Drag(CPoint from, CPoint to, int steps = 4);
void DragTo(CPoint to, int steps = 4);
// Into the corner, away from every window of a test.
void RestPointer();

// For a control that runs a loop of its own on a press: both are queued before anything is pumped.
void QueueClick(CPoint point);

// The same as single events, which pump nothing, for the steps below.
void QueueMove(CPoint point);
void QueueButton(bool down, bool right = false);
void QueueKey(UINT key, bool down);

// For a control that runs a loop of its own while a button is down: each step runs once all input
// before it has been handled, whoever pumps at that time. Returns when the last has run and all is
// pumped.
void PlaySteps(std::vector<std::function<void()>> steps);

void TypeKey(UINT key, UINT held = 0); // with another one held down
void TypeText(const char* text);
// What one has cut or copied, a key or a press of the middle button would paste in the next test.
void ForgetClipboard();

// The system's time for a double click, set for the life of a scope.
class DoubleClickTime
{
public:
    explicit DoubleClickTime(UINT milliseconds) { ::SetDoubleClickTime(milliseconds); }
    DoubleClickTime(const DoubleClickTime&) = delete;
    DoubleClickTime& operator=(const DoubleClickTime&) = delete;
    ~DoubleClickTime() { ::SetDoubleClickTime(m_before); }

private:
    UINT m_before = ::GetDoubleClickTime();
};
