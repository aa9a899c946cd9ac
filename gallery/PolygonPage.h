#pragma once

#include "GalleryPage.h"

#include <K3Chart.h>
#include <ViewPolygon.h>

// A chart of the world in a window, which a drag moves. It can outline what another one shows.
class ChartWindow : public CWnd
{
public:
    // degrees is how much of the equator the window's width takes.
    ChartWindow(K3Chart::Projection projection, double latitude, double longitude, double degrees);

    BOOL Open(CWnd& page, UINT id);
    // Outlines this one; it has to outlive the window.
    void Outline(ChartWindow& other) { m_outlined = &other; }
    // Where and how large the chart lies in the window as it is now.
    K3Chart Chart() const;
    // Moves the chart's centre.
    void GoTo(double latitude, double longitude);
    double Latitude() const { return m_latitude; }
    double Longitude() const { return m_longitude; }

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg void OnLButtonDown(UINT keys, CPoint point);
    afx_msg void OnMouseMove(UINT keys, CPoint point);
    afx_msg void OnLButtonUp(UINT keys, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* window);
    DECLARE_MESSAGE_MAP()

private:
    K3Chart::Projection m_projection;
    double m_latitude;
    double m_longitude;
    double m_degrees;
    ChartWindow* m_outlined = nullptr;
    CViewPolygon m_outline;
    CPoint m_draggedFrom;
    bool m_dragged = false; // from the press until the capture goes
};

// Two charts of different projections, the view of the first outlined on the second.
class PolygonPage : public GalleryPage
{
public:
    PolygonPage(IAppAccess& host, GalleryEvents& events);

    void PoseForPicture() override;

protected:
    void CreateContent() override;
    bool FillsPage() const override { return true; }
    void OnLaidOut() override;

    afx_msg void OnMoved();
    DECLARE_MESSAGE_MAP()

private:
    ChartWindow m_view;
    ChartWindow m_globe;
};
