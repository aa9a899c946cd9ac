#include "MultiTreeView.h"

#include "trees/tree_for_tests.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// A view that writes down what it is told and takes what it is given if it is to.
class ViewForTests : public MultiTreeView
{
public:
    using MultiTreeView::m_dragging;
    using MultiTreeView::m_dragImage;
    using MultiTreeView::m_payload;

    void GetSelectedItems(HTREEITEM item, KArray& payload) override { payload.Add(item); }
    CImageList* CreateDragImage() override
    {
        return pictured ? MultiTreeView::CreateDragImage() : nullptr;
    }
    void DragEnded(HWND accepted) override
    {
        ended.push_back(accepted);
        left = m_payload.GetCount();
    }

    bool accepts = false;
    bool pictured = true;
    std::function<void()> onDrop = [] {};
    std::vector<HWND> ended;
    int left = 0;                      // in the payload when the drag had ended
    std::vector<std::string> received; // names of the messages
    std::vector<void*> dropped;
    CPoint dropPoint;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT answer = MultiTreeView::WindowProc(message, wParam, lParam);
        if (message == mnDragDropMsg || message == mnDragCopyMsg)
        {
            received.push_back(message == mnDragDropMsg ? "drop" : "copy");
            dropPoint = *reinterpret_cast<const POINT*>(wParam);
            auto& payload = *reinterpret_cast<KArray*>(lParam);
            for (int index = 0; index < payload.GetCount(); ++index)
            {
                dropped.push_back(payload.GetAt(index));
            }
            payload.RemoveAt(0); // taken: the source hears of it
            onDrop();
            return accepts;
        }
        if (message == mnDragLeaveMsg)
        {
            received.push_back("leave");
        }
        return answer;
    }
};

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
        m_target = &AddView(TargetPlace, 72);
        m_items = AddItems(Items(), "abcd");
        AddItems(m_target->GetTreeCtrl(), "xyz");
        m_source->SetFocus();
        m_source->SelectItem(m_items[0]);
        m_source->SetItemState(m_items[2], TVIS_SELECTED, TVIS_SELECTED);
        PumpAll();
        Host().Forget();
    }

    // Presses on the first item and moves far enough.
    PressScript Begun()
    {
        PressScript script(PointOf(Items(), m_items[0]));
        script.Pull(CPoint(20, 2));
        return script;
    }
    CTreeCtrl& Items() const { return m_source->GetTreeCtrl(); }
    CPoint OverTarget() const { return ClientPoint(*m_target, CPoint(60, 150)); }
    CPoint OverNothing() const { return ClientPoint(*m_target, CPoint(300, 150)); }

    // Nothing of a drag is left; and who was said to have taken it.
    std::vector<HWND> Ended()
    {
        EXPECT_FALSE(m_source->m_dragging);
        EXPECT_EQ(m_source->m_dragImage, nullptr);
        EXPECT_EQ(m_source->m_payload.GetCount(), 0);
        EXPECT_EQ(::GetCapture(), nullptr);
        return std::exchange(m_source->ended, {});
    }

    static inline const CRect TargetPlace{240, 20, 440, 320};
    ViewForTests* m_source = nullptr;
    ViewForTests* m_target = nullptr;
    std::vector<HTREEITEM> m_items;
};

TEST_F(MultiTreeViewTest, KeepsTheSelectionsRules)
{
    ClickItem(Items(), m_items[1]);
    ClickItem(Items(), m_items[3], {VK_SHIFT});
    EXPECT_EQ(SelectedTexts(*m_source, Items()), "bcd");
    m_source->SelectAllIgnore(m_items[2], false, nullptr);
    EXPECT_EQ(SelectedTexts(*m_source, Items()), "bd") << "the branch c alone";
    EXPECT_EQ(MultiTreeView::mnDragTrackMsg, ::RegisterWindowMessage("Kest Drag Track"));
    EXPECT_EQ(MultiTreeView::mnDragLeaveMsg, ::RegisterWindowMessage("Kest Drag Leave"));
    EXPECT_EQ(MultiTreeView::mnDragDropMsg, ::RegisterWindowMessage("Kest Drag Drop"));
    EXPECT_EQ(MultiTreeView::mnDragCopyMsg, ::RegisterWindowMessage("Kest Drag Copy"));

    // The user closes a branch.
    const HTREEITEM below = AddItems(Items(), "x", m_items[0])[0];
    Items().Expand(m_items[0], TVE_EXPAND);
    m_source->SelectItem(m_items[0]);
    m_source->SetItemState(below, TVIS_SELECTED, TVIS_SELECTED);
    TypeKey(VK_LEFT);
    EXPECT_EQ(SelectedTexts(*m_source, Items()), "a");
}

TEST_F(MultiTreeViewTest, ADragEndsWithTheWindowUnderIt)
{
    m_target->accepts = true;
    Begun()
        .Do([] { QueueButton(true, true); }) // the other button does not count
        .Do([] { QueueButton(false, true); })
        .Move(OverTarget())
        .Do([&] {
            EXPECT_NE(m_source->m_dragImage, nullptr);
            EXPECT_EQ(::GetCapture(), m_source->GetSafeHwnd());
        })
        .Release();
    EXPECT_THAT(m_target->received, ElementsAre("drop"));
    EXPECT_THAT(m_target->dropped, ElementsAre(m_items[0], m_items[2]));
    EXPECT_EQ(m_source->left, 1);
    EXPECT_EQ(m_target->dropPoint, OverTarget());
    EXPECT_THAT(Ended(), ElementsAre(m_target->GetSafeHwnd()));

    m_target->accepts = false;
    Begun()
        .Move(OverTarget())
        .Do([] { PumpFor(30); })
        .Do([] { QueueKey(VK_CONTROL, true); })
        .Release();
    QueueKey(VK_CONTROL, false);
    PumpAll();
    EXPECT_THAT(Ended(), ElementsAre(nullptr)) << "it answered 0";
    // No window that takes drags, and the desktop: a window of another process.
    for (const CPoint nobody : {OverNothing(), CPoint(5, 5)})
    {
        Begun().Move(nobody).Release();
        EXPECT_THAT(Ended(), ElementsAre(nullptr));
    }
    EXPECT_THAT(std::exchange(m_target->received, {}), ElementsAre("drop", "copy"));

    // A window is left once, and a view may be its own target.
    m_source->received.clear();
    Begun()
        .Move(OverTarget())
        .Move(OverTarget() + CPoint(0, 20))
        .Move(PointOf(Items(), m_items[3]))
        .Move(PointOf(Items(), m_items[2]))
        .Release();
    EXPECT_THAT(m_target->received, ElementsAre("leave"));
    EXPECT_THAT(m_source->received, ElementsAre("leave", "drop"));
}

TEST_F(MultiTreeViewTest, TheDragImageLeavesNoTrace)
{
    const auto settled = [&] {
        PumpAll();
        return ScreenPixels(WindowRectOf(Host()));
    };
    AddItems(Items(), "efghijklmnopqrstuvwxyz");
    PumpAll();
    Pixels during;
    Begun()
        .Do([&] {
            Items().SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA));
            EXPECT_NE(Items().GetFirstVisibleItem(), m_items[0]);
            const Pixels atOnce = ScreenPixels(WindowRectOf(Host()));
            EXPECT_EQ(settled(), atOnce) << "rows and image are whole after the wheel";
        })
        .Move(OverTarget())
        .Do([&] {
            // What lies under the image changes and is painted meanwhile.
            m_target->SelectAll(true, false);
            m_target->UpdateWindow();
        })
        .Move(OverTarget() - CPoint(0, 130))
        .Do([&] { during = ScreenPixels(WindowRectOf(Host())); })
        .Move(OverNothing())
        .Do([] { TypeKey(VK_ESCAPE); })
        .Release();
    const Pixels after = settled();
    EXPECT_NE(after, during);
    Host().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    EXPECT_EQ(settled(), after) << "nothing was left of the image";
}

TEST_F(MultiTreeViewTest, IsCancelledByWhateverInterruptsIt)
{
    const std::function<void()> interruptions[] = {
        [] { TypeKey(VK_ESCAPE); },
        [] { ::ReleaseCapture(); },
        // A release that never comes to the view: the timer finds the button up.
        [] {
            MSG taken;
            QueueButton(false);
            const DWORD until = ::GetTickCount() + 1000;
            while (!::PeekMessage(&taken, nullptr, WM_LBUTTONUP, WM_LBUTTONUP, PM_REMOVE) &&
                   ::GetTickCount() < until)
            {}
        },
    };
    for (const auto& interrupt : interruptions)
    {
        Begun()
            .Move(OverTarget())
            .Do(interrupt)
            .Do([&] { EXPECT_TRUE(PumpUntil([&] { return !m_source->m_dragging; })); })
            .Release();
        EXPECT_THAT(Ended(), ElementsAre(nullptr));
        EXPECT_THAT(m_target->received, IsEmpty());
    }
    m_source->pictured = false;
    Begun().Release();
    EXPECT_THAT(Ended(), ElementsAre(nullptr)) << "without a picture, too";
}

TEST_F(MultiTreeViewTest, SurvivesWhatEndsDuringADrag)
{
    // The item that the drag began with.
    Begun().Do([&] { Items().DeleteItem(m_items[0]); }).Move(OverTarget()).Release();
    EXPECT_THAT(Ended(), ElementsAre(nullptr));
    EXPECT_THAT(m_target->received, IsEmpty());
    m_items.erase(m_items.begin());
    m_source->SelectItem(m_items[0]);

    // The target, under the pointer.
    Begun()
        .Move(OverTarget())
        .Do([&] { m_target->DestroyWindow(); })
        .Move(OverTarget() + CPoint(0, 5))
        .Release();
    EXPECT_THAT(Ended(), ElementsAre(nullptr));

    // The source, while the target has the payload.
    m_target = &AddView(TargetPlace, 73);
    m_target->onDrop = [&] { m_source->DestroyWindow(); };
    Begun().Move(OverTarget()).Release();
    EXPECT_EQ(m_target->dropped.size(), 1U);
}

TEST_F(MultiTreeViewTest, ScrollsAsATarget)
{
    CTreeCtrl& target = m_target->GetTreeCtrl();
    AddItems(target, "abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyz");
    PumpAll();
    const CRect client = ClientRectOf(target);
    const auto track = [&](CPoint at) {
        POINT point = ClientPoint(target, at);
        target.SendMessage(MultiTreeView::mnDragTrackMsg, WPARAM(&point));
    };
    const auto scrolls = [&target](int within) {
        const HTREEITEM top = target.GetFirstVisibleItem();
        return PumpUntil([&] { return target.GetFirstVisibleItem() != top; }, within);
    };
    const HTREEITEM first = target.GetFirstVisibleItem();
    POINT dropped = {};
    KArray payload;
    for (const UINT end : {MultiTreeView::mnDragLeaveMsg, MultiTreeView::mnDragDropMsg,
                           MultiTreeView::mnDragCopyMsg})
    {
        track(CPoint(20, client.bottom - 3));
        EXPECT_TRUE(scrolls(5000)) << "the timer scrolls";
        target.SendMessage(end, WPARAM(&dropped), LPARAM(&payload));
        EXPECT_FALSE(scrolls(400));
    }
    track(CPoint(20, 3));
    EXPECT_TRUE(PumpUntil([&] { return target.GetFirstVisibleItem() == first; }));
    track(CPoint(20, client.bottom - 3));
    EXPECT_TRUE(scrolls(5000));
    track(client.CenterPoint());
    EXPECT_FALSE(scrolls(400));
    target.SendMessage(MultiTreeView::mnDragTrackMsg); // no position
}

TEST_F(MultiTreeViewTest, TornOffItActivatesNoFrameAndTellsItsCaption)
{
    auto* frame = new CFrameWnd; // deletes itself
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(MultiTreeView);
    ASSERT_TRUE(frame->Create(nullptr, "Frame", WS_POPUP | WS_VISIBLE, CRect(100, 80, 400, 380),
                              nullptr, nullptr, 0, &context));
    frame->InitialUpdateFrame(nullptr, TRUE);
    CView* const view = frame->GetActiveView();
    ASSERT_NE(view, nullptr);
    for (const bool peeled : {false, true, false})
    {
        view->SendMessage(0x0414, 0, peeled);
        frame->SetActiveView(nullptr);
        view->SendMessage(WM_MOUSEACTIVATE, WPARAM(frame->GetSafeHwnd()),
                          MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
        EXPECT_EQ(frame->GetActiveView(), peeled ? nullptr : view);
    }

    view->SetWindowText("Routes");
    char text[8] = "unset";
    EXPECT_EQ(view->SendMessage(0x0415, 6, LPARAM(text)), 0);
    EXPECT_EQ(view->SendMessage(0x0415, 100), 0);
    EXPECT_STREQ(text, "unset");
    EXPECT_NE(view->SendMessage(0x0415, 7, LPARAM(text)), 0);
    EXPECT_STREQ(text, "Routes");
    frame->DestroyWindow();
}

} // namespace
