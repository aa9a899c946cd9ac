#pragma once

#include "PageGrid.h"

#include <CustomButton.h>
#include <CustomDialog.h>
#include <CustomListBox.h>
#include <CustomStatic.h>

#include <functional>
#include <memory>
#include <vector>

// Who shows what a page was told by its controls.
class GalleryEvents
{
public:
    virtual void ParentWasTold(const CString& what) = 0;

protected:
    ~GalleryEvents() = default;
};

// A page of the gallery: a dialog of the library used as a child window. It declares its content
// once, in pixels of the standard mode at 96 dots per inch, and follows screen and display mode
// from there.
class GalleryPage : public CCustomDialog
{
public:
    // The room that a page of the grid takes in the current mode.
    static CSize SizeInMode();

    GalleryPage(IAppAccess& host, GalleryEvents& events);

    // Makes the window, hidden, with its content. FALSE when it cannot be made.
    BOOL Open(CWnd& parent, UINT id);

    // Before a change of the mode: the library's buttons have a check state in the standard mode
    // and another in the others.
    virtual void KeepState() {}
    // Lays the content out for the current mode and size. The owner calls it after each change of
    // the mode.
    void FollowMode();

    // The room that the content takes: more than the page has on a small screen, where it scrolls.
    CSize ContentSize() const;
    // What of the content is at the page's corner; brought as near as the content reaches.
    CPoint Origin() const { return m_origin; }
    void ScrollTo(CPoint origin);
    // Scrolls as far as needed to have a control of the page in sight.
    void Reveal(HWND child);

    // Gives a key message to the page's dialog keys; TRUE when it is done with.
    BOOL TranslateInput(MSG* message) { return CCustomDialog::PreTranslateMessage(message); }

    // Brings the controls into the state that a picture should show, by messages as input sends.
    virtual void PoseForPicture() {}
    // Has each of the page's pictures made, with what its name gets beyond page and mode.
    using TakePicture = std::function<void(const char* suffix)>;
    virtual void TakePictures(const TakePicture& take)
    {
        PoseForPicture();
        take("");
    }

    BOOL OnInitDialog() override;
    // The frame sees every key first: its mode switches work wherever the focus is.
    BOOL PreTranslateMessage(MSG*) override { return FALSE; }

protected:
    // Makes the controls, with the helpers below.
    virtual void CreateContent() = 0;
    // Whether the content spreads over a page that is larger than its design.
    virtual bool FillsPage() const { return false; }
    // After the content was laid out, for what depends on the mode's fonts.
    virtual void OnLaidOut() {}
    // After the content was moved, for what stays where it was put.
    virtual void OnScrolled() {}

    // design is in pixels of the standard mode, on the grid. A list's caption takes the first
    // CaptionStep of it.
    CCustomStatic& AddLabel(const char* text, const CRect& design);
    void AddList(CCustomListBox& list, const char* caption, DWORD style, const CRect& design,
                 UINT id);
    static constexpr DWORD PushStyle = BS_PUSHBUTTON | WS_TABSTOP;
    void AddButton(CCustomButton& button, const char* caption, DWORD style, const CRect& design,
                   UINT id);
    // Has a control that the page made follow the mode, with a caption above it or without one.
    void Place(CWnd& control, const CRect& design, CWnd* caption = nullptr);

    // A press and its release in the middle of a row, as the pointer sends them.
    static void TapRow(CListBox& list, int row);

    GalleryEvents& Events() { return m_events; }

    // A page is no dialog to be closed by a key.
    void OnOK() override {}
    void OnCancel() override {}

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnNcPaint();
    afx_msg BOOL OnNcActivate(BOOL active);
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    struct Placed
    {
        CWnd* control;
        CRect design;
        CWnd* caption;
    };

    CRect InPage(const CRect& design) const;
    CPoint Reachable(CPoint origin) const;
    CCustomStatic& MakeLabel(const char* text);

    GalleryEvents& m_events;
    std::vector<std::unique_ptr<CCustomStatic>> m_labels;
    std::vector<Placed> m_placed;
    CPoint m_origin{0, 0};
};
