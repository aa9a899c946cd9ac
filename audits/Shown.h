#pragma once

#include "catalog/Controls.h"
#include "catalog/Pixels.h"

#include "AppMode.h"

#include <memory>
#include <string>
#include <vector>

// A window's class, and whether it has this name; upper and lower case are one.
std::string KindOf(const CWnd& window);
bool Is(const std::string& kind, const char* other);

// A window that is looked at by itself: the control, one within it, or one that it has popped up.
struct Part
{
    std::string kind; // its window class; empty for the control
    CWnd* window;     // as long as messages are not pumped
    bool hasText;     // to be read on the window itself
};

// A control that has come into the mode from the standard one, on a dialog with a label before it.
class Shown
{
public:
    // Ends the program where there is none to show.
    Shown(const Control& control, APPMODE mode, const std::string& text, int rows);
    ~Shown();

    CWnd& Window() { return *m_window; }
    std::vector<Part> Parts();
    // Takes the fixed texts of buttons from them, too.
    void BlankButtons();
    // Runs the messages until all is painted.
    void Settle();

private:
    class Stage;

    const Control& m_control;
    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<CWnd> m_window;

    CWnd& Top() const;
};

// What the screen shows of a part, without the windows within and before it.
Pixels PictureOf(const Part& part);

// Blanks at least as wide as the text in a window's font, so that nothing that follows a text's
// extent differs between the two.
std::string BlanksFor(const std::string& text, CWnd& window);
