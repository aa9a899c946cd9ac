// audit [MODE]: walks every control of the catalog in every state and in every
// display mode or the one named, on real windows, and prints
// - the contrast of its text against what it is drawn on, whose mark is 4.5 to 1 where the control
//   is enabled; of a control with a text it has to be seen,
// - how large that is which a finger must hit, whose mark in the on-board modes is 52 pixels, which
//   are 13.8 mm at 96 dots per inch,
// - what it answers to an assistive program, its role, name, value and state, and whether the focus
//   is seen on it; the mark for the role is anything but that of any window's client area, and that
//   for the name is that there is one.
// What misses its mark is marked "below", with the reason if it is known to. The exit code is 1
// when something else does, or when what is known has become worse or, in all modes, is met no
// more, 2 for a wrong call.

#include "Contrast.h"
#include "KnownShortfalls.h"
#include "OnBoardUIGeneral.h"
#include "Shown.h"
#include "States.h"
#include "Targets.h"
#include "catalog/Accessible.h"
#include "catalog/Controls.h"

#include <afxcmn.h>
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

// What to print behind a finding. One that is known is known to reach so much and no less.
std::string Verdict(bool below, double reached, Shortfall* known)
{
    if (!below)
    {
        return "";
    }
    if (known)
    {
        known->met = true;
    }
    const bool worse = !known || reached < known->least;
    surprised = surprised || worse;
    return std::string(" below") + (known ? std::string(": ") + known->reason : "") +
           (known && worse ? ", and worse than known" : "");
}

class AuditApp : public CWinApp
{};

AuditApp theApp;

// What is found of a text, in every part of the control that has one.
void PrintContrast(APPMODE mode, const Control& control, const State& state)
{
    struct Seen
    {
        std::string kind;
        bool hasText;
        Pixels picture;
    };
    std::string blanks;
    int edge = 0; // from there on a selection ends elsewhere than with blanks
    const auto show = [&](const std::string& text, bool blank) {
        Shown shown(control, mode, text, state.rows);
        state.enter(shown.Window(), text);
        shown.Settle();
        ::HideCaret(nullptr); // it is no text
        CWnd* const focus = CWnd::GetFocus();
        const bool inEdit = focus && focus != &shown.Window() && Is(KindOf(*focus), "Edit");
        if (inEdit)
        {
            if (blank) // in its own font
            {
                focus->SetWindowText(BlanksFor(Sample, *focus).c_str());
            }
            else
            {
                edge = short(LOWORD(focus->SendMessage(EM_POSFROMCHAR, std::strlen(Sample) - 1)));
            }
            focus->SendMessage(EM_SETSEL, 0, -1); // as if reached by Tab
        }
        shown.Settle();
        blanks = BlanksFor(Sample, shown.Window());
        if (blank)
        {
            shown.BlankButtons();
        }
        std::vector<Seen> seen;
        for (const Part& part : shown.Parts())
        {
            seen.push_back({part.kind, part.hasText, PictureOf(part)});
            if (inEdit && part.window == focus)
            {
                CRect beyond(0, 0, 0, 0);
                focus->ClientToScreen(&beyond);
                CRect place;
                focus->GetWindowRect(&place);
                beyond.SetRect(beyond.left + edge, place.top, place.right, place.bottom);
                seen.back().picture.Leave(beyond - place.TopLeft());
            }
        }
        return seen;
    };
    const std::vector<Seen> withText = show(Sample, false);
    const std::vector<Seen> withBlanks = show(std::string(blanks), true);
    for (size_t index = 0; index < withText.size(); ++index)
    {
        const auto& [kind, hasText, picture] = withText[index];
        const TextContrast found = index < withBlanks.size()
                                       ? FindTextContrast(picture, withBlanks[index].picture)
                                       : TextContrast();
        if (!hasText)
        {
            continue;
        }
        const std::string name = control.name + (kind.empty() ? "" : ": " + kind);
        std::printf("%-11s %-34s %-11s ", APPMODE_NAMES[mode], name.c_str(), state.name);
        if (found.ratio == 0)
        {
            surprised = true;
            std::printf("no text is seen\n");
            continue;
        }
        const auto print = [](COLORREF color) {
            std::printf("%02X%02X%02X", GetRValue(color), GetGValue(color), GetBValue(color));
        };
        print(found.text);
        std::printf(" on ");
        print(found.ground);
        std::printf(" %6.2f%s\n", found.ratio,
                    Verdict(state.enabled && found.ratio < ContrastMark, found.ratio,
                            KnownTextShortfall(control.name, kind.empty() ? state.name : kind))
                        .c_str());
    }
}

void PrintAnswers(APPMODE mode, const std::string& name, const CWnd& window, const char* focus)
{
    const Held<IAccessible> object = Reached(window);
    if (object == nullptr)
    {
        std::printf("%-11s %-34s does not answer%s\n", APPMODE_NAMES[mode], name.c_str(),
                    Verdict(true, 0, nullptr).c_str());
        return;
    }
    const Answers answers(*object, CHILDID_SELF);
    const auto given = [](const std::string& text) {
        return text == "(none)" || text == "(error)" ? ""
                                                     : text.substr(0, text.find_first_of("\r\n"));
    };
    const std::string itsName = given(answers.name);
    char role[60] = "";
    ::GetRoleText(DWORD(answers.role), role, sizeof(role));
    const bool isSilent = answers.role <= ROLE_SYSTEM_CLIENT || itsName.empty();
    std::printf("%-11s %-34s %s \"%s\" \"%s\" %lX%s%s\n", APPMODE_NAMES[mode], name.c_str(), role,
                itsName.c_str(), given(answers.value).c_str(), (unsigned long)answers.state, focus,
                Verdict(isSilent, 0, nullptr).c_str());
}

// What an assistive program is told of the control and of the windows within it, and whether one
// sees that it has the focus.
void PrintAccess(APPMODE mode, const Control& control)
{
    if (std::strcmp(control.name, "list of a combo") == 0)
    {
        return; // named by its combo, and asked where that drops it
    }
    Shown shown(control, mode, Sample, State{}.rows);
    CWnd& window = shown.Window();
    const Pixels before = ScreenPixels(window);
    const bool takesFocus =
        (window.GetStyle() & (WS_CHILD | WS_TABSTOP)) == (WS_CHILD | WS_TABSTOP) &&
        (window.SendMessage(WM_GETDLGCODE) & DLGC_STATIC) == 0;
    window.SetFocus();
    const bool isReport = std::strcmp(control.name, "report list") == 0;
    if (isReport)
    {
        window.SendMessage(WM_KEYDOWN, VK_DOWN); // the platform's shows it on a row alone
    }
    shown.Settle();
    const char* focus = "";
    if (takesFocus)
    {
        bool seen = false;
        for (int look = 0; look < 20 && !seen; ++look) // a caret blinks
        {
            const CWnd* const focused = CWnd::GetFocus();
            seen =
                (focused == &window || window.IsChild(focused)) && ScreenPixels(window) != before;
            ::Sleep(seen ? 0 : 100);
            shown.Settle();
        }
        focus = seen ? " focus seen" : " focus not seen";
        surprised = surprised || !seen;
    }
    PrintAnswers(mode, control.name, window, focus);
    if (std::strcmp(control.name, "combo") == 0)
    {
        StateOf("combo", "open").enter(window, Sample);
    }
    for (const Part& part : shown.Parts())
    {
        // What a template has of the platform's own is not ours to name.
        const bool isOurs = CWnd::FromHandlePermanent(*part.window) != nullptr;
        if (!part.kind.empty() && part.hasText && isOurs)
        {
            PrintAnswers(mode, std::string(control.name) + ": " + part.kind, *part.window, "");
        }
    }
}

void PrintTargets(APPMODE mode, const Control& control)
{
    const auto extent = [](int pixels) {
        return pixels > 0 ? std::to_string(pixels) : std::string("-");
    };
    Shown shown(control, mode, Sample, State{}.rows);
    std::vector<Target> targets = TargetsOf(control.name, shown.Window());
    if (std::strcmp(control.name, "combo") == 0)
    {
        StateOf("combo", "open").enter(shown.Window(), Sample);
        for (const Part& part : shown.Parts())
        {
            if (part.hasText && !part.kind.empty())
            {
                targets.push_back(
                    {"row of its list", {0, int(part.window->SendMessage(LB_GETITEMHEIGHT))}});
            }
        }
    }
    for (const auto& [name, size] : targets)
    {
        const int least =
            size.cx > 0 && size.cy > 0 ? std::min(size.cx, size.cy) : std::max(size.cx, size.cy);
        const bool below = COnBoardUIGeneral::InOnBoardMode() && least < FingerMark;
        std::printf("%-11s %-34s %-22s %4s x %4s%s\n", APPMODE_NAMES[mode], control.name,
                    name.c_str(), extent(size.cx).c_str(), extent(size.cy).c_str(),
                    Verdict(below, least, KnownTargetShortfall(control.name, name)).c_str());
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
    for (const std::string& unmet : only < 0 ? UnmetShortfalls() : std::vector<std::string>())
    {
        surprised = true;
        std::printf("known and not met: %s\n", unmet.c_str());
    }
    return surprised ? 1 : 0;
}
