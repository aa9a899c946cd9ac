#include "Shown.h"

#include "CustomDialog.h"
#include "OnBoardUIGeneral.h"
#include "catalog/DialogTemplate.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string_view>

std::string KindOf(const CWnd& window)
{
    char kind[40] = "";
    ::GetClassName(window.GetSafeHwnd(), kind, int(std::size(kind)));
    return kind;
}

bool Is(const std::string& kind, const char* other)
{
    return ::lstrcmpi(kind.c_str(), other) == 0;
}

namespace {

constexpr int StageWidth = 900;
constexpr int StageHeight = 700;

// Whether a window within a control, or that it has popped up, shows a text of its own.
bool HasText(CWnd& window, const std::string& kind)
{
    if (Is(kind, "SysHeader32") || Is(kind, "SysTabControl32"))
    {
        return true;
    }
    if (Is(kind, "ListBox") || Is(kind, "ComboLBox"))
    {
        return window.SendMessage(LB_GETCOUNT) > 0;
    }
    const UINT look = window.GetStyle() & SS_TYPEMASK;
    const bool shows = (Is(kind, "Static") && look != SS_BITMAP && look != SS_ICON) ||
                       Is(kind, "Edit") || Is(kind, "Button");
    return shows && window.GetWindowTextLength() > 0;
}

void AddWithin(std::vector<Part>& parts, CWnd& window)
{
    for (CWnd* child = window.GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT))
    {
        if (child->IsWindowVisible())
        {
            const std::string kind = KindOf(*child);
            parts.push_back({kind, child, HasText(*child, kind)});
            AddWithin(parts, *child);
        }
    }
}

} // namespace

// What a host's window gives its controls: the mode's ground and colours. The controls follow the
// mode with it.
class Shown::Stage : public CCustomDialog
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
        Place();
        m_focus.Create("", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), this);
        m_label.Create("Name", WS_CHILD | WS_VISIBLE, CRect(20, 2, 100, 18), this);
    }

    // As large in every mode: the screen does not grow.
    void Place() { ::SetWindowPos(m_hWnd, HWND_TOPMOST, 20, 20, StageWidth, StageHeight, 0); }
    // Out of the way of windows above it.
    void StepAside() { ::SetWindowPos(m_hWnd, nullptr, 20, StageHeight, 200, 40, SWP_NOZORDER); }
    void TakeFocus() { m_focus.SetFocus(); }

private:
    CStatic m_focus; // has the focus that no control shall have
    CStatic m_label;

    void OnOK() override {}
    void OnCancel() override {}
};

Shown::Shown(const Control& control, APPMODE mode, const std::string& text, int rows)
    : m_control(control)
{
    COnBoardUIGeneral::SetAppMode(STD);
    COnBoardUIGeneral::SetAppTitle(text.c_str()); // that message boxes take
    m_stage = std::make_unique<Stage>();
    // The size of an open one is its host's.
    const std::string_view name = control.name;
    if (name == "dialog" || name == "message box" || name == "list of a combo" ||
        name.starts_with("property"))
    {
        COnBoardUIGeneral::SetAppMode(mode);
    }
    m_window = control.make(*m_stage, {CRect(20, 20, 220, 160), text, rows, false});
    if (!m_window)
    {
        std::fprintf(stderr, "audit: no %s could be made\n", control.name);
        std::exit(3);
    }
    m_window->ShowWindow(SW_SHOW);
    COnBoardUIGeneral::SetAppMode(mode);
    m_stage->Place();
    CWnd& top = Top();
    const bool isPopup = &top != m_stage.get();
    if (!isPopup && name.ends_with(" bar"))
    {
        m_window->SendMessage(WM_SIZE); // to the edge of the stage that it is drawn to
    }
    if (isPopup)
    {
        m_stage->StepAside();
        ::SetWindowPos(top, HWND_TOPMOST, 40, 40, 0, 0, SWP_NOSIZE);
    }
    m_stage->TakeFocus();
    Settle();
}

Shown::~Shown()
{
    m_window->DestroyWindow();
    m_stage->DestroyWindow();
}

// The stage, or a window of the control's own.
CWnd& Shown::Top() const
{
    return *CWnd::FromHandle(::GetAncestor(*m_window, GA_ROOT));
}

void Shown::Settle()
{
    MSG message;
    for (int quiet = 0; quiet < 3; ++quiet)
    {
        while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        {
            ::DispatchMessage(&message);
        }
        m_window->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        ::Sleep(1);
    }
}

std::vector<Part> Shown::Parts()
{
    const std::string_view name = m_control.name;
    const bool isPopup = (m_window->GetStyle() & WS_CHILD) == 0;
    // In the standard mode captions are the platform's, and it draws none of a group box that is
    // made as a label. The others never show a text of their own.
    const bool hasText = isPopup || name == "group box"
                             ? COnBoardUIGeneral::InOnBoardMode()
                             : name != "swatch" && name != "outline" && name != "form view" &&
                                   name != "property page";
    std::vector<Part> parts = {{"", m_window.get(), hasText}};
    AddWithin(parts, *m_window);
    struct Others
    {
        std::vector<Part>& parts;
        HWND known[2];
    } others = {parts, {*m_stage, Top()}};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM lParam) -> BOOL {
            auto& [parts, known] = *reinterpret_cast<Others*>(lParam);
            if (::IsWindowVisible(window) &&
                std::find(std::begin(known), std::end(known), window) == std::end(known))
            {
                CWnd& popup = *CWnd::FromHandle(window);
                const std::string kind = KindOf(popup);
                parts.push_back({kind, &popup, HasText(popup, kind)});
                AddWithin(parts, popup);
            }
            return TRUE;
        },
        LPARAM(&others));
    return parts;
}

void Shown::BlankButtons()
{
    for (const Part& part : Parts())
    {
        if (Is(part.kind, "Button"))
        {
            CString text;
            part.window->GetWindowText(text);
            part.window->SetWindowText(BlanksFor(std::string(text), *part.window).c_str());
        }
    }
    Settle();
}

Pixels PictureOf(const Part& part)
{
    Pixels picture = ScreenPixels(*part.window);
    CRect whole;
    part.window->GetWindowRect(&whole);
    const auto leave = [&](CWnd* other, UINT next) {
        for (; other; other = other->GetWindow(next))
        {
            if (other->IsWindowVisible())
            {
                CRect place;
                other->GetWindowRect(&place);
                picture.Leave(place - whole.TopLeft());
            }
        }
    };
    leave(part.window->GetWindow(GW_CHILD), GW_HWNDNEXT);
    if ((part.window->GetStyle() & WS_CHILD) != 0)
    {
        leave(part.window->GetWindow(GW_HWNDPREV), GW_HWNDPREV); // what lies above it
    }
    return picture;
}

std::string BlanksFor(const std::string& text, CWnd& window)
{
    CClientDC dc(&window);
    CFont* const font = window.GetFont();
    CFont* const before = font ? dc.SelectObject(font) : nullptr;
    const int wide = dc.GetTextExtent(text.c_str(), int(text.size())).cx;
    const int blank = std::max<int>(1, dc.GetTextExtent(" ", 1).cx);
    if (before)
    {
        dc.SelectObject(before);
    }
    return std::string(size_t((wide + blank - 1) / blank), ' ');
}
