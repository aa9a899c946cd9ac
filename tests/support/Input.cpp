#include "support/Input.h"

#include "support/Pumping.h"

namespace {

void SendMouse(DWORD flags, CPoint point = CPoint(0, 0), int data = 0)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.mouseData = DWORD(data);
    if (flags & MOUSEEVENTF_ABSOLUTE)
    {
        // One more than the quotient: the system rounds down on the way back.
        input.mi.dx = point.x * 65536 / ::GetSystemMetrics(SM_CXSCREEN) + 1;
        input.mi.dy = point.y * 65536 / ::GetSystemMetrics(SM_CYSCREEN) + 1;
    }
    ::SendInput(1, &input, sizeof(input));
}

void SendKey(UINT key, DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = WORD(key);
    input.ki.wScan = WORD(::MapVirtualKey(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    if ((key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE)
    {
        input.ki.dwFlags |= KEYEVENTF_EXTENDEDKEY; // not those of the number pad
    }
    ::SendInput(1, &input, sizeof(input));
}

void MouseAndPump(DWORD flags, int data = 0, CPoint point = CPoint(0, 0))
{
    SendMouse(flags, point, data);
    PumpAll();
}

} // namespace

CPoint ClientPoint(HWND window, CPoint point)
{
    ::ClientToScreen(window, &point);
    return point;
}

CPoint WindowPoint(HWND window, CPoint point)
{
    return WindowRectOf(window).TopLeft() + point;
}

CRect ClientRectOf(HWND window)
{
    CRect rect;
    ::GetClientRect(window, &rect);
    return rect;
}

CRect WindowRectOf(HWND window)
{
    CRect rect;
    ::GetWindowRect(window, &rect);
    return rect;
}

void MoveTo(CPoint point)
{
    QueueMove(point);
    PumpAll();
}

void Press()
{
    MouseAndPump(MOUSEEVENTF_LEFTDOWN);
}

// With the place: another program's late word of where the pointer was may come between.
void Press(CPoint point)
{
    MoveTo(point);
    MouseAndPump(MOUSEEVENTF_LEFTDOWN | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, 0, point);
}

void Release()
{
    MouseAndPump(MOUSEEVENTF_LEFTUP);
}

void Release(CPoint point)
{
    MouseAndPump(MOUSEEVENTF_LEFTUP | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, 0, point);
}

bool IsPressed()
{
    return (::GetAsyncKeyState(VK_LBUTTON) & 0x8000) != 0;
}

void Click(CPoint point)
{
    Press(point);
    Release(point);
}

void Wheel(int delta)
{
    MouseAndPump(MOUSEEVENTF_WHEEL, delta);
}

void DragTo(CPoint to, int steps)
{
    CPoint from;
    ::GetCursorPos(&from);
    for (int step = 1; step <= steps; ++step)
    {
        MoveTo(CPoint(from.x + (to.x - from.x) * step / steps,
                      from.y + (to.y - from.y) * step / steps));
    }
}

void Drag(CPoint from, CPoint to, int steps)
{
    Press(from);
    DragTo(to, steps);
    Release();
}

void RestPointer()
{
    MoveTo(CPoint(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1));
}

void QueueClick(CPoint point)
{
    QueueMove(point);
    QueueButton(true);
    QueueButton(false);
    PumpAll();
}

void QueueMove(CPoint point)
{
    SendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, point);
}

void QueueButton(bool down, bool right)
{
    SendMouse(right ? (down ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_RIGHTUP)
                    : (down ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP));
}

void QueueKey(UINT key, bool down)
{
    SendKey(key, down ? 0 : KEYEVENTF_KEYUP);
}

namespace {

std::vector<std::function<void()>> stepsToPlay;
size_t nextStep = 0;
bool inStep = false;

// A timer's turn comes when no other message waits.
void CALLBACK PlayStep(HWND, UINT, UINT_PTR timer, DWORD)
{
    if (inStep)
    {
        return; // a step that pumps
    }
    if (nextStep < stepsToPlay.size())
    {
        inStep = true;
        stepsToPlay[nextStep]();
        ++nextStep;
        inStep = false;
    }
    else
    {
        ::KillTimer(nullptr, timer);
    }
}

} // namespace

void PlaySteps(std::vector<std::function<void()>> steps)
{
    constexpr int Bound = 60'000; // milliseconds, with the waits in steps
    stepsToPlay = std::move(steps);
    nextStep = 0;
    const UINT_PTR timer = ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &PlayStep);
    // A WM_QUIT of a step would end the pumping, and with it the steps.
    bool quit = false;
    PumpUntil(
        [&] {
            quit = TakeQuit() || quit;
            return nextStep >= stepsToPlay.size();
        },
        Bound);
    ::KillTimer(nullptr, timer);
    PumpAll();
    if (quit)
    {
        ::PostQuitMessage(0);
    }
}

void TypeKey(UINT key, UINT held)
{
    if (held != 0)
    {
        SendKey(held, 0);
    }
    SendKey(key, 0);
    PumpAll();
    SendKey(key, KEYEVENTF_KEYUP);
    if (held != 0)
    {
        SendKey(held, KEYEVENTF_KEYUP);
    }
    PumpAll();
}

void ForgetClipboard()
{
    if (::OpenClipboard(nullptr))
    {
        ::EmptyClipboard();
        ::CloseClipboard();
    }
}

void TypeText(const char* text)
{
    for (; *text != '\0'; ++text)
    {
        const SHORT key = ::VkKeyScan(*text);
        TypeKey(LOBYTE(key), (HIBYTE(key) & 1) != 0 ? VK_SHIFT : 0);
    }
}
