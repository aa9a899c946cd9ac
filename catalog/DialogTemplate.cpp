#include "catalog/DialogTemplate.h"

DialogTemplate::DialogTemplate(const Header& header)
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
    AppendName(header.title);
    if (header.points != 0)
    {
        Append({header.points});
        if (m_extended)
        {
            Append({FW_BOLD, 0x0100}); // default character set
        }
        AppendName(header.face);
    }
}

DialogTemplate& DialogTemplate::Add(const Name& windowClass, const char* text, DWORD style,
                                    const CRect& place, WORD id, const std::vector<WORD>& data)
{
    if (m_words.size() % 2 != 0)
    {
        Append({0}); // items begin on even words
    }
    AppendStyles(style | WS_CHILD | WS_VISIBLE, 0);
    AppendPlace(place);
    Append({id});
    if (m_extended)
    {
        Append({0}); // its ids are long ones
    }
    AppendName(windowClass);
    AppendName(text);
    Append({WORD(data.size() * sizeof(WORD))});
    Append(data);
    ++m_words[m_count];
    return *this;
}

void DialogTemplate::Append(const std::vector<WORD>& words)
{
    m_words.insert(m_words.end(), words.begin(), words.end());
}

// The formats have them the other way round, the extended one behind a help id.
void DialogTemplate::AppendStyles(DWORD style, DWORD exStyle)
{
    const DWORD first = m_extended ? exStyle : style;
    const DWORD second = m_extended ? style : exStyle;
    if (m_extended)
    {
        Append({0, 0});
    }
    Append({LOWORD(first), HIWORD(first), LOWORD(second), HIWORD(second)});
}

void DialogTemplate::AppendPlace(const CRect& place)
{
    Append({WORD(place.left), WORD(place.top), WORD(place.Width()), WORD(place.Height())});
}

void DialogTemplate::AppendName(const Name& name)
{
    if (const WORD* const ordinal = std::get_if<WORD>(&name))
    {
        Append({0xFFFF, *ordinal});
        return;
    }
    for (const char letter : std::get<std::string>(name))
    {
        Append({WORD(static_cast<unsigned char>(letter))});
    }
    Append({0});
}
