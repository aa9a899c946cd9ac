#pragma once

#include "OnBoardUIExport.h"

#include <afxwin.h>

#include <cstddef>
#include <vector>

// A dialog template, plain or extended, that can be rewritten for on-board display. It keeps a copy
// of its own: what it was loaded from may go, and what it hands out lasts as long as the object.
class ONBOARDUI_API CCustomDialogTemplate
{
public:
    // What the template says about one of its controls.
    struct Control
    {
        DWORD id;    // as the template gives it
        CRect place; // pixels, where the control stands in the standard mode
    };

    CCustomDialogTemplate() = default;
    ~CCustomDialogTemplate();
    CCustomDialogTemplate(const CCustomDialogTemplate&) = delete;
    CCustomDialogTemplate& operator=(const CCustomDialogTemplate&) = delete;

    // @{
    // From the resources that the framework searches, or from those of one module. False, and an
    // empty object, when there is no such template or it is damaged. A template that is locked is
    // kept, and false too.
    bool Load(LPCSTR name, HINSTANCE module = nullptr);
    bool Load(UINT id, HINSTANCE module = nullptr);
    // @}

    // From memory of so many bytes; what lies behind the template does no harm.
    bool Load(const void* memory, size_t bytes);
    // From memory of unknown size: reads no further than memory is readable.
    bool Load(LPCDLGTEMPLATE memory);

    // Whether there is a template here, rewritten or not.
    bool IsLoaded() const { return !m_bytes.empty(); }

    // Rewrites the template for on-board display: the on-board font, the dialog's size by the
    // factor of the on-board modes and with room for the on-board caption, and the controls' dialog
    // units such that they keep their pixels (to the nearest unit of the larger font): they are
    // scaled when the dialog initialises. Once only; false when it cannot be done.
    bool ChangeTemplateForOB();

    // @{
    // The controls in the order of the template, and the font that they have in the standard mode
    // with the pixels of 4 x 8 dialog units there. Known once the template was rewritten. The font
    // is this object's.
    const std::vector<Control>& Controls() const { return m_controls; }
    HFONT StandardFont() const;
    CSize StandardUnit() const { return m_standardUnit; }
    // @}

    // Where the template was found; null for one from memory.
    HINSTANCE Module() const { return m_module; }

    // @{
    // The template, for creating a dialog from it, or null for none. While it is locked it neither
    // moves nor changes. Each Lock needs its Unlock.
    LPCDLGTEMPLATE Lock();
    void Unlock();
    // @}

private:
    std::vector<std::byte> m_bytes;
    std::vector<Control> m_controls;
    CFont m_standardFont; // without a handle for the system font
    HINSTANCE m_module = nullptr;
    CSize m_standardUnit;
    bool m_rewritten = false;
    int m_locks = 0;

    void Clear();
};
