#include "support/WindowTest.h"

#include <string>

namespace {

using Journal = std::vector<std::string>;

Journal journal;
int liveObjects = 0;

constexpr UINT CommandOfView = 300;
constexpr UINT CommandOfFrame = 301;

class ColourView : public CView
{
    DECLARE_DYNCREATE(ColourView)

public:
    ColourView() { ++liveObjects; }
    ~ColourView() override { --liveObjects; }
    void OnInitialUpdate() override { journal.push_back("initial update"); }

protected:
    void OnDraw(CDC*) override {}
    void OnActivateView(BOOL activate, CView* to, CView* from) override
    {
        journal.push_back(activate ? "activate" : "deactivate");
        CView::OnActivateView(activate, to, from);
    }
    void OnCommandOfView() { journal.push_back("view command"); }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(ColourView, CView)

BEGIN_MESSAGE_MAP(ColourView, CView)
    ON_COMMAND(CommandOfView, &ColourView::OnCommandOfView)
END_MESSAGE_MAP()

class Frame : public CFrameWnd
{
public:
    Frame() { ++liveObjects; }
    ~Frame() override { --liveObjects; }

protected:
    void OnCommandOfFrame() { journal.push_back("frame command"); }
    void OnShadowed() { journal.push_back("frame instead of view"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Frame, CFrameWnd)
    ON_COMMAND(CommandOfFrame, &Frame::OnCommandOfFrame)
    ON_COMMAND(CommandOfView, &Frame::OnShadowed)
END_MESSAGE_MAP()

// The frame belongs to its window.
Frame* MakeFrame(CRuntimeClass* viewClass)
{
    CCreateContext context;
    context.m_pNewViewClass = viewClass;
    auto* frame = new Frame;
    if (!frame->Create(nullptr, "Frame", WS_OVERLAPPEDWINDOW, CRect(200, 150, 500, 350), nullptr,
                       nullptr, 0, &context))
    {
        return nullptr;
    }
    frame->ShowWindow(SW_SHOW);
    frame->SetForegroundWindow();
    PumpAll();
    return frame;
}

TEST_F(WindowTest, AFrameMakesItsViewWhichIsAskedFirstAndEndsWithItOrForWantOfIt)
{
    EXPECT_EQ(CRuntimeClass::FromName("no such class"), nullptr);
    Frame* const frame = MakeFrame(CRuntimeClass::FromName("ColourView"));
    ASSERT_NE(frame, nullptr);
    auto* const view = DYNAMIC_DOWNCAST(ColourView, frame->GetActiveView());
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "initial update"), 1);
    EXPECT_EQ(::GetFocus(), view->m_hWnd) << "an active frame gives its view the focus";
    frame->SetWindowPos(nullptr, 0, 0, 420, 333, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(WindowRectOf(*view).Size(), ClientRectOf(*frame).Size()) << "the view fills it";

    journal.clear();
    frame->SendMessage(WM_COMMAND, CommandOfView);
    frame->SendMessage(WM_COMMAND, CommandOfFrame);
    frame->SetActiveView(nullptr);
    frame->SendMessage(WM_COMMAND, CommandOfView);
    frame->SetFocus();
    Click(ClientPoint(*view, CPoint(50, 50)));
    EXPECT_EQ(frame->GetActiveView(), view);
    EXPECT_EQ(::GetFocus(), view->m_hWnd);
    EXPECT_EQ(journal, (Journal{"view command", "frame command", "deactivate",
                                "frame instead of view", "activate"}));

    EXPECT_EQ(liveObjects, 2);
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(MakeFrame(RUNTIME_CLASS(CView)), nullptr) << "no view, no frame";
    EXPECT_EQ(liveObjects, 0);
}

} // namespace
