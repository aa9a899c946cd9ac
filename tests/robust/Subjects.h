#pragma once

#include "catalog/Controls.h"

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

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
    ListItem, // an LVITEM
    TreeItem, // an item of the tree, or none
    Fixed,    // what the word says
};

// A message of a control's own.
struct Word
{
    UINT message;
    Argument wParam = Argument::None;
    Argument lParam = Argument::None;
    WPARAM fixed = 0;
};

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
};

const std::vector<Subject>& Subjects();

// A press of the middle button pastes in an edit of a later test what one of these has cut.
void ForgetClipboard();
