#include "MessageBoxPage.h"

#include "resource.h"

#include <AppAccess.h>
#include <OnBoardUI.h>

#include <iterator>
#include <string>

namespace {

constexpr UINT FirstId = IDC_PAGE_FIRST;
constexpr UINT ShowId = FirstId + 10;

// Three columns, two rows.
constexpr int Columns = 3;
constexpr int UpperHeight = 128;
constexpr int LowerTop = 136;
constexpr int LowerHeight = 110;
constexpr int ShowTop = LowerTop + grid::CaptionStep;
constexpr int AnswerTop = ShowTop + grid::Push + grid::Gap;
constexpr int AnswerHeight = 40;

struct Entry
{
    const char* caption;
    unsigned int style;
};

constexpr Entry ButtonSets[] = {
    {"OK", MB_OK},
    {"OK, Cancel", MB_OKCANCEL},
    {"Abort, Retry, Ignore", MB_ABORTRETRYIGNORE},
    {"Yes, No, Cancel", MB_YESNOCANCEL},
    {"Yes, No", MB_YESNO},
    {"Retry, Cancel", MB_RETRYCANCEL},
};
constexpr Entry Icons[] = {
    {"By the buttons", 0},
    {"Stop", MB_ICONHAND},
    {"Question", MB_ICONQUESTION},
    {"Warning", MB_ICONEXCLAMATION},
    {"Information", MB_ICONASTERISK},
};
constexpr Entry Defaults[] = {
    {"First button", MB_DEFBUTTON1},
    {"Second button", MB_DEFBUTTON2},
    {"Third button", MB_DEFBUTTON3},
};

constexpr const char* Texts[] = {"A word", "A sentence", "Three lines", "400 lines",
                                 "One line of 5,000 characters"};
constexpr int ThreeLines = 2;

std::string TextOf(int choice)
{
    switch (choice)
    {
    case 0:
        return "Ready";
    case 1:
        return "The flight plan has been changed since it was sent. Send it again?";
    case ThreeLines:
        return "The chart of EDDF is no longer valid.\r\n"
               "A newer one is on the server.\r\n"
               "Load it now?";
    case 3:
    {
        std::string text;
        for (int line = 1; line <= 400; ++line)
        {
            text += (line > 1 ? "\r\n" : "") + ("Waypoint " + std::to_string(line)) + " is passed";
        }
        return text;
    }
    default:
    {
        static constexpr const char Sentence[] = "Climb on runway heading, then turn left. ";
        std::string text(5'000, ' ');
        for (size_t index = 0; index < text.size(); ++index)
        {
            text[index] = Sentence[index % (sizeof(Sentence) - 1)];
        }
        return text;
    }
    }
}

struct Answer
{
    int id;
    const char* name;
};
constexpr Answer Answers[] = {{IDOK, "OK"},       {IDCANCEL, "Cancel"}, {IDABORT, "Abort"},
                              {IDRETRY, "Retry"}, {IDIGNORE, "Ignore"}, {IDYES, "Yes"},
                              {IDNO, "No"}};

const char* NameOf(int id)
{
    for (const Answer& answer : Answers)
    {
        if (answer.id == id)
        {
            return answer.name;
        }
    }
    return "none";
}

template <size_t count> void Fill(CListBox& list, const Entry (&entries)[count], int chosen)
{
    for (const Entry& entry : entries)
    {
        list.AddString(entry.caption);
    }
    list.SetCurSel(chosen);
}

template <size_t count> unsigned int Chosen(const CListBox& list, const Entry (&entries)[count])
{
    const int chosen = list.GetCurSel();
    return chosen >= 0 && chosen < int(count) ? entries[chosen].style : 0;
}

} // namespace

BEGIN_MESSAGE_MAP(MessageBoxPage, GalleryPage)
    ON_WM_SHOWWINDOW()
    ON_BN_CLICKED(ShowId, &MessageBoxPage::OnShowBox)
END_MESSAGE_MAP()

MessageBoxPage::MessageBoxPage(IAppAccess& host, GalleryEvents& events)
    : GalleryPage(host, events)
    , m_services(host)
{}

void MessageBoxPage::CreateContent()
{
    AddList(m_choices[Buttons], "Buttons", 0, grid::Cell(Columns, 0, 0, UpperHeight),
            FirstId + Buttons);
    AddList(m_choices[Icon], "Icon", 0, grid::Cell(Columns, 1, 0, UpperHeight), FirstId + Icon);
    AddList(m_choices[First], "Has the focus first", 0, grid::Cell(Columns, 2, 0, UpperHeight),
            FirstId + First);
    AddList(m_choices[Text], "Text", 0, grid::Cell(Columns, 0, LowerTop, LowerHeight, 2),
            FirstId + Text);
    Fill(m_choices[Buttons], ButtonSets, 3);
    Fill(m_choices[Icon], Icons, 0);
    Fill(m_choices[First], Defaults, 0);
    for (const char* text : Texts)
    {
        m_choices[Text].AddString(text);
    }
    m_choices[Text].SetCurSel(ThreeLines);

    AddButton(m_show, "Show the box", PushStyle, grid::Cell(Columns, 2, ShowTop, grid::Push),
              ShowId);
    m_answer = &AddLabel("No answer yet", grid::Cell(Columns, 2, AnswerTop, AnswerHeight));
}

unsigned int MessageBoxPage::ChosenStyle() const
{
    return Chosen(m_choices[Buttons], ButtonSets) | Chosen(m_choices[Icon], Icons) |
           Chosen(m_choices[First], Defaults);
}

CSize MessageBoxPage::BoxArea() const
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    m_services.GetAvailableArea(GAA_WINDOW_AREA, x, y, width, height);
    return width > 0 && height > 0
               ? CSize(width, height)
               : CSize(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
}

void MessageBoxPage::OnShowBox()
{
    m_posing.reset();
    CZepMsgBoxDlg box(TextOf(m_choices[Text].GetCurSel()).c_str(), ChosenStyle(), BoxArea(),
                      &m_services);
    box.DoModal();
    CString answer;
    answer.Format("Answer: %s (%d)", NameOf(box.GetButtonPressed()), box.GetButtonPressed());
    m_answer->SetWindowText(answer);
    Events().ParentWasTold(answer);
}

// A modal box would hold the picture up: the same one without its loop, at the page's lower edge.
void MessageBoxPage::PoseForPicture()
{
    m_posing = std::make_unique<PosingBox>(TextOf(ThreeLines).c_str(), ChosenStyle(), BoxArea(),
                                           &m_services);
    if (!m_posing->Create(CZepMsgBoxDlg::IDD, this))
    {
        return;
    }
    CRect page;
    GetWindowRect(&page);
    CRect box;
    m_posing->GetWindowRect(&box);
    m_posing->SetWindowPos(nullptr, page.CenterPoint().x - box.Width() / 2,
                           page.bottom - box.Height(), 0, 0,
                           SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
}

void MessageBoxPage::OnShowWindow(BOOL show, UINT status)
{
    GalleryPage::OnShowWindow(show, status);
    if (!show)
    {
        m_posing.reset();
    }
}
