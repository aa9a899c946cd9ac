#include "robust/Play.h"

#include "CustomDialog.h"
#include "CustomPropPage.h"
#include "CustomPropSheet.h"
#include "ZepMsgBoxDlg.h"
#include "catalog/DialogTemplate.h"
#include "support/Scripted.h"
#include "support/WindowTest.h"
#include "support/forms.h"

namespace {

// Windows in loops of their own: what they are told, by their controls and by the platform, ends
// them, their first control or their owner.
template <class Window> using Looping = Hearing<Scripted<Window>>;

struct Form : Looping<CCustomDialog>
{
    explicit Form(CWnd* owner)
        : Looping<CCustomDialog>(0U, owner)
    {
        form.Add("Edit", "text", WS_TABSTOP, CRect(5, 150, 60, 165), 101)
            .Add("Button", "OK", WS_TABSTOP, CRect(80, 150, 120, 165), IDOK);
        InitModalIndirect(form, owner);
    }
    DialogTemplate form{CRect(10, 10, 330, 180), WS_POPUP | WS_CAPTION | WS_SYSMENU};
};

struct Box : Looping<CZepMsgBoxDlg>
{
    explicit Box(CWnd*)
        : Looping<CZepMsgBoxDlg>("A message", MB_YESNOCANCEL, CSize(800, 600), nullptr)
    {}
};

struct Sheet : Looping<CCustomPropSheet>
{
    explicit Sheet(CWnd* owner)
        : Looping<CCustomPropSheet>("Sheet", nullptr, owner)
    {
        AddPage(&page);
    }
    CCustomPropPage page{UINT(IDD_TEST_PAGE_1)};
};

template <class Window> class DeathInALoop : public WindowTest
{
protected:
    std::vector<Told> Give(std::optional<Told> awaited, Death death)
    {
        Play play("a loop", awaited, death);
        play.modal = true;
        auto owner = std::make_unique<CWnd>();
        owner->CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP | WS_VISIBLE, Stage, &Host(), 0);
        auto window = std::make_unique<Window>(owner.get());
        Window& shown = *window;
        play.parent = std::move(owner);
        play.control = std::move(window);
        // The platform's sheet does not survive its end while it is being made.
        constexpr bool sheet = std::is_base_of_v<CPropertySheet, Window>;
        play.over = sheet;
        shown.inLoop = [&] {
            play.over = sheet ? false : play.over;
            const HWND handle = shown.GetSafeHwnd();
            play.ChangeModes(handle);
            for (const UINT key : {VK_TAB, VK_DOWN, VK_TAB, VK_RETURN})
            {
                play.Do(handle, [=] { TypeKey(key); });
            }
            play.over = true;
            if (::IsWindow(handle))
            {
                shown.EndDialog(IDCANCEL);
            }
        };
        shown.DoModal();
        EXPECT_TRUE(Host().IsWindowEnabled()) << play.Title();
        return play.Finish();
    }
};

using Windows = testing::Types<Form, Box, Sheet>;
TYPED_TEST_SUITE(DeathInALoop, Windows);

TYPED_TEST(DeathInALoop, LeavesTheRestSound)
{
    for (const APPMODE mode : {STD, EFB})
    {
        const ModeScope scope(mode);
        const std::vector<Told> told = this->Give({}, Death::Window);
        EXPECT_GT(told.size(), 3U);
        for (const Told& awaited : told)
        {
            this->Give(awaited, Death::Window);
            if (IsFirstOfItsKind(awaited, told))
            {
                this->Give(awaited, Death::Sibling);
                this->Give(awaited, Death::Parent);
            }
        }
    }
}

} // namespace
