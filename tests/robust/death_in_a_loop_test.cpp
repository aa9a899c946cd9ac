#include "robust/Play.h"

#include "CustomDialog.h"
#include "CustomPropPage.h"
#include "CustomPropSheet.h"
#include "ZepMsgBoxDlg.h"
#include "support/Scripted.h"
#include "support/WindowTest.h"
#include "support/forms.h"

namespace {

// Windows in loops of their own: what they are told, by their controls and by the platform, ends
// them, their first control or their owner.
template <class Window> class Looping : public Hearing<Scripted<Window>>
{
public:
    using Hearing<Scripted<Window>>::Hearing;

protected:
    // Past Hearing's, which does nothing: the loop has to end.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    void PostNcDestroy() override { Scripted<Window>::PostNcDestroy(); }
};

struct LoopingPage : Looping<CCustomPropSheet>
{
    explicit LoopingPage(CWnd* owner)
        : Looping<CCustomPropSheet>("Sheet", nullptr, owner)
    {
        AddPage(&page);
    }
    CCustomPropPage page{UINT(IDD_TEST_PAGE_1)};
};

class DeathInALoop : public WindowTest
{
protected:
    template <class Window, class Make>
    std::vector<Told> Give(std::optional<Told> awaited, Death death, Make make)
    {
        Play play("a loop", awaited, death);
        play.modal = true;
        auto owner = std::make_unique<CWnd>();
        owner->CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP | WS_VISIBLE, Stage, &Host(), 0);
        std::unique_ptr<Window> window = make(owner.get());
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

    template <class Window, class Make> void All(Make make)
    {
        for (const APPMODE mode : {STD, EFB})
        {
            const ModeScope scope(mode);
            const std::vector<Told> told = Give<Window>({}, Death::Window, make);
            EXPECT_GT(told.size(), 3U);
            for (const Told& awaited : told)
            {
                Give<Window>(awaited, Death::Window, make);
                if (IsFirstOfItsKind(awaited, told))
                {
                    Give<Window>(awaited, Death::Sibling, make);
                    Give<Window>(awaited, Death::Parent, make);
                }
            }
        }
    }
};

TEST_F(DeathInALoop, OfADialog)
{
    const DialogTemplate form = Form();
    All<Looping<CCustomDialog>>([&](CWnd* owner) {
        auto dialog = std::make_unique<Looping<CCustomDialog>>(0U, owner);
        dialog->InitModalIndirect(form, owner);
        return dialog;
    });
}

TEST_F(DeathInALoop, OfAMessageBox)
{
    All<Looping<CZepMsgBoxDlg>>([](CWnd*) {
        return std::make_unique<Looping<CZepMsgBoxDlg>>("A message", MB_YESNOCANCEL,
                                                        CSize(800, 600), nullptr);
    });
}

TEST_F(DeathInALoop, OfASheet)
{
    All<LoopingPage>([](CWnd* owner) { return std::make_unique<LoopingPage>(owner); });
}

} // namespace
