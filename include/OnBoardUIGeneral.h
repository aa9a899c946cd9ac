#pragma once

#include "AppMode.h"
#include "OnBoardUIExport.h"

#include <afxwin.h>

#include <vector>

class CCustomDialog;
class CCustomDropListCombo;
class CCustomFormView;
class CCustomPropPage;
class CCustomPropSheet;

// The display mode, the windows that are told when it changes, and what the modes share. Static
// only; used on the host's user-interface thread.
class ONBOARDUI_API COnBoardUIGeneral
{
public:
    // Stores the mode, then calls AppModeChanged(newMode, oldMode) of every registered form view,
    // dialog, drop-list combo, property page and property sheet, in this order and each in order
    // of registration, also when the mode stays the same. Receivers may add and remove windows:
    // nobody is called after its removal, nobody still there is left out. A window that opens
    // during a change opens in the new mode and does not follow that change.
    static void SetAppMode(APPMODE newMode);
    // The mode of the moment, STD at first. During a change it is the new one.
    static APPMODE GetAppMode() { return m_appmode; }
    // Whether the mode is any but STD.
    static bool InOnBoardMode() { return m_appmode != STD; }

    // @{
    // The user's highlight colours as they were when the library was loaded.
    static COLORREF GetOrgHighlight() { return m_org_highlight; }
    static COLORREF GetOrgHighlightText() { return m_org_highlighttext; }
    // @}

    // @{
    // The title of message boxes; empty at first. One that is open keeps its own.
    static void SetAppTitle(const CString& title);
    static const CString& GetAppTitle() { return m_apptitle; }
    // @}

    // Derives the height of the standard font from the screen's vertical resolution: to be called
    // once, before the first control. Nothing when the screen tells no resolution.
    static void SetStdModeGoals();
    // That height in tenths of a point, 7920 / resolution + 1; -11 before.
    static int GetStdCtrllfHeight() { return m_std_ctrl_lf_height; }

    // @{
    // The registries own nothing. Adding ignores null and keeps duplicates; removing takes out the
    // first entry that is equal and ignores a window that is not there.
    static void AddCustomView(CCustomFormView* view);
    static void RemoveCustomView(CCustomFormView* view);
    static void AddCustomDialog(CCustomDialog* dialog);
    static void RemoveCustomDialog(CCustomDialog* dialog);
    static void AddCustomDropListCombo(CCustomDropListCombo* combo);
    static void RemoveCustomDropListCombo(CCustomDropListCombo* combo);
    static void AddCustomPropPage(CCustomPropPage* page);
    static void RemoveCustomPropPage(CCustomPropPage* page);
    static void AddCustomPropSheet(CCustomPropSheet* sheet);
    static void RemoveCustomPropSheet(CCustomPropSheet* sheet);
    // @}

    // @{
    // What the functions above keep, to be read. A host that writes here goes past them: nobody is
    // told of a change.
    static APPMODE m_appmode;
    static int m_std_ctrl_lf_height;
    static COLORREF m_org_highlight;
    static COLORREF m_org_highlighttext;
    static CString m_apptitle;
    static std::vector<CCustomFormView*> m_createdformviews;
    static std::vector<CCustomDialog*> m_createddialogs;
    static std::vector<CCustomDropListCombo*> m_createddlcs;
    static std::vector<CCustomPropPage*> m_createdPropPages;
    static std::vector<CCustomPropSheet*> m_createdPropSheets;
    // @}

private:
    COnBoardUIGeneral() = default;
    virtual ~COnBoardUIGeneral() = default;
};
