#pragma once

#include "GalleryPage.h"

#include <CustomCheckBox.h>
#include <MultiTree.h>
#include <MultiTreeView.h>

// What is dropped, and by which message.
class DropEvents
{
public:
    virtual void Dropped(const char* where, const char* how, const KArray& payload) = 0;

protected:
    ~DropEvents() = default;
};

// The page's view: a drag from it carries the places of the selected items.
class WorldView : public MultiTreeView
{
public:
    explicit WorldView(DropEvents& events)
        : m_events(events)
    {}
    void GetSelectedItems(HTREEITEM item, KArray& payload) override;
    void DragEnded(HWND accepted) override;

protected:
    afx_msg LRESULT OnDropped(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnCopied(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    DropEvents& m_events;
};

// The page's tree: takes what is dropped and adds it behind its other items.
class WorldTree : public MultiTree
{
public:
    explicit WorldTree(DropEvents& events)
        : m_events(events)
    {}

protected:
    afx_msg LRESULT OnDropped(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnCopied(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    LRESULT Receive(const char* how, LPARAM payload);

    DropEvents& m_events;
    HTREEITEM m_received = nullptr;
};

// A plain window that takes what is dropped and shows how much it was.
class DropArea : public CWnd
{
public:
    explicit DropArea(DropEvents& events)
        : m_events(events)
    {}

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg LRESULT OnDropped(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnCopied(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    LRESULT Receive(const char* how, LPARAM payload);

    DropEvents& m_events;
    CString m_last = "Drop here from the view";
};

// A tree and a tree view over the same small world, a place to drop on, and what the page is told.
class TreesPage : public GalleryPage, private DropEvents
{
public:
    TreesPage(IAppAccess& host, GalleryEvents& events);

    void PoseForPicture() override;
    void TakePictures(const TakePicture& take) override;

protected:
    void CreateContent() override;
    bool FillsPage() const override { return true; }
    void OnLaidOut() override;

    afx_msg void OnSwitch();
    afx_msg void OnTold(UINT id, NMHDR* header, LRESULT* result);
    afx_msg LRESULT OnWriteTold(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPose(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void Dropped(const char* where, const char* how, const KArray& payload) override;
    void Tell(const CString& what);
    void WriteTold();

    WorldTree m_tree;
    WorldView* m_view; // deletes itself with its window
    DropArea m_area;
    CCustomCheckBox m_several;
    CCustomListBox m_told;
    HTREEITEM m_treeRoute = nullptr;
    HTREEITEM m_viewRoute = nullptr;
    CString m_line; // told last, and how often in a row
    int m_times = 0;
    bool m_writePosted = false;
    const TakePicture* m_take = nullptr; // while a picture is posed for
};
