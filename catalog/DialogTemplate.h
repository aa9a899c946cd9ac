#pragma once

#include <afxwin.h>

#include <string>
#include <variant>
#include <vector>

// A dialog template in memory, of either format and with any of its fields. Places are in dialog
// units.
//
//     DialogTemplate form(CRect(0, 0, 200, 100), WS_POPUP | WS_CAPTION);
//     form.Add("Edit", "text", ES_AUTOHSCROLL, CRect(10, 10, 60, 22), 101);
//     dialog.InitModalIndirect(form);
class DialogTemplate
{
public:
    using Name = std::variant<std::string, WORD>; // nothing or a text, or an ordinal

    struct Header
    {
        bool extended = false;
        DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU;
        DWORD exStyle = 0;
        Name menu = {};
        Name windowClass = {};
        const char* title = "Title";
        WORD points = 8; // 0: no font
        const char* face = "MS Sans Serif";
        CRect place = CRect(10, 10, 210, 130);
    };

    explicit DialogTemplate(const Header& header);
    explicit DialogTemplate(const CRect& place, DWORD style = WS_POPUP | WS_CAPTION,
                            const char* title = "")
        : DialogTemplate(Header{.style = style, .title = title, .place = place})
    {}

    // A visible child of any window class, with creation data.
    DialogTemplate& Add(const Name& windowClass, const char* text, DWORD style, const CRect& place,
                        WORD id, const std::vector<WORD>& data = {});

    const void* Data() const { return m_words.data(); }
    size_t Size() const { return m_words.size() * sizeof(WORD); }
    // Lasts as long as this object and until the next Add.
    operator LPCDLGTEMPLATE() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }

private:
    bool m_extended;
    size_t m_count = 0; // where the number of children stands
    std::vector<WORD> m_words;

    void Append(const std::vector<WORD>& words);
    void AppendStyles(DWORD style, DWORD exStyle);
    void AppendPlace(const CRect& place);
    void AppendName(const Name& name);
};
