#include "MultiTreeView.h"

#include "trees/tree_for_tests.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// A view that writes down what it is told and takes what it is given if it is to.
class ViewForTests : public MultiTreeView
{
    DECLARE_DYNCREATE(ViewForTests)

public:
    using MultiTreeView::m_dragging;
    using MultiTreeView::m_dragImage;

    void GetSelectedItems(HTREEITEM item, KArray& payload) override { payload.Add(item); }
    void DragEnded(HWND accepted) override { ended.push_back(accepted); }
    CImageList* CreateDragImage() override
    {
        CImageList* const image = MultiTreeView::CreateDragImage();
        if (onImage)
        {
            onImage();
        }
        return image;
    }

    bool accepts = false;
    std::function<void()> onDrop;
    std::function<void()> onImage;
    std::vector<HWND> ended;
    std::vector<std::string> received; // names of the messages
    std::vector<void*> dropped;
    CPoint dropPoint;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == mnDragLeaveMsg)
        {
            received.push_back("leave");
        }
        if (message == mnDragDropMsg || message == mnDragCopyMsg)
        {
            received.push_back(message == mnDragDropMsg ? "drop" : "copy");
            dropPoint = *reinterpret_cast<const POINT*>(wParam);
            const auto& payload = *reinterpret_cast<const KArray*>(lParam);
            for (int index = 0; index < payload.GetCount(); ++index)
            {
                dropped.push_back(payload.GetAt(index));
            }
            if (onDrop)
            {
                onDrop();
                return accepts;
            }
            MultiTreeView::WindowProc(message, wParam, lParam);
            return accepts;
        }
        return MultiTreeView::WindowProc(message, wParam, lParam);
    }
};

IMPLEMENT_DYNCREATE(ViewForTests, MultiTreeView)

class MultiTreeViewTest : public TreeTest
{
protected:
    ViewForTests& AddView(const CRect& place, UINT id)
    {
        auto* view = new ViewForTests; // ends with the host's window
        EXPECT_TRUE(
            view->Create(nullptr, "A view", WS_CHILD | WS_VISIBLE | TreeStyle, place, &Host(), id));
        PumpAll();
        return *view;
    }
    void SetUp() override
    {
        TreeTest::SetUp();
        m_source = &AddView(CRect(20, 20, 220, 320), 71);
        m_target = &AddView(CRect(240, 20, 440, 320), 72);
        m_items = AddItems(*m_source, "abcd");
        AddItems(*m_target, "xyz");
        m_source->SetFocus();
        m_source->SelectItem(m_items[0]);
        m_source->SetItemState(m_items[2], TVIS_SELECTED, TVIS_SELECTED);
        PumpAll();
        Host().Forget();
    }

    // Presses on the selected item a and moves far enough.
    PressScript Begun(std::vector<UINT> held = {})
    {
        const CPoint start = PointOf(*m_source, m_items[0]);
        PressScript script(start, std::move(held));
        script.Move(start + CPoint(1, 0)).Move(start + CPoint(20, 2));
        return script;
    }
    CPoint OverTarget() const { return ClientPoint(*m_target, CPoint(60, 150)); }
    CPoint OverNothing() const { return ClientPoint(*m_target, CPoint(300, 150)); }

    ViewForTests* m_source = nullptr;
    ViewForTests* m_target = nullptr;
    std::vector<HTREEITEM> m_items;
};

TEST_F(MultiTreeViewTest, IsMadeByNameAndKeepsTheSelectionsRules)
{
    CObject* const made = CRuntimeClass::CreateObject("MultiTreeView");
    EXPECT_NE(DYNAMIC_DOWNCAST(MultiTreeView, made), nullptr);
    delete made;
    char name[32] = "";
    ::GetClassName(*m_source, name, sizeof(name));
    EXPECT_STREQ(name, "SysTreeView32");
    EXPECT_EQ(m_source->GetTreeCtrl().GetCount(), 4U);
    EXPECT_EQ(SelectedTexts(*m_source), "ac");
    ClickItem(*m_source, m_items[1]);
    ClickItem(*m_source, m_items[3], {VK_SHIFT});
    EXPECT_EQ(SelectedTexts(*m_source), "bcd");
    m_source->SelectAllIgnore(m_items[2], false, nullptr);
    EXPECT_EQ(SelectedTexts(*m_source), "bd") << "the branch c alone";
    EXPECT_EQ(MultiTreeView::mnDragDropMsg, ::RegisterWindowMessage("Kest Drag Drop"));
    EXPECT_NE(MultiTreeView::mnDragTrackMsg, MultiTreeView::mnDragLeaveMsg);
}

TEST_F(MultiTreeViewTest, DropsTheSelectionOnAnotherView)
{
    m_target->accepts = true;
    bool imageShown = false;
    Begun()
        .Move(OverTarget())
        .Do([&] {
            imageShown = m_source->m_dragImage != nullptr;
            EXPECT_EQ(::GetCapture(), m_source->GetSafeHwnd());
        })
        .Release();
    EXPECT_TRUE(imageShown);
    EXPECT_THAT(m_target->received, ElementsAre("drop"));
    EXPECT_THAT(m_target->dropped, ElementsAre(m_items[0], m_items[2]));
    EXPECT_EQ(m_target->dropPoint, OverTarget());
    EXPECT_THAT(m_source->ended, ElementsAre(m_target->GetSafeHwnd()));
    EXPECT_FALSE(m_source->m_dragging);
    EXPECT_EQ(m_source->m_dragImage, nullptr);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(MultiTreeViewTest, CtrlMakesItACopyAndARefusalEndsItWithNobody)
{
    Begun()
        .Move(OverTarget())
        .Do([] { PumpFor(30); })
        .Do([] { QueueKey(VK_CONTROL, true); })
        .Release();
    QueueKey(VK_CONTROL, false);
    PumpAll();
    EXPECT_THAT(m_target->received, ElementsAre("copy"));
    EXPECT_THAT(m_source->ended, ElementsAre(nullptr)) << "it answered 0";
    Begun().Move(OverNothing()).Release();
    EXPECT_THAT(m_source->ended, ElementsAre(nullptr, nullptr));
    // The desktop: a window of another process.
    Begun().Move(CPoint(5, 5)).Release();
    EXPECT_THAT(m_source->ended, ElementsAre(nullptr, nullptr, nullptr));
    EXPECT_THAT(m_target->received, ElementsAre("copy"));
    EXPECT_FALSE(m_source->m_dragging);
}

TEST_F(MultiTreeViewTest, AWindowIsLeftOnce)
{
    Begun()
        .Move(OverTarget())
        .Move(OverTarget() + CPoint(0, 20))
        .Move(PointOf(*m_source, m_items[3]))
        .Move(PointOf(*m_source, m_items[2]))
        .Release();
    EXPECT_THAT(m_target->received, ElementsAre("leave"));
    EXPECT_THAT(m_source->received, ElementsAre("leave", "drop")) << "a view may be its own target";
}

TEST_F(MultiTreeViewTest, TheDragImageLeavesNoTrace)
{
    const CRect around = WindowRectOf(Host());
    const auto settled = [&] {
        PumpAll();
        return ScreenPixels(around);
    };
    const Pixels before = settled();
    Pixels during;
    Begun()
        .Move(OverTarget())
        .Do([&] {
            // What lies under the image changes and is painted meanwhile.
            m_target->SelectAll(true, false);
            m_target->UpdateWindow();
        })
        .Move(OverTarget() - CPoint(0, 130))
        .Do([&] { during = ScreenPixels(around); })
        .Move(OverNothing())
        .Do([] { TypeKey(VK_ESCAPE); })
        .Release();
    EXPECT_NE(during, before);
    const Pixels after = settled();
    EXPECT_NE(after, during);
    Host().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    EXPECT_EQ(settled(), after) << "nothing was left of the image";
}

TEST_F(MultiTreeViewTest, IsCancelledByWhateverInterruptsIt)
{
    const std::function<void()> interruptions[] = {
        [] { TypeKey(VK_ESCAPE); },
        [&] {
            Host().SetCapture();
            ::ReleaseCapture();
        },
        [] { ::ReleaseCapture(); },
    };
    for (const auto& interrupt : interruptions)
    {
        m_source->ended.clear();
        Begun()
            .Move(OverTarget())
            .Do(interrupt)
            .Do([&] { EXPECT_FALSE(m_source->m_dragging); })
            .Release();
        EXPECT_THAT(m_source->ended, ElementsAre(nullptr));
        EXPECT_THAT(m_target->received, IsEmpty());
        EXPECT_EQ(::GetCapture(), nullptr);
    }
    // A release that never comes to the view: the timer finds the button up.
    m_source->ended.clear();
    Begun()
        .Move(OverTarget())
        .Do([&] {
            MSG taken;
            QueueButton(false);
            const DWORD until = ::GetTickCount() + 1000;
            while (!::PeekMessage(&taken, nullptr, WM_LBUTTONUP, WM_LBUTTONUP, PM_REMOVE) &&
                   ::GetTickCount() < until)
            {}
        })
        .Do([&] { EXPECT_TRUE(PumpUntil([&] { return !m_source->m_dragging; })); })
        .Release();
    EXPECT_THAT(m_source->ended, ElementsAre(nullptr));
}

TEST_F(MultiTreeViewTest, ADragOverBeforeItIsShownIsNotShown)
{
    m_source->onImage = [&] { m_source->SendMessage(WM_LBUTTONUP); };
    Begun()
        .Do([&] {
            EXPECT_FALSE(m_source->m_dragging);
            EXPECT_EQ(m_source->m_dragImage, nullptr);
            EXPECT_EQ(::GetCapture(), nullptr);
        })
        .Release();
    EXPECT_THAT(m_source->ended, IsEmpty()) << "nobody has seen a drag";

    // And the next one goes its way, whatever the other button does.
    m_source->onImage = nullptr;
    m_target->accepts = true;
    Begun()
        .Do([] { QueueButton(true, true); })
        .Do([] { QueueButton(false, true); })
        .Move(OverTarget())
        .Release();
    EXPECT_THAT(m_target->received, ElementsAre("drop"));
    EXPECT_EQ(m_target->dropped.size(), 2U);
}

TEST_F(MultiTreeViewTest, SurvivesWhatEndsDuringADrag)
{
    // The item that the drag began with.
    Begun()
        .Do([&] { m_source->GetTreeCtrl().DeleteItem(m_items[0]); })
        .Move(OverTarget())
        .Release();
    EXPECT_THAT(m_source->ended, ElementsAre(nullptr));
    EXPECT_THAT(m_target->received, IsEmpty());
    EXPECT_EQ(::GetCapture(), nullptr);
    m_items.erase(m_items.begin());
    m_source->SelectItem(m_items[0]);

    // The target, under the pointer.
    Begun()
        .Move(OverTarget())
        .Do([&] { m_target->DestroyWindow(); })
        .Move(OverTarget() + CPoint(0, 5))
        .Release();
    EXPECT_EQ(m_source->ended.back(), nullptr);

    // The source, while the target has the payload.
    m_target = &AddView(CRect(240, 20, 440, 320), 73);
    m_target->accepts = true;
    m_target->onDrop = [&] { m_source->DestroyWindow(); };
    Begun().Move(OverTarget()).Release();
    EXPECT_THAT(m_target->received, ElementsAre("drop"));
    EXPECT_EQ(m_target->dropped.size(), 1U);

    // The source, while it waits for the first move.
    m_source = &AddView(CRect(20, 20, 220, 320), 74);
    m_items = AddItems(*m_source, "ab");
    PumpAll();
    PressScript(PointOf(*m_source, m_items[0])).Do([&] { m_source->DestroyWindow(); }).Release();
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(MultiTreeViewTest, ScrollsAsATarget)
{
    AddItems(*m_target, "abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyz");
    PumpAll();
    const CRect client = ClientRectOf(*m_target);
    const auto track = [&](CPoint at) {
        POINT point = ClientPoint(*m_target, at);
        m_target->SendMessage(MultiTreeView::mnDragTrackMsg, reinterpret_cast<WPARAM>(&point));
    };
    const auto top = [&] { return m_target->GetTreeCtrl().GetFirstVisibleItem(); };
    const HTREEITEM first = top();
    track(CPoint(20, client.bottom - 3));
    EXPECT_TRUE(PumpUntil([&] { return top() != first; })) << "the timer scrolls";
    m_target->SendMessage(MultiTreeView::mnDragLeaveMsg);
    const HTREEITEM stopped = top();
    PumpFor(400);
    EXPECT_EQ(top(), stopped);
    track(CPoint(20, 3));
    EXPECT_TRUE(PumpUntil([&] { return top() == first; }));
    track(client.CenterPoint());
    m_target->SendMessage(MultiTreeView::mnDragTrackMsg); // no position
}

TEST_F(MultiTreeViewTest, TornOffItActivatesNoFrameAndTellsItsCaption)
{
    auto* frame = new CFrameWnd; // deletes itself
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(ViewForTests);
    ASSERT_TRUE(frame->Create(nullptr, "Frame", WS_POPUP | WS_VISIBLE, CRect(100, 80, 400, 380),
                              nullptr, nullptr, 0, &context));
    auto* view = STATIC_DOWNCAST(ViewForTests, frame->GetActiveView());
    ASSERT_NE(view, nullptr);
    const auto activates = [&] {
        frame->SetActiveView(nullptr);
        view->SendMessage(WM_MOUSEACTIVATE, WPARAM(frame->GetSafeHwnd()),
                          MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
        return frame->GetActiveView() == view;
    };
    EXPECT_TRUE(activates());
    EXPECT_EQ(view->SendMessage(MultiTreeView::TogglePeeledMessage, 0, TRUE), 0);
    EXPECT_FALSE(activates());
    view->SendMessage(MultiTreeView::TogglePeeledMessage, 0, FALSE);
    EXPECT_TRUE(activates());

    view->SetWindowText("Routes");
    char text[8] = "unset";
    const auto caption = [&](size_t size) {
        return view->SendMessage(MultiTreeView::GetCaptionTextMessage, size,
                                 reinterpret_cast<LPARAM>(text));
    };
    EXPECT_FALSE(caption(6));
    EXPECT_STREQ(text, "unset");
    EXPECT_TRUE(caption(7));
    EXPECT_STREQ(text, "Routes");
    EXPECT_FALSE(view->SendMessage(MultiTreeView::GetCaptionTextMessage, 100, 0));
    frame->DestroyWindow();
}

} // namespace
