#pragma once

#include "catalog/Controls.h"
#include "robust/FocusGiver.h"
#include "support/Fenced.h"

#include <gtest/gtest.h>

#include <afxcmn.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <ostream>
#include <random>
#include <string>
#include <vector>

class CFauxScrollBar;

// Every control and window of the library, as the tests of the whole take them: made by a host on a
// parent, filled, with the messages that are its own.

// What stands in for a parameter of a message.
enum class Argument
{
    None,
    Flag,   // 0 or 1
    Row,    // an index near the rows that there are, also just outside
    Small,  // -3 to 20
    Pixels, // -20 to 400
    Data,   // any value
    Letter, // a character
    Text,   // a text that lasts
    Buffer, // room for an answer
    Place,  // a rectangle
    Point,  // packed client coordinates
    Font,
    Timer,    // the id of one that the library sets
    ListItem, // an LVITEM
    TreeItem, // an item of the tree, or none
    Fixed,    // what the word says
    Three,    // 0 to 2
    UiState,  // what WM_UPDATEUISTATE takes
    Canvas,   // a device context of memory
    Printed,  // what WM_PRINTCLIENT is to draw
    Child,    // a window in it, or none
    HeadItem, // an HDITEM
    Hit,      // what a hit test takes: a point, with room behind it
    Edges,    // of three panes of a status bar
};

// A message of a control's own.
struct Word
{
    UINT message;
    Argument wParam = Argument::None;
    Argument lParam = Argument::None;
    WPARAM fixed = 0;
};

class Arguments;

struct Subject
{
    const char* name;
    // On parent, visible, filled, with the id ControlId if it is a child. Null when it could not
    // be.
    std::function<std::unique_ptr<CWnd>(CWnd& parent)> make;
    std::vector<Word> words = {};
    // Empty, or what is wrong with the control's own state.
    std::function<std::string(CWnd&)> fault = {};
    // Whether a press makes the platform run a loop until the button is released.
    bool pressesLoop = false;
    // One thing that a host does with it by its functions.
    std::function<void(CWnd&, Arguments&)> act = {};
    // How a user and a host come to rest: what they began and may leave going on is ended.
    std::function<void(CWnd&)> rest = {};
    // A window of it that is not among its children, or none.
    std::function<HWND(CWnd&)> part = {};
};

// The controls.
const std::vector<Subject>& Subjects();
// These and the windows that are no controls, with what only storms do.
const std::vector<Subject>& AllSubjects();

// Empty, or how a bar is out of its range.
std::string FaultOf(const CFauxScrollBar& bar);

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

constexpr UINT TimerIds[] = {101, 102, 103, 104, 105, 106, 1011, 1189, 1190, 1278, 2566};

// What any window understands.
extern const std::vector<Word> CommonWords;

// Values for parameters: random ones, the same for the same seed, or without a seed likely ones.
class Arguments
{
public:
    explicit Arguments(std::uint32_t seed = 0)
        : m_seed(seed)
        , m_random(seed)
    {}
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;

    int Between(int first, int last);
    // Valid until the next one.
    LPARAM Value(Argument argument, HWND window);
    WPARAM First(const Word& word, HWND window)
    {
        return word.wParam == Argument::Fixed ? word.fixed : WPARAM(Value(word.wParam, window));
    }
    LPARAM Second(const Word& word, HWND window)
    {
        return word.lParam == Argument::Fixed ? LPARAM(word.fixed) : Value(word.lParam, window);
    }
    const char* Words() { return m_texts[Between(0, 3)].c_str(); }

private:
    std::uint32_t m_seed;
    std::mt19937 m_random;
    std::string m_texts[4] = {"", "Row 7", "Waypoint", std::string(300, 'W')};
    std::vector<char> m_room = std::vector<char>(0x10000);
    CRect m_place;
    LVITEM m_item = {};
    HDITEM m_headItem = {};
    CBitmap m_bitmap; // of the canvas, which ends before it
    CDC m_canvas;
    int m_edges[3] = {};
};

// A press of the middle button pastes in an edit of a later test what one of these has cut.
void ForgetClipboard();
