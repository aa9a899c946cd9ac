#include "ButtonsPage.h"

#include "resource.h"

#include <iterator>

namespace {

// Three columns of short rows, then higher ones.
constexpr int Columns = 3;
constexpr int ChoiceStep = grid::Choice;
constexpr int WrappedHeight = 34;
constexpr int WrappedPushHeight = 46;

constexpr int ChoicesTop = 0;
constexpr int CaptionsTop = 184;
constexpr int PushesTop = 246;
constexpr int HintTop = 364;
constexpr int HeadingHeight = 16;
constexpr int UnderHeading = 22;

struct ButtonPlace
{
    const char* caption;
    DWORD style;
    int column;
    int top;
    int height;
    int chosen = BST_UNCHECKED;

    CRect Design() const { return grid::Cell(Columns, column, top, height); }
};

constexpr int ChoiceTop(int row)
{
    return ChoicesTop + UnderHeading + row * ChoiceStep;
}

constexpr int CheckTop(int row)
{
    return ChoiceTop(row) + (grid::Choice - grid::Check) / 2;
}

constexpr DWORD Check = BS_AUTOCHECKBOX | WS_TABSTOP;
constexpr DWORD Radio = BS_AUTORADIOBUTTON;
constexpr DWORD Push = BS_PUSHBUTTON | WS_TABSTOP;

constexpr ButtonPlace CheckBoxes[] = {
    {"Terrain", Check | WS_GROUP, 0, CheckTop(0), grid::Check},
    {"Routes", Check, 0, CheckTop(1), grid::Check, BST_CHECKED},
    {"Some areas", BS_AUTO3STATE | WS_TABSTOP, 0, CheckTop(2), grid::Check, BST_INDETERMINATE},
    {"Disabled", Check | WS_DISABLED, 0, CheckTop(3), grid::Check},
    {"Disabled but on", Check | WS_DISABLED, 0, CheckTop(4), grid::Check, BST_CHECKED},
};

// A group ends where the next control with WS_GROUP begins; the headings are such controls.
constexpr ButtonPlace Radios[] = {
    {"Metres", Radio | WS_GROUP | WS_TABSTOP, 1, ChoiceTop(0), grid::Choice},
    {"Feet", Radio, 1, ChoiceTop(1), grid::Choice, BST_CHECKED},
    {"Flight levels", Radio, 1, ChoiceTop(2), grid::Choice},
    {"Disabled", Radio | WS_DISABLED, 1, ChoiceTop(3), grid::Choice},
    {"Disabled but on", Radio | WS_DISABLED | WS_GROUP, 1, ChoiceTop(4), grid::Choice, BST_CHECKED},
    {"North up", Radio | WS_TABSTOP, 2, ChoiceTop(0), grid::Choice, BST_CHECKED},
    {"Track up", Radio, 2, ChoiceTop(1), grid::Choice},
    {"Heading up", Radio, 2, ChoiceTop(2), grid::Choice},
    {"Along the airways of the route", Radio | BS_MULTILINE | WS_GROUP | WS_TABSTOP, 0,
     CaptionsTop + UnderHeading, WrappedHeight, BST_CHECKED},
    {"Direct, without any waypoints", Radio | BS_MULTILINE, 1, CaptionsTop + UnderHeading,
     WrappedHeight},
    {"Disabled, but of two lines also", Radio | BS_MULTILINE | WS_DISABLED, 2,
     CaptionsTop + UnderHeading, WrappedHeight},
};
constexpr int FirstWithoutHead = 5;
constexpr int FirstWrapped = 8;

constexpr int SecondPushRow = PushesTop + UnderHeading + grid::Push + 8;
constexpr ButtonPlace Pushes[] = {
    {"Default", BS_DEFPUSHBUTTON | WS_TABSTOP | WS_GROUP, 0, PushesTop + UnderHeading, grid::Push},
    {"Plain", Push, 1, PushesTop + UnderHeading, grid::Push},
    {"Disabled", Push | WS_DISABLED, 2, PushesTop + UnderHeading, grid::Push},
    {"A caption that takes two lines", Push | BS_MULTILINE, 0, SecondPushRow, WrappedPushHeight},
    {"Top left", Push | BS_TOP | BS_LEFT, 1, SecondPushRow, WrappedPushHeight},
    {"Bottom right ", Push | BS_BOTTOM | BS_RIGHT, 2, SecondPushRow, WrappedPushHeight},
};

static_assert(std::size(CheckBoxes) == ButtonsPage::CheckCount);
static_assert(std::size(Radios) == ButtonsPage::RadioCount);
static_assert(std::size(Pushes) == ButtonsPage::PushCount);

constexpr int ChooserCount = ButtonsPage::CheckCount + ButtonsPage::RadioCount;
constexpr int ButtonCount = ChooserCount + ButtonsPage::PushCount;
constexpr UINT FirstId = IDC_PAGE_FIRST;

const ButtonPlace& PlaceOf(int index)
{
    if (index < ButtonsPage::CheckCount)
    {
        return CheckBoxes[index];
    }
    index -= ButtonsPage::CheckCount;
    return index < ButtonsPage::RadioCount ? Radios[index]
                                           : Pushes[index - ButtonsPage::RadioCount];
}

CRect Heading(int column, int top, int span = 1)
{
    return grid::Cell(Columns, column, top, HeadingHeight, span);
}

} // namespace

BEGIN_MESSAGE_MAP(ButtonsPage, GalleryPage)
    ON_CONTROL_RANGE(BN_CLICKED, FirstId, FirstId + ButtonCount - 1, &ButtonsPage::OnClicked)
END_MESSAGE_MAP()

CCustomButton& ButtonsPage::Chooser(int index)
{
    return index < CheckCount ? static_cast<CCustomButton&>(m_checkBoxes[index])
                              : m_radios[index - CheckCount];
}

void ButtonsPage::CreateContent()
{
    UINT id = FirstId;
    const auto create = [&](CCustomButton& button, const ButtonPlace& place) {
        AddButton(button, place.caption, place.style, place.Design(), id++);
    };
    AddLabel("Check boxes", Heading(0, ChoicesTop));
    for (int index = 0; index < CheckCount; ++index)
    {
        create(m_checkBoxes[index], CheckBoxes[index]);
        m_chosen[index] = CheckBoxes[index].chosen;
    }
    AddLabel("A group with a head", Heading(1, ChoicesTop)).ModifyStyle(0, WS_GROUP);
    for (int index = 0; index < RadioCount; ++index)
    {
        if (index == FirstWithoutHead)
        {
            AddLabel("Without a head", Heading(2, ChoicesTop)).ModifyStyle(0, WS_GROUP);
        }
        if (index == FirstWrapped)
        {
            AddLabel("Captions of several lines", Heading(0, CaptionsTop, 3))
                .ModifyStyle(0, WS_GROUP);
        }
        create(m_radios[index], Radios[index]);
        m_chosen[CheckCount + index] = Radios[index].chosen;
    }
    AddLabel("Push buttons", Heading(0, PushesTop, 3)).ModifyStyle(0, WS_GROUP);
    for (int index = 0; index < PushCount; ++index)
    {
        create(m_pushes[index], Pushes[index]);
    }
    AddLabel("Tab and arrow keys move, the space bar presses.", Heading(0, HintTop, 3));
}

void ButtonsPage::KeepState()
{
    for (int chooser = 0; chooser < ChooserCount; ++chooser)
    {
        m_chosen[chooser] = Chooser(chooser).GetCheck();
    }
}

void ButtonsPage::OnLaidOut()
{
    for (int index = 0; index < ChooserCount; ++index)
    {
        Chooser(index).SetCheck(m_chosen[index]);
    }
}

void ButtonsPage::PoseForPicture()
{
    // The focus comes to a button while the mode is on, as by the tab key.
    m_pushes[1].SetFocus();
    m_checkBoxes[1].SetFocus();
}

void ButtonsPage::OnClicked(UINT id)
{
    static constexpr const char* States[] = {"off", "on", "partly on"};
    const int index = int(id - FirstId);
    KeepState();
    CString text;
    text.Format("BN_CLICKED from '%s'", PlaceOf(index).caption);
    if (index < ChooserCount)
    {
        text += CString(" (") + States[m_chosen[index]] + ")";
    }
    Events().ParentWasTold(text);
}
