#pragma once

#include "CustomStatusBar.h"

// A status bar that shows in its first pane that a search, or the loading of its results, goes on:
// a word with dots, while searching one more each second.
class ONBOARDUI_API CSearchStatusBar : public CCustomStatusBar
{
    DECLARE_DYNAMIC(CSearchStatusBar)

public:
    CSearchStatusBar();
    ~CSearchStatusBar() override;

    // @{
    // Show that a search, or the loading of its results, has begun. Nothing while either is going
    // on, or without a window.
    void StartSearchProgress();
    void StartLoadingProgress();
    // @}

    // @{
    // Each ends whichever is going on. The text stays, and the next search goes on with its dots.
    void StopSearchProgress();
    void StopLoadingProgress();
    // @}

    void PreSubclassWindow() override;

protected:
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

    static constexpr int FrameCount = 5;

    CString m_searchFrames[FrameCount];
    CString m_loadingFrames[FrameCount]; // meant: kept and never shown, the text of loading stands
    int m_frame = 0;                     // the next one to show
    UINT m_period = 1000;                // milliseconds
    UINT m_searchTimer = 1189;
    UINT m_loadingTimer = 1190;
    int m_activeTimer = -1; // -1 for none

private:
    void StartTimer(UINT id);
};
