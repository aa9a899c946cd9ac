// Objects that end inside the very call that asks them, and routes that lead past them.

#include "catalog/DialogTemplate.h"
#include "support/WindowTest.h"

#include <utility>

namespace {

constexpr UINT CommandId = 4711;

// Deletes itself on a command and says that it did not handle it.
class DeletesItself : public CWnd
{
protected:
    BOOL OnGo(UINT)
    {
        delete this;
        return FALSE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DeletesItself, CWnd)
    ON_COMMAND_EX(CommandId, &DeletesItself::OnGo)
END_MESSAGE_MAP()

// Deletes its parent when it is clicked, and leaves the click to it.
class DeletesParent : public CButton
{
public:
    CWnd* parent = nullptr;

protected:
    BOOL OnClicked()
    {
        delete parent;
        return FALSE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DeletesParent, CButton)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &DeletesParent::OnClicked)
END_MESSAGE_MAP()

class CountingHost : public HostWindow
{
public:
    int commands = 0;

protected:
    void OnGo() { ++commands; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CountingHost, HostWindow)
    ON_COMMAND(CommandId, &CountingHost::OnGo)
END_MESSAGE_MAP()

class DrawnView : public CView
{
public:
    CWnd* ends = nullptr; // destroyed when this view is left

protected:
    void OnDraw(CDC*) override {}
    void OnActivateView(BOOL activate, CView* to, CView* from) override
    {
        if (!activate && ends != nullptr)
        {
            std::exchange(ends, nullptr)->DestroyWindow();
        }
        CView::OnActivateView(activate, to, from);
    }
};

} // namespace

using EndedObjectsTest = WindowTest;

TEST_F(EndedObjectsTest, AHandlerThatDeclinesMayHaveEndedItsWindow)
{
    auto* window = new DeletesItself;
    window->CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0);
    const HWND handle = *window;
    ::SendMessage(handle, WM_COMMAND, CommandId, 0);
    EXPECT_FALSE(::IsWindow(handle));

    auto* parent = new CWnd;
    parent->CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0);
    const HWND parentHandle = *parent;
    DeletesParent child;
    child.parent = parent;
    child.Create("", WS_CHILD, CRect(0, 0, 20, 20), parent, 7);
    ::SendMessage(parentHandle, WM_COMMAND, MAKEWPARAM(7, BN_CLICKED),
                  reinterpret_cast<LPARAM>(child.GetSafeHwnd()));
    EXPECT_FALSE(::IsWindow(parentHandle));
    EXPECT_EQ(child.GetSafeHwnd(), nullptr);
}

TEST_F(EndedObjectsTest, ADialogsCommandsGoOnToItsOwner)
{
    CountingHost owner;
    CDialog dialog;
    const DialogTemplate form(CRect(0, 0, 80, 40));
    ASSERT_TRUE(dialog.CreateIndirect(form, &owner));
    dialog.SendMessage(WM_COMMAND, CommandId);
    EXPECT_EQ(owner.commands, 1);
    EXPECT_EQ(dialog.GetOwner(), &owner);
    dialog.DestroyWindow();
    owner.DestroyWindow();
}

TEST_F(EndedObjectsTest, AFrameForgetsAViewThatIsGone)
{
    auto* frame = new CFrameWnd; // deletes itself
    ASSERT_TRUE(frame->Create(nullptr, "Frame"));
    auto* first = new DrawnView;
    auto* second = new DrawnView;
    first->Create(nullptr, "", WS_CHILD, CRect(0, 0, 9, 9), frame, AFX_IDW_PANE_FIRST);
    second->Create(nullptr, "", WS_CHILD, CRect(0, 0, 9, 9), frame, AFX_IDW_PANE_FIRST + 1);
    frame->SetActiveView(first);
    first->ends = second;
    frame->SetActiveView(second); // gone by the time it would be active
    EXPECT_EQ(frame->GetActiveView(), nullptr);
    frame->SetActiveView(first);
    delete first;
    EXPECT_EQ(frame->GetActiveView(), nullptr);
    frame->DestroyWindow();
    PumpAll();
}
