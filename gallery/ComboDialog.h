#pragma once

#include <CustomDialog.h>
#include <CustomDropListCombo.h>
#include <CustomPushbutton.h>
#include <CustomStatic.h>

// A dialog whose template names the combo's window class: the first combo is taken over by an
// object of the dialog, the second is left to the one that its class makes.
class ComboDialog : public CCustomDialog
{
public:
    explicit ComboDialog(IAppAccess* host);

    // Opens it beside its owner's window, which stays usable. FALSE when it cannot be made.
    BOOL Open(CWnd& owner);
    void MoveTo(CPoint corner);

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void OnOK() override { DestroyWindow(); }
    void OnCancel() override { DestroyWindow(); }

private:
    CCustomDropListCombo m_departure;
    CCustomPushbutton m_close;
};
