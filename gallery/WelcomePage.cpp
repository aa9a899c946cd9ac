#include "WelcomePage.h"

#include "Look.h"
#include "OpenDialog.h"
#include "Pages.h"
#include "resource.h"

#include <OnBoardUIGeneral.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr int Columns = 5; // the modes are five
constexpr int ButtonGap = 6;
constexpr int ButtonHeight = 42;
constexpr int GroupStep = grid::CaptionStep + ButtonHeight + 10;

constexpr int IntroTop = 20;
constexpr int IntroHeight = 48;
constexpr int ModesTop = IntroTop + IntroHeight + 8;
constexpr int HintTop = grid::Height - grid::Caption;

constexpr const char* Intro =
    "Every control of the library, as a host would use it. The display mode is the whole "
    "program's: change it at any time, here, by the switches above or by F5 to F9, and every "
    "window follows at once.";

// What the modes are to a user of the gallery, in the order of their values.
constexpr const char* ModeCaptions[] = {"Standard\nwindow", "On-board\nfull screen",
                                        "On-board\nwindow", "Flight bag\nwindow",
                                        "Flight bag\nfull screen"};
constexpr int ModeCount = int(std::size(ModeCaptions));
static_assert(ModeCount == int(std::size(APPMODE_NAMES)));

CRect Cell(int column, int top, int height, int span = 1)
{
    return grid::Cell(Columns, column, top, height, span, ButtonGap);
}

bool IsOneGroup(const PageEntry& first, const PageEntry& second)
{
    return ::lstrcmp(first.group, second.group) == 0;
}

} // namespace

BEGIN_MESSAGE_MAP(WelcomePage, GalleryPage)
    ON_CONTROL_RANGE(BN_CLICKED, ID_MODE_FIRST, ID_PAGE_LAST, &WelcomePage::OnButton)
END_MESSAGE_MAP()

void WelcomePage::CreateContent()
{
    const auto add = [this](const char* caption, DWORD style, UINT command, const CRect& design) {
        m_buttons.push_back(std::make_unique<CCustomPushbutton>());
        AddButton(*m_buttons.back(), caption, PushStyle | style, design, command);
    };

    m_title = &AddLabel("OnBoardUI Gallery", grid::Across(0, grid::Caption));
    AddLabel(Intro, grid::Across(IntroTop, IntroHeight));
    m_mode = &AddLabel("", grid::Across(ModesTop, grid::Caption));
    for (int mode = 0; mode < ModeCount; ++mode)
    {
        add(ModeCaptions[mode], BS_MULTILINE | (mode == 0 ? WS_GROUP : 0),
            UINT(ID_MODE_FIRST + mode), Cell(mode, ModesTop + grid::CaptionStep, ButtonHeight));
    }

    // A group of pages follows the one before in its row while all of it has room there.
    const auto pages = Pages();
    int top = ModesTop + GroupStep;
    int column = 0;
    for (size_t first = 1; first < pages.size();)
    {
        size_t end = first;
        while (end < pages.size() && IsOneGroup(pages[first], pages[end]))
        {
            ++end;
        }
        const int count = int(end - first);
        if (column > 0 && column + count > Columns)
        {
            column = 0;
            top += GroupStep;
        }
        AddLabel(pages[first].group, Cell(column, top, grid::Caption, std::min(count, Columns)));
        for (size_t page = first; page < end; ++page, ++column)
        {
            if (column == Columns)
            {
                column = 0;
                top += ButtonHeight + ButtonGap;
            }
            add(pages[page].title, page == first ? WS_GROUP : 0, UINT(ID_PAGE_FIRST + page),
                Cell(column, top + grid::CaptionStep, ButtonHeight));
        }
        first = end;
    }
    AddLabel("Tab and arrow keys move, the space bar presses.",
             grid::Across(HintTop, grid::Caption))
        .ModifyStyle(0, WS_GROUP);
}

void WelcomePage::OnLaidOut()
{
    m_title->SetFont(&look::BoldFont());
    m_mode->SetWindowText(CString("Display mode: ") +
                          APPMODE_NAMES[COnBoardUIGeneral::GetAppMode()]);
    // On-board, captions of several lines begin at the top: no higher than these.
    for (int mode = 0; mode < ModeCount; ++mode)
    {
        CCustomPushbutton& button = *m_buttons[size_t(mode)];
        CRect place;
        button.GetWindowRect(&place);
        button.SetWindowPos(nullptr, 0, 0, place.Width(), DownInMode(look::Scaled(ButtonHeight)),
                            SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void WelcomePage::OnButton(UINT command)
{
    GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(command, 0));
}
