#include "ToolbarPage.h"

#include "Look.h"
#include "resource.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <iterator>

namespace {

constexpr int BarTop = grid::CaptionStep;
constexpr int BarHeight = 42;
constexpr int EditTop = BarTop + BarHeight + 10 + grid::CaptionStep;
constexpr int ActionsTop = EditTop + grid::Line + 10;
constexpr int MessagesTop = ActionsTop + grid::Push + grid::Gap;

constexpr int PictureSize = 32;
constexpr int LargePictureSize = 64;
constexpr int ButtonRoom = 7; // around a picture

enum ControlId : UINT
{
    OrderEdit = IDC_PAGE_FIRST,
    FirstAction,
    Messages = FirstAction + 10,
    Bar
};

// The buttons as they come, known by the icons that they show.
constexpr unsigned int Buttons[] = {3530, 3534, 0, 3541, 3548, 3552, 0, 3565, 3589, 3600};

constexpr const char* Actions[] = {"Order", "Shuffle", "As at first"};

std::vector<unsigned int> FirstOrder()
{
    return {std::begin(Buttons), std::end(Buttons)};
}

// All numbers of a text, whatever stands between them.
std::vector<unsigned int> NumbersIn(const char* text)
{
    std::vector<unsigned int> numbers;
    while (*text != '\0')
    {
        if (std::isdigit(static_cast<unsigned char>(*text)) == 0)
        {
            ++text;
            continue;
        }
        char* end = nullptr;
        numbers.push_back(unsigned(std::strtoul(text, &end, 10)));
        text = end;
    }
    return numbers;
}

} // namespace

BEGIN_MESSAGE_MAP(ToolbarPage, GalleryPage)
    ON_COMMAND(FirstAction, &ToolbarPage::OnOrder)
    ON_COMMAND(FirstAction + 1, &ToolbarPage::OnShuffle)
    ON_COMMAND(FirstAction + 2, &ToolbarPage::OnReset)
    ON_COMMAND_RANGE(Buttons[0], 3600, &ToolbarPage::OnBarCommand)
END_MESSAGE_MAP()

void ToolbarPage::CreateContent()
{
    AddLabel("The bar", grid::Across(0, grid::Caption));
    m_bar.CreateEx(this, TBSTYLE_FLAT | TBSTYLE_TRANSPARENT,
                   WS_CHILD | WS_VISIBLE | WS_TABSTOP | CBRS_TOP, CRect(0, 0, 0, 0), Bar);
    m_pictures.Create(PictureSize, PictureSize, ILC_COLOR32 | ILC_MASK, int(std::size(Buttons)), 1);
    m_largePictures.Create(LargePictureSize, LargePictureSize, ILC_COLOR32 | ILC_MASK,
                           int(std::size(Buttons)), 1);
    for (const unsigned int id : Buttons)
    {
        if (id != 0)
        {
            m_pictures.AddIcon(id);
            m_largePictures.AddIcon(id);
        }
        TBBUTTON button = {};
        button.idCommand = int(id);
        button.iBitmap = id == 0 ? 0 : m_pictures.GetIdxFromCtrlID(id);
        button.fsState = TBSTATE_ENABLED;
        button.fsStyle = BYTE(id == 0 ? TBSTYLE_SEP : TBSTYLE_BUTTON);
        m_bar.SendMessage(TB_ADDBUTTONS, 1, LPARAM(&button));
    }
    Place(m_bar, grid::Across(BarTop, BarHeight));

    AddLabel("Its order: command ids from left to right, 0 for a separator",
             grid::Across(EditTop - grid::CaptionStep, grid::Caption));
    m_order.CreateEx(WS_EX_CLIENTEDGE, "EDIT", "",
                     WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL,
                     grid::Across(EditTop, grid::Line), this, OrderEdit);
    m_order.SetFont(&CCustomEdit::GetStdFont());
    Place(m_order, grid::Across(EditTop, grid::Line));
    ShowOrder(FirstOrder());

    for (int action = 0; action < ActionCount; ++action)
    {
        AddButton(m_actions[action], Actions[action], PushStyle,
                  grid::Cell(ActionCount, action, ActionsTop, grid::Push),
                  FirstAction + UINT(action));
    }
    AddList(m_messages, "What the bar said", LBS_NOSEL,
            grid::Across(MessagesTop, grid::Height - MessagesTop), Messages);
}

void ToolbarPage::OnLaidOut()
{
    const MappedImageList& pictures = look::Dark() ? m_largePictures : m_pictures;
    const int size = look::Dark() ? LargePictureSize : PictureSize;
    m_bar.SendMessage(TB_SETIMAGELIST, 0, LPARAM(pictures.GetSafeHandle()));
    // What the bar draws its separators with.
    COLORSCHEME colors = {sizeof(colors), CLR_DEFAULT, CLR_DEFAULT};
    if (look::Dark())
    {
        colors.clrBtnHighlight = look::DarkOutline;
        colors.clrBtnShadow = look::DarkPressed;
    }
    m_bar.SendMessage(TB_SETCOLORSCHEME, 0, LPARAM(&colors));
    m_bar.SetSizes(CSize(size + ButtonRoom, size + ButtonRoom), CSize(size, size));
}

void ToolbarPage::PoseForPicture()
{
    // An order with an id too many and one that was forgotten.
    ShowOrder({3600, 3552, 0, 3548, 3541, 999, 3534, 0, 3530, 3589});
    OnOrder();
}

void ToolbarPage::ShowOrder(const std::vector<unsigned int>& order)
{
    CString text;
    for (const unsigned int id : order)
    {
        CString one;
        one.Format(text.IsEmpty() ? "%u" : " %u", id);
        text += one;
    }
    m_order.SetWindowText(text);
}

void ToolbarPage::TakeOrder(const std::vector<unsigned int>& order)
{
    std::vector<std::string> messages;
    const bool done = m_bar.OrderBtns(order, messages);
    m_messages.ResetContent();
    for (const std::string& message : messages)
    {
        m_messages.AddString(message.c_str());
    }
    if (done)
    {
        m_messages.AddString("Nothing: the order fits.");
    }
    Events().ParentWasTold(done ? "The bar took the order as it is"
                                : "The bar took what it could of the order");
}

void ToolbarPage::OnOrder()
{
    CString text;
    m_order.GetWindowText(text);
    TakeOrder(NumbersIn(text));
}

void ToolbarPage::OnShuffle()
{
    // The separators stay where they are.
    std::vector<unsigned int> order = FirstOrder();
    std::vector<unsigned int> commands;
    std::ranges::copy_if(order, std::back_inserter(commands),
                         [](unsigned int id) { return id != 0; });
    std::ranges::shuffle(commands, m_random);
    auto next = commands.begin();
    for (unsigned int& id : order)
    {
        id = id == 0 ? 0 : *next++;
    }
    ShowOrder(order);
    TakeOrder(order);
}

void ToolbarPage::OnReset()
{
    ShowOrder(FirstOrder());
    TakeOrder(FirstOrder());
}

void ToolbarPage::OnBarCommand(UINT id)
{
    CString text;
    text.Format("Command %u from the bar", id);
    Events().ParentWasTold(text);
}
