#pragma once

#include "robust/Subjects.h"
#include "support/WindowTest.h"

#include <afxcmn.h>

#include <concepts>
#include <sstream>
#include <string>

// What a message answered, as text.
struct Answer
{
    std::string text;

    template <std::integral Number>
    Answer(Number number)
        : text(std::to_string(number))
    {}
    Answer(const CString& string)
        : text('"' + std::string(string) + '"')
    {}
    Answer(const CPoint& point)
        : text(std::to_string(point.x) + '/' + std::to_string(point.y))
    {}
    Answer(const CRect& rect)
        : text(Answer(rect.TopLeft()).text + '-' + Answer(rect.BottomRight()).text)
    {}
};

// What a control answered and told its parent, line by line.
class Journal
{
public:
    Journal(HostWindow& host, CWnd& control, std::function<void()> inTheMiddle)
        : m_host(host)
        , m_control(control)
        , m_inTheMiddle(std::move(inTheMiddle))
    {
        m_host.AlsoRecord({WM_MEASUREITEM, WM_DELETEITEM, WM_COMPAREITEM, WM_VKEYTOITEM,
                           WM_CHARTOITEM, WM_CONTEXTMENU, WM_VSCROLL, WM_HSCROLL});
        m_host.hook = [this](const ToldMessage& told) { Tell(told); };
    }
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;
    ~Journal()
    {
        m_host.hook = nullptr;
        ForgetClipboard();
    }

    void Add(int line, std::initializer_list<Answer> answers)
    {
        std::string text = "line " + std::to_string(line) + ':';
        for (const Answer& answer : answers)
        {
            text += ' ' + answer.text;
        }
        m_lines.push_back(text);
        PumpAll();
    }

    // Input. The points are the control's, of its window.
    Answer Key(UINT key, UINT held = 0)
    {
        m_control.SetFocus();
        TypeKey(key, held);
        return key;
    }
    Answer Press(int x, int y)
    {
        QueueClick(WindowPoint(m_control, CPoint(x, y)));
        return 0;
    }
    // In runs with a change of modes it happens here.
    Answer Middle()
    {
        if (m_inTheMiddle)
        {
            m_host.hook = nullptr;
            m_inTheMiddle();
            m_host.hook = [this](const ToldMessage& told) { Tell(told); };
        }
        return 0;
    }

    const std::vector<std::string>& Lines() const { return m_lines; }

private:
    HostWindow& m_host;
    CWnd& m_control;
    std::function<void()> m_inTheMiddle;
    std::vector<std::string> m_lines;

    void Tell(const ToldMessage& told)
    {
        std::ostringstream line;
        line << "    told " << told.message << ' ' << told.id << ' ' << int(told.code);
        if (told.message == WM_NOTIFY)
        {
            const auto* header = reinterpret_cast<const NMHDR*>(told.lParam);
            if (told.code == UINT(NM_CUSTOMDRAW) || told.code == UINT(LVN_GETDISPINFO))
            {
                return; // comes with painting, whose times are the display's
            }
            if (told.code == UINT(LVN_ITEMCHANGED) || told.code == UINT(LVN_ITEMCHANGING))
            {
                const auto* change = reinterpret_cast<const NMLISTVIEW*>(header);
                line << " row " << change->iItem << ' ' << change->uOldState << " to "
                     << change->uNewState;
            }
        }
        else if (told.message != WM_COMMAND && told.message != WM_CONTEXTMENU)
        {
            line << ' ' << LOWORD(told.wParam) << ' ' << HIWORD(told.wParam);
        }
        if (told.message == WM_DELETEITEM)
        {
            const auto* item = reinterpret_cast<const DELETEITEMSTRUCT*>(told.lParam);
            line << " row " << item->itemID << " data " << item->itemData;
        }
        m_lines.push_back(line.str());
    }
};

// Several answers: left to right, as braces have it.
#define ASK(...) journal.Add(__LINE__, {__VA_ARGS__})
