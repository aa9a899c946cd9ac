// A control or form may end itself in any of its own messages while the mode changes.

#include "robust/Subjects.h"
#include "robust/Watch.h"
#include "support/WindowTest.h"
#include "support/forms.h"

#include "CustomFormView.h"
#include "CustomPropPage.h"
#include "CustomPropSheet.h"
#include "OnBoardUI.h"

#include <algorithm>

namespace {

// A message, and how often it has come before.
struct Heard
{
    UINT message;
    int before;

    friend bool operator==(const Heard&, const Heard&) = default;
};

// Of one message. What follows is likely the same again.
constexpr int MostTellings = 2;

struct Sheet : Mortal<CCustomPropSheet>
{
    explicit Sheet(CWnd* owner)
        : Mortal<CCustomPropSheet>("Sheet", nullptr, owner)
    {
        AddPage(&page);
    }
    Mortal<CCustomPropPage> page{UINT(IDD_TEST_PAGE_1)};
};

std::unique_ptr<CWnd> MakeSheet(CWnd& parent)
{
    auto sheet = std::make_unique<Sheet>(&parent);
    return sheet->Create(&parent, WS_POPUP | WS_CAPTION | WS_VISIBLE) ? std::move(sheet) : nullptr;
}

std::unique_ptr<CWnd> MakeFormView(CWnd& parent)
{
    struct View : Mortal<CCustomFormView>
    {
        View()
            : Mortal<CCustomFormView>(UINT(IDD_TEST_FORM))
        {}
        void PostNcDestroy() override {}
    };
    auto view = std::make_unique<View>();
    const CRect place(0, 0, 200, 150);
    view->CWnd::Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, place, &parent, 5, nullptr);
    view->OnInitialUpdate();
    return view;
}

class OwnDeath : public WindowTest
{
protected:
    static inline OwnDeath* s_now = nullptr;

    std::unique_ptr<CWnd> m_window;
    std::optional<Heard> m_awaited;
    std::vector<Heard> m_heard;

    static bool Hear(const CWnd&, UINT message)
    {
        if (PlatformWorks != 0)
        {
            return false;
        }
        OwnDeath& now = *s_now;
        Watch::GoesOn();
        const auto before = std::ranges::count(now.m_heard, message, &Heard::message);
        const Heard word = {message, int(before)};
        if (before < MostTellings)
        {
            now.m_heard.push_back(word);
        }
        if (word != now.m_awaited)
        {
            return false;
        }
        EndsItself = nullptr;
        ::DestroyWindow(*now.m_window);
        now.m_window.reset();
        return true;
    }

    // Goes from one mode to another; what the window was told on the way.
    std::vector<Heard> Change(const Subject& subject, APPMODE from, APPMODE to,
                              std::optional<Heard> awaited)
    {
        char what[30] = "";
        std::snprintf(what, sizeof(what), ", 0x%X/%d", awaited ? awaited->message : 0,
                      awaited ? awaited->before : 0);
        const std::string title = subject.name + (" from " + std::to_string(int(from)) + " to ") +
                                  std::to_string(int(to)) + what;
        const Watch watch([=] { return title; });
        const int faults = Watch::Faults();
        const ModeScope scope(from);
        m_heard.clear();
        m_awaited = awaited;
        m_window = subject.make(Host());
        const HWND window = *m_window;
        PumpAll();

        s_now = this;
        EndsItself = &OwnDeath::Hear;
        COnBoardUIGeneral::SetAppMode(to);
        ModifyChildWndsData change;
        change.parent = Host();
        change.scale = to == STD ? 1 / 1.25 : 1.25;
        change.mode = to;
        ::EnumChildWindows(Host(), &ModifyChildsForAppMode, reinterpret_cast<LPARAM>(&change));
        ::SendMessage(window, WM_NCHITTEST, 0, 0); // by which many notice
        EXPECT_EQ(::IsWindow(window), !awaited) << title;
        EndsItself = nullptr;
        ::RedrawWindow(window, nullptr, nullptr,
                       RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
        m_window.reset();
        PumpAll();
        EXPECT_EQ(Watch::Faults(), faults) << title;
        return m_heard;
    }
};

TEST_F(OwnDeath, DuringAChangeOfTheModeDoesNoHarm)
{
    std::vector<Subject> subjects = Subjects();
    subjects.push_back({"sheet", &MakeSheet});
    subjects.push_back({"form view", &MakeFormView});
    for (const Subject& subject : subjects)
    {
        for (const auto& [from, to] : {std::pair(STD, EFB), {EFB, STD}})
        {
            for (const Heard& word : Change(subject, from, to, {}))
            {
                Change(subject, from, to, word);
            }
        }
    }
}

} // namespace
