#pragma once

#include <afxwin.h>

#include <vector>

// A dialog template in memory. Places are in dialog units.
//
//     DialogTemplate form(CRect(0, 0, 200, 100), WS_POPUP | WS_CAPTION);
//     form.Add("Edit", "text", ES_AUTOHSCROLL, CRect(10, 10, 60, 22), 101);
//     dialog.InitModalIndirect(form);
class DialogTemplate
{
public:
    explicit DialogTemplate(const CRect& place, DWORD style = WS_POPUP | WS_CAPTION,
                            const char* title = "");

    // A visible child of any window class.
    DialogTemplate& Add(const char* windowClass, const char* text, DWORD style, const CRect& place,
                        WORD id);

    // Lasts as long as this object and until the next Add.
    operator LPCDLGTEMPLATE() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }

private:
    std::vector<WORD> m_words;

    void Append(const void* data, size_t bytes);
    void AppendText(const char* text);
};
