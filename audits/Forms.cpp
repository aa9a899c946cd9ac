#include "Forms.h"

#include "CustomFormView.h"
#include "CustomPropPage.h"
#include "CustomPropSheet.h"
#include "CustomToolbar.h"
#include "resource.h"

#include <afxcmn.h>

namespace {

using Made = std::unique_ptr<CWnd>;

void SetTexts(CWnd& form, const std::string& text)
{
    form.SetDlgItemText(IDC_AUDIT_LABEL, text.c_str());
    form.SetDlgItemText(IDC_AUDIT_EDIT, text.c_str());
}

Made MakeForm(CWnd& parent, const Contents& contents)
{
    struct View : CCustomFormView
    {
        View()
            : CCustomFormView(UINT(IDD_AUDIT_FORM))
        {}
        void PostNcDestroy() override {} // whoever made it owns it
    };
    auto view = std::make_unique<View>();
    if (!view->Create(nullptr, contents.text.c_str(), WS_CHILD | WS_VISIBLE, contents.place,
                      &parent, ControlId, nullptr))
    {
        return nullptr;
    }
    view->OnInitialUpdate();
    SetTexts(*view, contents.text);
    return view;
}

Made MakeSheet(CWnd& parent, const Contents& contents)
{
    struct Sheet : CCustomPropSheet
    {
        CCustomPropPage page{IDD_AUDIT_FORM};
        std::string title;

        Sheet(CWnd& owner, const std::string& text)
            : CCustomPropSheet(text.c_str(), nullptr, &owner)
            , title(text)
        {
            page.m_psp.pszTitle = title.c_str();
            page.m_psp.dwFlags |= PSP_USETITLE;
            AddPage(&page);
        }
    };
    auto sheet = std::make_unique<Sheet>(parent, contents.text);
    if (!sheet->Create(&parent, WS_VISIBLE))
    {
        return nullptr;
    }
    // As wide for every text.
    sheet->GetTabControl()->SendMessage(TCM_SETMINTABWIDTH, 0, contents.place.Width());
    SetTexts(sheet->page, contents.text);
    return sheet;
}

Made MakeToolbar(CWnd& parent, const Contents& contents)
{
    auto bar = std::make_unique<CustomToolbar>();
    if (!bar->CreateEx(&parent, TBSTYLE_FLAT | TBSTYLE_LIST, WS_CHILD | WS_VISIBLE,
                       CRect(0, 0, 0, 0), ControlId))
    {
        return nullptr;
    }
    const std::string list = contents.text + '\0'; // the last of a list of texts ends with two
    TBBUTTON button = {};
    button.idCommand = 1;
    button.iBitmap = I_IMAGENONE;
    button.fsState = TBSTATE_ENABLED;
    button.iString = bar->SendMessage(TB_ADDSTRING, 0, LPARAM(list.c_str()));
    bar->SendMessage(TB_ADDBUTTONS, 1, LPARAM(&button));
    bar->SetWindowText(contents.text.c_str());
    bar->MoveWindow(contents.place);
    return bar;
}

} // namespace

const std::vector<Control>& Forms()
{
    static const std::vector<Control> forms = {
        {"form view", &MakeForm}, {"sheet", &MakeSheet}, {"tool bar", &MakeToolbar}};
    return forms;
}
