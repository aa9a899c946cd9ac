#pragma once

#include <afxwin.h>

#include <string>
#include <variant>
#include <vector>

// A name in a template: nothing or a text, or an ordinal.
using TemplateName = std::variant<std::u16string, WORD>;

// Writes dialog templates of both formats with any of their fields.
class TemplateBytes
{
public:
    struct Header
    {
        bool extended = false;
        DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU;
        DWORD exStyle = 0;
        TemplateName menu = {};
        TemplateName windowClass = {};
        const char16_t* title = u"Title";
        WORD points = 8; // 0: no font
        const char16_t* face = u"MS Sans Serif";
        CRect place = CRect(10, 10, 210, 130);
    };

    explicit TemplateBytes(const Header& header)
        : m_extended(header.extended)
    {
        if (m_extended)
        {
            Append({1, 0xFFFF});
        }
        AppendStyles(header.style | (header.points != 0 ? DS_SETFONT : 0), header.exStyle);
        m_count = m_words.size();
        Append({0});
        AppendPlace(header.place);
        AppendName(header.menu);
        AppendName(header.windowClass);
        AppendText(header.title);
        if (header.points != 0)
        {
            Append({header.points});
            if (m_extended)
            {
                Append({FW_BOLD, 0x0100}); // default character set
            }
            AppendText(header.face);
        }
    }

    TemplateBytes& Add(const TemplateName& windowClass, const char16_t* text, DWORD style,
                       const CRect& place, WORD id, const std::vector<WORD>& data = {})
    {
        if (m_words.size() % 2 != 0)
        {
            Append({0});
        }
        AppendStyles(style | WS_CHILD | WS_VISIBLE, 0);
        AppendPlace(place);
        Append({id});
        if (m_extended)
        {
            Append({0}); // its ids are long ones
        }
        AppendName(windowClass);
        AppendText(text);
        Append({WORD(data.size() * sizeof(WORD))});
        Append(data);
        ++m_words[m_count];
        return *this;
    }

    const void* Data() const { return m_words.data(); }
    size_t Size() const { return m_words.size() * sizeof(WORD); }
    operator LPCDLGTEMPLATE() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }

private:
    bool m_extended;
    size_t m_count = 0;
    std::vector<WORD> m_words;

    void Append(const std::vector<WORD>& words)
    {
        m_words.insert(m_words.end(), words.begin(), words.end());
    }
    // The formats have them the other way round, the extended one behind a help id.
    void AppendStyles(DWORD style, DWORD exStyle)
    {
        const DWORD first = m_extended ? exStyle : style;
        const DWORD second = m_extended ? style : exStyle;
        if (m_extended)
        {
            Append({0, 0});
        }
        Append({LOWORD(first), HIWORD(first), LOWORD(second), HIWORD(second)});
    }
    void AppendPlace(const CRect& place)
    {
        Append({WORD(place.left), WORD(place.top), WORD(place.Width()), WORD(place.Height())});
    }
    void AppendText(const std::u16string& text)
    {
        m_words.insert(m_words.end(), text.begin(), text.end());
        Append({0});
    }
    void AppendName(const TemplateName& name)
    {
        if (const WORD* const ordinal = std::get_if<WORD>(&name))
        {
            Append({0xFFFF, *ordinal});
        }
        else
        {
            AppendText(std::get<std::u16string>(name));
        }
    }
};
