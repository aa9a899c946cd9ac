// audit [MODE]: walks every control of the catalog, in every state and in every display mode or the
// one named, on real windows, and prints
// - the contrast of its text against what it is drawn on, whose mark is 4.5 to 1 where the control
//   is enabled,
// - how large that is which a finger must hit, whose mark in the on-board modes is 52 pixels, which
//   are 13.8 mm at 96 dots per inch,
// - what it answers to an assistive program, its role, name, value and state, and whether the focus
//   is seen on it; the mark for the role is anything but that of any window's client area.
// What misses its mark is marked "below", with the reason if it is known to. The exit code is 1
// when something else does, 2 for a wrong call.

#include "Access.h"
#include "Contrast.h"
#include "CustomDialog.h"
#include "KnownShortfalls.h"
#include "OnBoardUIGeneral.h"
#include "States.h"
#include "Targets.h"
#include "catalog/Controls.h"
#include "catalog/DialogTemplate.h"

#include <afxwin.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>

namespace {

constexpr double ContrastMark = 4.5;
constexpr int FingerMark = 52;
constexpr int Modes = int(std::size(APPMODE_NAMES));
const char* const Sample = "Direct";

bool surprised = false; // something misses its mark and is not known to

// What to print behind a finding.
std::string Verdict(bool below, const char* known)
{
    surprised = surprised || (below && !known);
    return below ? std::string(" below") + (known ? std::string(": ") + known : "") : "";
}

class AuditApp : public CWinApp
{};

AuditApp theApp;

// What a host's window gives its controls: the mode's ground and colours. The controls follow the
// mode with it.
class Stage : public CCustomDialog
{
public:
    Stage()
        : CCustomDialog(0U, nullptr)
    {
        CreateIndirect(DialogTemplate({.style = WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN,
                                       .title = "",
                                       .points = 0,
                                       .place = CRect(0, 0, 300, 200)}),
                       nullptr);
        ::SetWindowPos(m_hWnd, HWND_TOPMOST, 20, 20, 900, 700, 0);
        m_focus.Create("", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), this);
    }

    void TakeFocus() { m_focus.SetFocus(); }

private:
    CStatic m_focus; // has the focus that no control shall have

    void OnOK() override {}
    void OnCancel() override {}
};

void Settle(CWnd& window)
{
    MSG message;
    for (int quiet = 0; quiet < 3; ++quiet)
    {
        while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        {
            ::DispatchMessage(&message);
        }
        window.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        ::Sleep(1);
    }
}

// Blanks as wide as the sample in a window's font, so that nothing that follows a text's extent
// differs between the two.
std::string BlanksIn(CWnd& window)
{
    CClientDC dc(&window);
    CFont* const font = window.GetFont();
    CFont* const before = font ? dc.SelectObject(font) : nullptr;
    const int sample = dc.GetTextExtent(Sample, int(std::strlen(Sample))).cx;
    const int blank = std::max<int>(1, dc.GetTextExtent(" ", 1).cx);
    if (before)
    {
        dc.SelectObject(before);
    }
    return std::string(size_t((sample + blank / 2) / blank), ' ');
}

// A control that has come into the mode from the standard one, with its window.
class Shown
{
public:
    Shown(const Control& control, APPMODE mode, const std::string& text, int rows)
    {
        COnBoardUIGeneral::SetAppMode(STD);
        m_stage = std::make_unique<Stage>();
        m_window = control.make(*m_stage, {CRect(20, 20, 220, 160), text, rows, false});
        if (!m_window)
        {
            std::fprintf(stderr, "audit: no %s could be made\n", control.name);
            std::exit(3);
        }
        m_window->ShowWindow(SW_SHOW);
        COnBoardUIGeneral::SetAppMode(mode);
        m_window->BringWindowToTop();
        m_stage->TakeFocus();
        Settle(*m_window);
    }
    ~Shown()
    {
        m_window->DestroyWindow();
        m_stage->DestroyWindow();
    }

    CWnd& Window() { return *m_window; }

private:
    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<CWnd> m_window;
};

// The window and its children, each with its class, which is empty for the window itself.
std::vector<std::pair<std::string, Picture>> Pictures(CWnd& window)
{
    std::vector<std::pair<std::string, Picture>> pictures;
    pictures.emplace_back("", window);
    for (CWnd* child = window.GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT))
    {
        char kind[40] = "";
        ::GetClassName(*child, kind, int(std::size(kind)));
        if (child->IsWindowVisible())
        {
            pictures.emplace_back(kind, *child);
        }
    }
    return pictures;
}

void PrintContrast(APPMODE mode, const Control& control, const State& state)
{
    std::string blanks;
    const auto show = [&](const std::string& text) {
        Shown shown(control, mode, text, state.rows);
        state.enter(shown.Window());
        Settle(shown.Window());
        blanks = BlanksIn(shown.Window());
        return Pictures(shown.Window());
    };
    const auto withText = show(Sample);
    const auto withBlanks = show(std::string(blanks));
    for (size_t part = 0; part < std::min(withText.size(), withBlanks.size()); ++part)
    {
        const TextContrast found = FindTextContrast(withText[part].second, withBlanks[part].second);
        if (found.ratio == 0)
        {
            continue;
        }
        const std::string kind = withText[part].first;
        const std::string name = control.name + (kind.empty() ? "" : ": " + kind);
        std::printf(
            "%-11s %-34s %-10s %02X%02X%02X on %02X%02X%02X %6.2f%s\n", APPMODE_NAMES[mode],
            name.c_str(), state.name, GetRValue(found.text), GetGValue(found.text),
            GetBValue(found.text), GetRValue(found.ground), GetGValue(found.ground),
            GetBValue(found.ground), found.ratio,
            Verdict(state.enabled && found.ratio < ContrastMark, KnownTextShortfall(control.name))
                .c_str());
    }
}

// What an assistive program is told of the control, and whether one sees that it has the focus.
void PrintAccess(APPMODE mode, const Control& control)
{
    Shown shown(control, mode, Sample, State{}.rows);
    CWnd& window = shown.Window();
    const Answers answers = AskWindow(window);
    const Picture before(window);
    const bool takesFocus =
        (window.GetStyle() & (WS_CHILD | WS_TABSTOP)) == (WS_CHILD | WS_TABSTOP) &&
        (window.SendMessage(WM_GETDLGCODE) & DLGC_STATIC) == 0;
    window.SetFocus();
    if (std::strcmp(control.name, "report list") == 0)
    {
        window.SendMessage(WM_KEYDOWN, VK_DOWN); // the platform's shows it on a row alone
    }
    Settle(window);
    const char* focus = "";
    if (takesFocus)
    {
        const bool seen = CWnd::GetFocus() == &window && !(Picture(window) == before);
        focus = seen ? " focus seen" : " focus not seen";
        surprised = surprised || !seen;
    }
    const bool isClient = answers.role.empty() || answers.role == "client";
    std::printf("%-11s %-34s %s \"%s\" \"%s\" %lX%s%s\n", APPMODE_NAMES[mode], control.name,
                answers.role.c_str(), answers.name.c_str(), answers.value.c_str(),
                (unsigned long)answers.state, focus, Verdict(isClient, nullptr).c_str());
}

void PrintTargets(APPMODE mode, const Control& control)
{
    const auto extent = [](int pixels) {
        return pixels > 0 ? std::to_string(pixels) : std::string("-");
    };
    const auto isSmall = [](int pixels) { return pixels > 0 && pixels < FingerMark; };
    Shown shown(control, mode, Sample, State{}.rows);
    for (const auto& [name, size] : TargetsOf(control.name, shown.Window()))
    {
        const bool below =
            COnBoardUIGeneral::InOnBoardMode() && (isSmall(size.cx) || isSmall(size.cy));
        std::printf("%-11s %-34s %-22s %4s x %4s%s\n", APPMODE_NAMES[mode], control.name,
                    name.c_str(), extent(size.cx).c_str(), extent(size.cy).c_str(),
                    Verdict(below, KnownTargetShortfall(control.name, name)).c_str());
    }
}

} // namespace

int main(int argc, char** argv)
{
    int only = -1;
    if (argc > 1)
    {
        const auto wanted =
            std::find_if(std::begin(APPMODE_NAMES), std::end(APPMODE_NAMES),
                         [argv](const char* name) { return ::_stricmp(name, argv[1]) == 0; });
        only = int(wanted - std::begin(APPMODE_NAMES));
    }
    if (argc > 2 || only == Modes)
    {
        std::fprintf(stderr, "usage: audit [STD|FULLSCREEN|ONBOARD|EFB|EFBFS]\n");
        return 2;
    }
    AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW);
    ::CoInitialize(nullptr);
    COnBoardUIGeneral::SetStdModeGoals();
    for (int mode = 0; mode < Modes; ++mode)
    {
        if (only < 0 || only == mode)
        {
            for (const Control& control : Controls())
            {
                for (const State& state : StatesOf(control.name))
                {
                    PrintContrast(APPMODE(mode), control, state);
                }
                PrintTargets(APPMODE(mode), control);
                PrintAccess(APPMODE(mode), control);
            }
        }
    }
    COnBoardUIGeneral::SetAppMode(STD);
    return surprised ? 1 : 0;
}
