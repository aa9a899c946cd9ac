// Typing into the edit with its own bar against the platform's edit with the platform's.

#include "CustomEdit.h"
#include "Row.h"
#include "Stage.h"

#include <string>

namespace {

constexpr int TextLines = 500;
constexpr int Characters = 2'000;
constexpr int LineLength = 50; // of what is typed
constexpr DWORD Style =
    WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN;

template <class Edit, APPMODE mode> Side Type()
{
    auto edit = std::make_shared<std::shared_ptr<Edit>>();
    return {[edit] {
                EnterMode(mode);
                *edit = std::make_shared<Edit>();
                (*edit)->CreateEx(WS_EX_CLIENTEDGE, "EDIT", "", Style, CRect(20, 20, 420, 520),
                                  &Stage(), 1);
                (*edit)->SetFont(&CCustomEdit::GetOnBoardFont());
                std::string text;
                for (int line = 0; line < TextLines; ++line)
                {
                    text += "Waypoint " + std::to_string(line) + "\r\n";
                }
                (*edit)->SetWindowText(text.c_str());
                (*edit)->SetSel(0, 0);
                (*edit)->SetFocus();
                PaintNow(**edit);
                Settle();
            },
            [edit] {
                for (int typed = 0; typed < Characters; ++typed)
                {
                    const char key = typed % LineLength == LineLength - 1
                                         ? '\r'
                                         : char('a' + typed % LineLength % 26);
                    (*edit)->SendMessage(WM_CHAR, WPARAM(key), 1);
                    (*edit)->UpdateWindow();
                }
            },
            [edit] { edit->reset(); }};
}

} // namespace

std::vector<Row> EditRows()
{
    return {{"edit.type", 1.5, 5, &Type<CCustomEdit, ONBOARD>, &Type<CEdit, STD>}};
}
