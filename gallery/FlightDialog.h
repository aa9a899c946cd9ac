#pragma once

#include "OpenDialog.h"

#include <BoldStatic.h>
#include <ColorEdit.h>
#include <ColorStatic.h>
#include <ColoredGroupBox.h>
#include <CustomCheckBox.h>
#include <CustomDialog.h>
#include <CustomEdit.h>
#include <CustomListBox.h>
#include <CustomPropPage.h>
#include <CustomPropSheet.h>
#include <CustomPushbutton.h>
#include <CustomRadiobutton.h>
#include <CustomStatic.h>
#include <EditWithPrompt.h>
#include <QuixEdit.h>

// The controls of the gallery's dialogs, as far as a dialog has them, put over what its template
// made. Attached before the library restyles them.
class FlightControls
{
public:
    void Attach(CWnd& dialog);

    // The chosen states go along from one mode to another.
    void KeepChecks();
    void PutChecks();
    // One edit stays where its owner puts it.
    void PlaceFixed();

private:
    std::vector<CCustomButton*> Choices();
    void AttachParticulars(CWnd& dialog);
    void Fill();

    std::vector<int> m_checks;
    CCustomEdit m_callsign;
    CCustomEdit m_remarks;
    CCustomCheckBox m_alternate;
    CCustomRadiobutton m_visual;
    CCustomRadiobutton m_instrument;
    CCustomStatic m_rules;
    CCustomListBox m_airports;
    CCustomPushbutton m_buttons[3];
    CBoldStatic m_caption;
    CColorStatic m_colour;
    CColoredGroupBox m_frame;
    EditWithPrompt m_route;
    ColorEdit m_squawk;
    QuixEdit m_gate;
    CRect m_gatePlace; // in pixels of the standard mode
};

// A dialog from a template with the controls of the library. It can open another one of its kind.
class FlightDialog : public CCustomDialog, private OpenDialog
{
public:
    // depth counts the dialogs below it.
    FlightDialog(CWnd* parent, IAppAccess* host, int depth = 0);

    // Opens it beside its owner's window, which stays usable. FALSE when it cannot be made.
    BOOL OpenModeless(CWnd& owner, CPoint corner);

    BOOL OnInitDialog() override;

protected:
    void OnOK() override { Close(IDOK); }
    void OnCancel() override { Close(IDCANCEL); }

    afx_msg void OnAnother();
    DECLARE_MESSAGE_MAP()

private:
    void Close(int result);
    void KeepState() override { m_content.KeepChecks(); }
    void FollowMode() override;

    IAppAccess* m_services;
    int m_depth;
    FlightControls m_content;
    StandardLayout m_layout;
};

// A page of the gallery's property sheet.
class FlightPage : public CCustomPropPage
{
public:
    explicit FlightPage(UINT templateId)
        : CCustomPropPage(templateId)
    {}

    BOOL OnInitDialog() override;
    void KeepState() { m_content.KeepChecks(); }
    void FollowMode();

private:
    FlightControls m_content;
    StandardLayout m_layout;
};

// The gallery's property sheet: three pages about a flight.
class FlightSheet : public CCustomPropSheet, private OpenDialog
{
public:
    FlightSheet(CWnd* parent, IAppAccess* host);

    BOOL OnInitDialog() override;

private:
    void KeepState() override;
    void FollowMode() override;
    CRect PageArea() const; // in the sheet's client area

    IAppAccess* m_services;
    FlightPage m_pages[3];
    // In pixels of the standard mode.
    CRect m_tabs;
    CSize m_page;
    CSize m_tabItem; // the library's rule makes tabs higher with each change
    std::vector<StandardPlace> m_buttons;
};
