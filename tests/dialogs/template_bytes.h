#pragma once

#include <afxwin.h>

#include <cstring>
#include <optional>
#include <string>
#include <vector>

// A name in a template: nothing, an ordinal or a text.
struct TemplateName
{
    std::optional<WORD> ordinal;
    std::u16string text;

    TemplateName() = default;
    TemplateName(WORD number)
        : ordinal(number)
    {}
    TemplateName(const char16_t* letters)
        : text(letters)
    {}
};

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
        const DWORD style = header.style | (header.points != 0 ? DS_SETFONT : 0);
        if (m_extended)
        {
            Append({1, 0xFFFF});
            AppendLong(0);
            AppendLong(header.exStyle);
            AppendLong(style);
        }
        else
        {
            AppendLong(style);
            AppendLong(header.exStyle);
        }
        m_count = m_words.size();
        Append({0});
        AppendPlace(header.place);
        AppendName(header.menu);
        AppendName(header.windowClass);
        AppendText(header.title);
        if (header.points != 0)
        {
            Append({header.points});
            if (header.points != 0x7FFF)
            {
                if (m_extended)
                {
                    Append({FW_BOLD, 0x0100}); // default character set
                }
                AppendText(header.face);
            }
        }
    }

    TemplateBytes& Add(const TemplateName& windowClass, const TemplateName& text, DWORD style,
                       const CRect& place, WORD id, const std::vector<WORD>& data = {})
    {
        if (m_words.size() % 2 != 0)
        {
            Append({0});
        }
        if (m_extended)
        {
            AppendLong(0);
            AppendLong(0);
            AppendLong(style | WS_CHILD | WS_VISIBLE);
        }
        else
        {
            AppendLong(style | WS_CHILD | WS_VISIBLE);
            AppendLong(0);
        }
        AppendPlace(place);
        m_extended ? AppendLong(id) : Append({id});
        AppendName(windowClass);
        AppendName(text);
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
    void AppendLong(DWORD value) { Append({LOWORD(value), HIWORD(value)}); }
    void AppendPlace(const CRect& place)
    {
        Append({WORD(place.left), WORD(place.top), WORD(place.Width()), WORD(place.Height())});
    }
    void AppendText(const std::u16string& text)
    {
        for (const char16_t letter : text)
        {
            Append({WORD(letter)});
        }
        Append({0});
    }
    void AppendName(const TemplateName& name)
    {
        if (name.ordinal)
        {
            Append({0xFFFF, *name.ordinal});
        }
        else
        {
            AppendText(name.text);
        }
    }
};
