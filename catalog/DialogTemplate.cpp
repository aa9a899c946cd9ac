#include "catalog/DialogTemplate.h"

#include <cstring>

DialogTemplate::DialogTemplate(const CRect& place, DWORD style, const char* title)
{
    DLGTEMPLATE header = {};
    header.style = style | DS_SETFONT;
    header.x = short(place.left);
    header.y = short(place.top);
    header.cx = short(place.Width());
    header.cy = short(place.Height());
    Append(&header, sizeof(header));
    m_words.push_back(0); // no menu
    m_words.push_back(0); // the platform's dialog class
    AppendText(title);
    m_words.push_back(8); // points
    AppendText("MS Sans Serif");
}

DialogTemplate& DialogTemplate::Add(const char* windowClass, const char* text, DWORD style,
                                    const CRect& place, WORD id)
{
    if (m_words.size() % 2 != 0)
    {
        m_words.push_back(0); // items begin on even words
    }
    DLGITEMTEMPLATE item = {};
    item.style = style | WS_CHILD | WS_VISIBLE;
    item.x = short(place.left);
    item.y = short(place.top);
    item.cx = short(place.Width());
    item.cy = short(place.Height());
    item.id = id;
    Append(&item, sizeof(item));
    AppendText(windowClass);
    AppendText(text);
    m_words.push_back(0); // no creation data
    // The count of items stands behind style and extended style.
    ++m_words[4];
    return *this;
}

void DialogTemplate::Append(const void* data, size_t bytes)
{
    const size_t before = m_words.size();
    m_words.resize(before + bytes / sizeof(WORD));
    std::memcpy(m_words.data() + before, data, bytes);
}

void DialogTemplate::AppendText(const char* text)
{
    for (; *text != '\0'; ++text)
    {
        m_words.push_back(WORD(static_cast<unsigned char>(*text)));
    }
    m_words.push_back(0);
}
