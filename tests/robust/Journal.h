#pragma once

#include "robust/Subjects.h"
#include "support/WindowTest.h"

#include <sstream>

// An item of a tree by its text: handles differ.
inline CString Named(HWND tree, HTREEITEM item)
{
    char text[80] = "none";
    TVITEM asked = {.mask = TVIF_TEXT, .hItem = item, .pszText = text, .cchTextMax = sizeof(text)};
    if (item != nullptr)
    {
        ::SendMessage(tree, TVM_GETITEM, 0, LPARAM(&asked));
    }
    return text;
}

template <class... Values> std::string Joined(const Values&... values)
{
    std::ostringstream line;
    ((line << ' ' << values), ...);
    return line.str();
}

// What a message answered.
template <class Value> std::string Written(const Value& value)
{
    if constexpr (std::is_base_of_v<RECT, Value>)
    {
        return Joined(value.left, value.top, value.right, value.bottom);
    }
    else
    {
        return Joined(value);
    }
}

template <class Record> const Record& About(const NMHDR& header)
{
    return reinterpret_cast<const Record&>(header);
}

// What a notification is about, as text.
inline std::string Essentials(const NMHDR& header)
{
    const auto named = [&](HTREEITEM item) { return Named(header.hwndFrom, item); };
    const auto text = [](const char* own) { return own != nullptr ? own : "none"; };
    const int code = int(header.code);
    const auto within = [&](int first, int last) { return code <= first && code >= last; };
    switch (header.code)
    {
    case NM_CLICK:
    case NM_LDOWN:
        return IsOfClass(header.hwndFrom, WC_LISTVIEW)
                   ? Joined(About<NMITEMACTIVATE>(header).iItem,
                            About<NMITEMACTIVATE>(header).iSubItem)
               : IsOfClass(header.hwndFrom, WC_TREEVIEW)
                   ? std::string()
                   : Joined(int(About<NMMOUSE>(header).dwItemSpec));
    case LVN_KEYDOWN:
    case TVN_KEYDOWN:
        static_assert(offsetof(NMLVKEYDOWN, wVKey) == offsetof(NMTVKEYDOWN, wVKey));
        return Joined(About<NMLVKEYDOWN>(header).wVKey);
    case LVN_BEGINLABELEDIT:
    case LVN_ENDLABELEDIT:
        return Joined(About<NMLVDISPINFO>(header).item.iItem,
                      text(About<NMLVDISPINFO>(header).item.pszText));
    case LVN_ODSTATECHANGED:
        return Joined(About<NMLVODSTATECHANGE>(header).iFrom, About<NMLVODSTATECHANGE>(header).iTo,
                      About<NMLVODSTATECHANGE>(header).uNewState);
    case LVN_ODFINDITEM:
    case LVN_ODFINDITEMW:
        return Joined(About<NMLVFINDITEM>(header).iStart);
    case TVN_BEGINLABELEDIT:
    case TVN_ENDLABELEDIT:
    {
        const TVITEM& item = About<NMTVDISPINFO>(header).item;
        return Joined(named(item.hItem), item.lParam, text(item.pszText));
    }
    default:
        break;
    }
    if (within(LVN_FIRST, LVN_LAST))
    {
        const auto& change = About<NMLISTVIEW>(header);
        return Joined(change.iItem, change.iSubItem, change.uOldState, change.uNewState,
                      change.lParam);
    }
    if (within(HDN_FIRST, HDN_LAST))
    {
        const HDITEM none = {};
        const HDITEM& item =
            About<NMHEADER>(header).pitem != nullptr ? *About<NMHEADER>(header).pitem : none;
        return Joined(About<NMHEADER>(header).iItem, About<NMHEADER>(header).iButton,
                      (item.mask & HDI_WIDTH) != 0 ? item.cxy : -1,
                      (item.mask & HDI_ORDER) != 0 ? item.iOrder : -1);
    }
    if (within(TVN_FIRST, TVN_LAST))
    {
        const auto& change = About<NMTREEVIEW>(header);
        return Joined(change.action, named(change.itemOld.hItem), change.itemOld.lParam,
                      named(change.itemNew.hItem), change.itemNew.lParam);
    }
    return within(TBN_FIRST, TBN_LAST) ? Joined(About<NMTOOLBAR>(header).iItem) : std::string();
}

// What a message to the host is about, as text.
inline std::string Essentials(const ToldMessage& told)
{
    switch (told.message)
    {
    case WM_NOTIFY:
        return Essentials(About<NMHDR>(told));
    case WM_COMMAND:
    case WM_CONTEXTMENU:
        return {};
    case WM_DELETEITEM:
        return Joined(told.wParam, About<DELETEITEMSTRUCT>(told).itemID,
                      About<DELETEITEMSTRUCT>(told).itemData);
    case WM_MEASUREITEM:
        return Joined(told.wParam, About<MEASUREITEMSTRUCT>(told).itemID);
    case WM_COMPAREITEM:
        return Joined(told.wParam, int(About<COMPAREITEMSTRUCT>(told).itemID1),
                      int(About<COMPAREITEMSTRUCT>(told).itemID2));
    default:
        return Joined(LOWORD(told.wParam), HIWORD(told.wParam));
    }
}

// What a control answered and told its parent, line by line.
class Journal
{
public:
    Journal(HostWindow& host, CWnd& control, std::function<void()> inTheMiddle)
        : m_host(host)
        , m_control(control)
        , m_inTheMiddle(std::move(inTheMiddle))
    {
        m_host.AlsoRecord({WM_MEASUREITEM, WM_DELETEITEM, WM_COMPAREITEM, WM_DRAWITEM,
                           WM_VKEYTOITEM, WM_CHARTOITEM, WM_CONTEXTMENU, WM_VSCROLL, WM_HSCROLL});
        m_host.hook = [this](ToldMessage& told) { Tell(told); };
    }
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;
    ~Journal()
    {
        m_host.hook = nullptr;
        ForgetClipboard();
    }

    template <class... Answers> void Add(int line, const std::tuple<Answers...>& answers)
    {
        m_text += "line" + Joined(line) + ':';
        std::apply([this](const auto&... each) { ((m_text += Written(each)), ...); }, answers);
        m_text += '\n';
        PumpAll();
    }

    HostWindow& Host() { return m_host; }
    // What the host says to what it is told; by default nothing.
    std::function<void(ToldMessage&)> answer;

    // Input. The points are the control's, of its window.
    int Key(UINT key, UINT held = 0)
    {
        m_control.SetFocus();
        TypeKey(key, held);
        return int(key);
    }
    // To whatever has the focus.
    static int Enter(const char* text, UINT key)
    {
        TypeText(text);
        TypeKey(key);
        return int(key);
    }
    int Press(int x, int y)
    {
        QueueClick(WindowPoint(m_control, CPoint(x, y)));
        return 0;
    }
    // In runs with a change of modes it happens here.
    int Middle()
    {
        if (m_inTheMiddle)
        {
            m_writing = false;
            m_inTheMiddle();
            m_writing = true;
        }
        return 0;
    }

    const std::string& Text() const { return m_text; }

private:
    HostWindow& m_host;
    CWnd& m_control;
    std::function<void()> m_inTheMiddle;
    std::string m_text;
    bool m_writing = true;

    void Tell(ToldMessage& told)
    {
        if (answer)
        {
            answer(told);
        }
        const bool paints = told.message == WM_DRAWITEM ||
                            (told.message == WM_NOTIFY && (told.code == UINT(NM_CUSTOMDRAW) ||
                                                           told.code == UINT(LVN_GETDISPINFO) ||
                                                           told.code == UINT(LVN_ODCACHEHINT)));
        if (m_writing && !paints) // whose times are the display's
        {
            m_text += "    told" + Joined(told.message, told.id, int(told.code)) +
                      Essentials(told) + '\n';
        }
    }
};

// Several answers: left to right, as braces have it.
#define ASK(...) journal.Add(__LINE__, std::tuple{__VA_ARGS__})
