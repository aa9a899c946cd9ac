#pragma once

// How each control of the catalog is made.

#include "catalog/Controls.h"
#include "catalog/DialogTemplate.h"
#include "catalog/forms.h"

#include "BoldStatic.h"
#include "ColorEdit.h"
#include "ColorStatic.h"
#include "ColoredGroupBox.h"
#include "CustomCheckBox.h"
#include "CustomChecklistBox.h"
#include "CustomComboLBox.h"
#include "CustomDialog.h"
#include "CustomDropListCombo.h"
#include "CustomEdit.h"
#include "CustomFormView.h"
#include "CustomListBox.h"
#include "CustomListCtrl.h"
#include "CustomListCtrlHdr.h"
#include "CustomPropPage.h"
#include "CustomPropSheet.h"
#include "CustomPushbutton.h"
#include "CustomRadiobutton.h"
#include "CustomStatic.h"
#include "CustomStatusBar.h"
#include "CustomToolbar.h"
#include "EditWithPrompt.h"
#include "MultiTree.h"
#include "MultiTreeView.h"
#include "QuixEdit.h"
#include "SearchStatusBar.h"
#include "ZepMsgBoxDlg.h"

#include <algorithm>

using Made = std::unique_ptr<CWnd>;

// As<Class> is what is made in the place of each class: the class itself, or one derived from it.
template <template <class> class As> struct Makers
{

    static constexpr DWORD Shown = WS_CHILD | WS_VISIBLE;
    static constexpr DWORD Child = Shown | WS_TABSTOP;
    static constexpr int Lines = 40;
    static constexpr int Branches = 20;

    static std::string Numbered(const Contents& contents, int row)
    {
        return contents.numbered ? contents.text + " " + std::to_string(row) : contents.text;
    }

    // A control whose Create takes (text, style, place, parent, id).
    template <class Button> static auto Titled(DWORD style)
    {
        return [style](CWnd& parent, const Contents& contents) -> Made {
            auto control = std::make_unique<As<Button>>();
            if constexpr (std::is_same_v<Button, CColorStatic>)
            {
                control->Set(RGB(70, 90, 110)); // a host gives it one before it is painted
            }
            const bool made = control->Create(contents.text.c_str(), Shown | style, contents.place,
                                              &parent, ControlId);
            return made ? std::move(control) : nullptr;
        };
    }

    template <class Edit> static auto MadeEdit(DWORD style)
    {
        return [style](CWnd& parent, const Contents& contents) -> Made {
            const CRect& place = contents.place;
            auto edit = std::make_unique<As<Edit>>();
            if constexpr (std::is_same_v<Edit, QuixEdit>)
            {
                edit->SetFixedPlace(place.left, place.top, place.Width());
            }
            if (!edit->CreateEx(WS_EX_CLIENTEDGE, "EDIT", "", Child | style, place, &parent,
                                ControlId))
            {
                return nullptr;
            }
            std::string text = contents.text;
            for (int line = 1; (style & ES_MULTILINE) != 0 && line < Lines; ++line)
            {
                text += "\r\n" + Numbered(contents, line);
            }
            edit->CWnd::SetWindowText(text.c_str());
            return edit;
        };
    }

    template <class List> static auto MadeList(DWORD style)
    {
        return [style](CWnd& parent, const Contents& contents) -> Made {
            auto list = std::make_unique<As<List>>();
            if (!list->CreateEx(WS_EX_CLIENTEDGE, "LISTBOX", "",
                                Child | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | style,
                                contents.place, &parent, ControlId))
            {
                return nullptr;
            }
            for (int row = 0; row < contents.rows; ++row)
            {
                list->AddString(Numbered(contents, row).c_str());
            }
            return list;
        };
    }

    static Made MakeCheckList(CWnd& parent, const Contents& contents)
    {
        Made window =
            MadeList<CCustomChecklistBox>(LBS_HASSTRINGS | LBS_OWNERDRAWFIXED)(parent, contents);
        if (auto* const list = static_cast<CCustomChecklistBox*>(window.get()))
        {
            list->SetCheckStyle(BS_AUTO3STATE);
            for (int row = 0; row < contents.rows; ++row)
            {
                list->SetCheck(row, row % 3);
                list->Enable(row, row % 5 != 0);
            }
        }
        return window;
    }

    static Made MakeCombo(CWnd& parent, const Contents& contents)
    {
        auto combo = std::make_unique<As<CCustomDropListCombo>>();
        const CRect field(contents.place.TopLeft(), CSize(contents.place.Width(), 24));
        if (!combo->Create(Child, field, &parent, ControlId))
        {
            return nullptr;
        }
        for (int row = 0; row < contents.rows; ++row)
        {
            combo->AddString(Numbered(contents, row).c_str());
        }
        combo->SetCurSel(0);
        return combo;
    }

    // As a combo drops it.
    static Made MakeComboList(CWnd& parent, const Contents& contents)
    {
        auto list = std::make_unique<As<CCustomComboLBox>>();
        if (!list->CreatePopup())
        {
            return nullptr;
        }
        CRect place = contents.place;
        parent.ClientToScreen(&place);
        for (int row = 0; row < contents.rows; ++row)
        {
            list->AddString(Numbered(contents, row).c_str());
        }
        list->PlacePopup(place);
        list->ShowPopup(true);
        return list;
    }

    // On a window of its own, without a list.
    static Made MakeHeader(CWnd& parent, const Contents& contents)
    {
        auto header = std::make_unique<As<CCustomListCtrlHdr>>();
        constexpr int finger = 31; // grows with the mode
        const CRect strip(contents.place.TopLeft(), CSize(contents.place.Width(), finger));
        if (!header->Create(Shown | HDS_HORZ | HDS_BUTTONS, strip, &parent, ControlId))
        {
            return nullptr;
        }
        std::string text = contents.text;
        HDITEM item = {};
        item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
        item.fmt = HDF_LEFT | HDF_STRING;
        item.pszText = text.data();
        item.cxy = 90;
        for (int column = 0; column < 3; ++column)
        {
            header->InsertItem(column, &item);
        }
        header->SetWindowText(contents.text.c_str());
        return header;
    }

    template <DWORD Style = 0> static Made MakeReport(CWnd& parent, const Contents& contents)
    {
        auto list = std::make_unique<As<CCustomListCtrl>>();
        if (!list->Create(Child | LVS_REPORT | LVS_SHOWSELALWAYS | Style, contents.place, &parent,
                          ControlId))
        {
            return nullptr;
        }
        for (int column = 0; column < 4; ++column)
        {
            list->InsertColumn(column, contents.text.c_str(), LVCFMT_LEFT, 90);
        }
        if ((Style & LVS_OWNERDATA) != 0)
        {
            list->SetItemCount(contents.rows);
            return list;
        }
        for (int row = 0; row < contents.rows; ++row)
        {
            list->InsertItem(row, Numbered(contents, row).c_str());
            list->SetItemText(row, 1, contents.text.c_str());
        }
        return list;
    }

    static constexpr DWORD TreeLook = TVS_HASBUTTONS | TVS_LINESATROOT | TVS_HASLINES;

    static void Fill(CWnd& tree, const Contents& contents)
    {
        std::string text = contents.text;
        TVINSERTSTRUCT insert = {};
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT;
        insert.item.pszText = text.data();
        for (int branch = 0; branch < std::min(contents.rows, Branches); ++branch)
        {
            insert.hParent = TVI_ROOT;
            insert.hParent = HTREEITEM(tree.SendMessage(TVM_INSERTITEM, 0, LPARAM(&insert)));
            for (int leaf = 0; leaf < 5; ++leaf)
            {
                tree.SendMessage(TVM_INSERTITEM, 0, LPARAM(&insert));
            }
        }
    }

    static Made MakeTree(CWnd& parent, const Contents& contents)
    {
        auto tree = std::make_unique<As<MultiTree>>();
        if (!tree->Create(Child | TreeLook, contents.place, &parent, ControlId))
        {
            return nullptr;
        }
        tree->SetMultiSelect(true);
        Fill(*tree, contents);
        return tree;
    }

    static Made MakeTreeView(CWnd& parent, const Contents& contents)
    {
        struct View : MultiTreeView
        {
            void PostNcDestroy() override {} // whoever made it owns it
        };
        auto tree = std::make_unique<As<View>>();
        if (!tree->Create(nullptr, nullptr, Child | TreeLook, contents.place, &parent, ControlId))
        {
            return nullptr;
        }
        Fill(*tree, contents);
        return tree;
    }

    template <class Bar> static Made MakeStatusBar(CWnd& parent, const Contents& contents)
    {
        auto bar = std::make_unique<As<Bar>>();
        if (!bar->Create(Shown, contents.place, &parent, ControlId))
        {
            return nullptr;
        }
        bar->SetText(contents.text.c_str(), 0, 0);
        return bar;
    }

    static Made MakeToolBar(CWnd& parent, const Contents& contents)
    {
        auto bar = std::make_unique<As<CustomToolbar>>();
        if (!bar->CreateEx(&parent, TBSTYLE_FLAT | TBSTYLE_LIST, Child, CRect(0, 0, 0, 0),
                           ControlId))
        {
            return nullptr;
        }
        const std::string texts = contents.text + '\0'; // the last of a list ends with two
        TBBUTTON button = {};
        button.iBitmap = I_IMAGENONE;
        button.fsState = TBSTATE_ENABLED;
        button.iString = bar->SendMessage(TB_ADDSTRING, 0, LPARAM(texts.c_str()));
        for (button.idCommand = 1; button.idCommand <= 5; ++button.idCommand)
        {
            bar->SendMessage(TB_ADDBUTTONS, 1, LPARAM(&button));
        }
        bar->SetWindowText(contents.text.c_str());
        bar->MoveWindow(contents.place);
        return bar;
    }

    static void SetTexts(CWnd& form, const std::string& text)
    {
        for (const int id : {IDC_CATALOG_LABEL, IDC_CATALOG_EDIT, IDC_CATALOG_CHECK})
        {
            form.SetDlgItemText(id, text.c_str());
        }
    }

    static Made MakeFormView(CWnd& parent, const Contents& contents)
    {
        struct View : CCustomFormView
        {
            View()
                : CCustomFormView(UINT(IDD_CATALOG_FORM))
            {}
            void PostNcDestroy() override {} // whoever made it owns it
        };
        auto view = std::make_unique<As<View>>();
        if (!view->Create(nullptr, contents.text.c_str(), Shown, contents.place, &parent, ControlId,
                          nullptr))
        {
            return nullptr;
        }
        view->OnInitialUpdate();
        SetTexts(*view, contents.text);
        return view;
    }

    // Two pages, of which the first may be the caller's.
    struct Sheet : CCustomPropSheet
    {
        explicit Sheet(CWnd& owner, const Contents& contents, CPropertyPage* own = nullptr)
            : CCustomPropSheet(contents.text.c_str(), nullptr, &owner)
            , title(contents.text)
        {
            CPropertyPage* const pages[] = {own != nullptr ? own : &first, &second};
            for (CPropertyPage* const page : pages)
            {
                page->m_psp.pszTitle = title.c_str();
                page->m_psp.dwFlags |= PSP_USETITLE;
                AddPage(page);
            }
        }
        ~Sheet() override { DestroyWindow(); }

        // Whether its window could be made; it stays open.
        bool Open(CWnd& owner, const Contents& contents)
        {
            if (!Create(&owner, WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE))
            {
                return false;
            }
            // Tabs as wide for every text. The sheet may end when it is asked for them.
            CTabCtrl* const tabs = GetTabControl();
            if (tabs != nullptr)
            {
                tabs->SendMessage(TCM_SETMINTABWIDTH, 0, contents.place.Width() / 2);
            }
            CPropertyPage* const page = tabs != nullptr ? GetActivePage() : nullptr;
            if (page != nullptr)
            {
                SetTexts(*page, contents.text);
            }
            return page != nullptr;
        }
        BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
        {
            return LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL ||
                   CCustomPropSheet::OnCommand(wParam, lParam);
        }

        std::string title;
        As<CCustomPropPage> first{UINT(IDD_CATALOG_FORM)};
        As<CCustomPropPage> second{UINT(IDD_CATALOG_FORM)};
    };

    static Made MakeSheet(CWnd& parent, const Contents& contents)
    {
        auto sheet = std::make_unique<As<Sheet>>(parent, contents);
        return sheet->Open(parent, contents) ? std::move(sheet) : nullptr;
    }

    // The first one of a sheet that lasts as long as it.
    static Made MakePage(CWnd& parent, const Contents& contents)
    {
        struct Page : CCustomPropPage
        {
            Page()
                : CCustomPropPage(UINT(IDD_CATALOG_FORM))
            {}
            ~Page() override { sheet.reset(); }
            std::unique_ptr<Sheet> sheet;
        };
        auto page = std::make_unique<As<Page>>();
        page->sheet = std::make_unique<Sheet>(parent, contents, page.get());
        return page->sheet->Open(parent, contents) ? std::move(page) : nullptr;
    }

    static Made MakeMessageBox(CWnd& parent, const Contents& contents)
    {
        struct Stays : CZepMsgBoxDlg
        {
            explicit Stays(const Contents& contents)
                : CZepMsgBoxDlg(contents.text.c_str(), MB_YESNOCANCEL, CSize(800, 600), nullptr)
            {}
            void OnOK() override {}
            void OnCancel() override {}
        };
        auto box = std::make_unique<As<Stays>>(contents);
        if (!box->Create(CZepMsgBoxDlg::IDD, &parent))
        {
            return nullptr;
        }
        box->ShowWindow(SW_SHOW); // which else its modal loop does
        return box;
    }

    static Made MakeDialog(CWnd& parent, const Contents& contents)
    {
        const char* const text = contents.text.c_str();
        DialogTemplate form(CRect(10, 10, 160, 110),
                            WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE | DS_MODALFRAME, text);
        // High enough for a finger in the on-board modes, and for a line at any resolution.
        form.Add("Static", text, 0, CRect(5, 5, 60, 19), 101)
            .Add("Edit", text, WS_TABSTOP, CRect(5, 22, 60, 41), 102)
            .Add("ListBox", "", LBS_NOINTEGRALHEIGHT, CRect(80, 5, 140, 60), 103)
            .Add("Button", text, WS_TABSTOP, CRect(5, 70, 60, 89), 104);
        struct Stays : CCustomDialog
        {
            explicit Stays(CWnd* owner)
                : CCustomDialog(0U, owner)
            {}
            void OnOK() override {}
            void OnCancel() override {}
        };
        auto dialog = std::make_unique<As<Stays>>(&parent);
        return dialog->CreateIndirect(form, &parent) ? std::move(dialog) : nullptr;
    }

    static std::vector<Control> All()
    {
        constexpr DWORD manyLines = ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL;
        return {
            {"push button", Titled<CCustomPushbutton>(BS_PUSHBUTTON | WS_TABSTOP)},
            {"check box", Titled<CCustomCheckBox>(BS_AUTOCHECKBOX | BS_MULTILINE | WS_TABSTOP)},
            {"radio button",
             Titled<CCustomRadiobutton>(BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP)},
            {"label", Titled<CCustomStatic>(0)},
            {"group box", Titled<CCustomStatic>(BS_GROUPBOX)},
            {"bold label", Titled<CBoldStatic>(0)},
            {"swatch", Titled<CColorStatic>(0)},
            {"outline", Titled<CColoredGroupBox>(0)},
            {"edit of many lines", MadeEdit<CCustomEdit>(manyLines)},
            {"edit of one line", MadeEdit<CCustomEdit>(ES_AUTOHSCROLL)},
            {"coloured edit", MadeEdit<ColorEdit>(ES_AUTOHSCROLL)},
            {"edit with prompt", MadeEdit<EditWithPrompt>(ES_AUTOHSCROLL)},
            {"fixed edit", MadeEdit<QuixEdit>(ES_AUTOHSCROLL)},
            {"list box", MadeList<CCustomListBox>(WS_HSCROLL)},
            {"drawn list box", MadeList<CCustomListBox>(LBS_OWNERDRAWFIXED | LBS_HASSTRINGS)},
            {"list box of many selections", MadeList<CCustomListBox>(LBS_EXTENDEDSEL | LBS_SORT)},
            {"list box of columns", MadeList<CCustomListBox>(LBS_MULTICOLUMN | WS_HSCROLL)},
            {"check list", &MakeCheckList},
            {"combo", &MakeCombo},
            {"list of a combo", &MakeComboList},
            {"report list", &MakeReport<>},
            {"header", &MakeHeader},
            {"tree", &MakeTree},
            {"tree view", &MakeTreeView},
            {"status bar", &MakeStatusBar<CCustomStatusBar>},
            {"search bar", &MakeStatusBar<CSearchStatusBar>},
            {"tool bar", &MakeToolBar},
            {"form view", &MakeFormView},
            {"property sheet", &MakeSheet},
            {"property page", &MakePage},
            {"dialog", &MakeDialog},
            {"message box", &MakeMessageBox},
        };
    }
};
