#pragma once

#include "catalog/Controls.h"
#include "robust/FocusGiver.h"
#include "robust/Words.h"
#include "support/Fenced.h"

#include <memory>
#include <optional>
#include <ostream>

// Every control and window of the library, as the tests of the whole take them: made by a host on a
// parent, filled, and used by what is its own.

struct Subject
{
    const char* name;
    // On parent, visible, filled, with the id ControlId if it is a child. Null when it could not
    // be.
    std::function<std::unique_ptr<CWnd>(CWnd& parent)> make;
    // Whether a press makes the platform run a loop until the button is released.
    bool pressesLoop = false;
};

const std::vector<Subject>& Subjects();

// For windows with bars of their own: empty, or what is wrong with its state.
std::optional<std::string> FaultOf(CWnd& window);
// One thing that a host does with it by its functions; whether there is any.
bool ActOn(CWnd& window, Arguments& arguments);
// What a user and a host began and may leave going on is ended.
void Rest(CWnd& window);
// A window of it that is not among its children, or none.
HWND PartOf(CWnd& window);

// Asked, if it is set, by each control before each of its messages: whether it was ended in that.
inline bool (*EndsItself)(const CWnd& control, UINT message) = nullptr;
// How many messages the platform's part of a control is at work on; it goes on after what it tells
// the control in them. In WM_WINDOWPOSCHANGED it is the system itself, which knows when to stop.
inline int PlatformWorks = 0;

template <class Base> struct Mortal : Fenced<Base>
{
    using Fenced<Base>::Fenced;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return EndsItself != nullptr && EndsItself(*this, message)
                   ? 0
                   : Base::WindowProc(message, wParam, lParam);
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        // The system menu runs a loop of the platform's own, which not each Escape ends.
        const HWND root = ::GetAncestor(this->m_hWnd, GA_ROOT);
        if (message == WM_CONTEXTMENU && (::GetWindowLong(root, GWL_STYLE) & WS_SYSMENU) != 0)
        {
            return 0;
        }
        const FocusGiver giver(this->m_hWnd, message);
        const int works = message != WM_WINDOWPOSCHANGED;
        PlatformWorks += works;
        const LRESULT result = Base::DefWindowProc(message, wParam, lParam);
        PlatformWorks -= works;
        return result;
    }
};

// In the names of tests and in what they print.
std::string TestName(std::string words);
inline void PrintTo(const Subject& subject, std::ostream* out)
{
    *out << subject.name;
}
