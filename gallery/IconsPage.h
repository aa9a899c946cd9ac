#pragma once

#include "GalleryPage.h"

class MappedImageList;

// The application's icons by id, and the images that they are in the host's list. A press on one
// marks it in both.
class IconTable : public CWnd
{
public:
    enum Kind
    {
        Icons, // a row for each ten ids
        Images // one after the other, as in the list
    };

    IconTable(Kind kind, IAppAccess& host)
        : m_kind(kind)
        , m_host(host)
    {}

    BOOL Open(CWnd& page, UINT id);
    // 0 for none.
    void Mark(UINT id);
    UINT Marked() const { return m_marked; }
    // The id of the icon at a point of the client area, or 0.
    UINT IdAt(CPoint point) const;
    CRect CellOf(UINT id) const;

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg void OnLButtonDown(UINT keys, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    CRect CellAt(int column, int row) const;
    const MappedImageList* CurrentList() const;

    Kind m_kind;
    IAppAccess& m_host;
    UINT m_marked = 0;
};

class IconsPage : public GalleryPage
{
public:
    IconsPage(IAppAccess& host, GalleryEvents& events);

    void PoseForPicture() override;

protected:
    void CreateContent() override;
    bool FillsPage() const override { return true; }
    void OnLaidOut() override;

    afx_msg void OnPressed(UINT tableId);
    DECLARE_MESSAGE_MAP()

private:
    IAppAccess& m_services;
    IconTable m_icons;
    IconTable m_images;
};
