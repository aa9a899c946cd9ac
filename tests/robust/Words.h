#pragma once

#include "support/Canvas.h"
#include "support/Input.h"
#include "support/MessageLog.h"

#include <cstdint>
#include <random>

// What windows of each kind are sent and what they tell, for storms and deaths.

// What stands in for a parameter of a message.
enum class Argument
{
    None,
    Flag,   // 0 or 1
    Row,    // an index near the rows that there are, also just outside
    Small,  // -3 to 20
    Length, // -20 to 400
    Data,   // any value
    Letter, // a character
    Text,   // a text that lasts
    Buffer, // room for an answer
    Place,  // a rectangle
    Point,  // packed client coordinates
    Font,
    Timer,    // the id of one that the library sets
    ListItem, // an LVITEM with a text, and room for another
    TreeItem, // an item of the tree, or none
    Fixed,    // what the word says
    Three,    // 0 to 2
    UiState,  // what WM_UPDATEUISTATE takes
    Context,  // a device context of memory
    Printed,  // what WM_PRINTCLIENT is to draw
    Child,    // a window in it, or none
    HeadItem, // an HDITEM
    Hit,      // what a hit test takes: a point, with room behind it
    Edges,    // of three panes of a status bar
    Places,   // of the headings that there are, and room for more
    Heading,  // an LVCOLUMN
    Branch,   // a TVITEM
    Order,    // what compares two values
    Pictures, // an image list, or none
};

struct Word
{
    UINT message;
    Argument wParam = Argument::None;
    Argument lParam = Argument::None;
    WPARAM fixed = 0;
};

// What any window understands.
extern const std::vector<Word> CommonWords;
// What the platform and assistive programs send to any window.
extern const std::vector<Word> AnyWords;
// Whether it is an edit of the platform's, which no object has.
bool IsPlainEdit(HWND window);
// Of the platform's control that it is. May be empty.
const std::vector<Word>& WordsOf(HWND window);

// Values for parameters: random ones, the same for the same seed, or without a seed likely ones.
class Arguments
{
public:
    explicit Arguments(std::uint32_t seed = 0)
        : m_seed(seed)
        , m_random(seed)
    {}

    int Between(int first, int last);
    template <class Values> const auto& OneOf(const Values& values)
    {
        return values[size_t(Between(0, int(std::size(values)) - 1))];
    }
    const char* Words() { return OneOf(m_texts).c_str(); }
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

private:
    std::uint32_t m_seed;
    std::mt19937 m_random;
    // Each also ends as one of wide characters.
    std::string m_texts[4] = {std::string(3, '\0'),
                              {"Row 7\0\0", 7},
                              {"Waypoint\0\0", 10},
                              std::string(300, 'W') + std::string(3, '\0')};
    std::vector<char> m_room = std::vector<char>(0x10000);
    Canvas m_canvas{300, 200};

    template <class Record> LPARAM InRoom(const Record& record);
};

// What a control has its parent hear, as the platform's control sends it: the questions of painting
// and measuring, notifications with their structures. Each lasts until the next.
class ToParent
{
public:
    explicit ToParent(Arguments& arguments)
        : m_arguments(arguments)
    {}

    Received Next(HWND control);

private:
    Arguments& m_arguments;
    union {
        NMHDR header;
        NMITEMACTIVATE list;
        NMLVGETINFOTIP tip;
        NMTREEVIEW tree;
        NMHEADER heading;
        NMTOOLBAR button;
        DRAWITEMSTRUCT draw;
        MEASUREITEMSTRUCT measure;
        char room[512];
    } m_said = {};

    Received Drawn(HWND control, UINT kind);
    Received Notified(HWND control, UINT code);
};

constexpr UINT DragWatch = 2566;
constexpr UINT TimerIds[] = {101, 102, 103, 104, 105, 106, 1011, 1189, 1190, 1278, DragWatch};
// The id of one of our timers that went on in a window of this thread, or 0; now all are at an end.
int EndTimers();
// How many ticks of any timer come within so many milliseconds.
int TicksWithin(int milliseconds);
