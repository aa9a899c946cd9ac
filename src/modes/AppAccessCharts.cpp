// Default answers about charts: enroute and terminal charts, input modes, fonts and drawing on
// top.

#include "AppAccess.h"

void IAppAccess::AddChartOverlayWnd(CChartOverlayWnd*) {}

void IAppAccess::AddTopLevelDraw(TopLevelDraw) {}

int IAppAccess::ChartViewExists()
{
    return 0;
}

void IAppAccess::ClearTCLPDFConfigs() {}

void IAppAccess::DrawLocateArrow(UIItem, double, double) {}

void IAppAccess::DrawOverlayBackground(void*) {}

void IAppAccess::EndAnimations(IPINotify*) {}

bool IAppAccess::FontsInitialized(K3Grfx*)
{
    return false;
}

CWnd* IAppAccess::GetActiveChartWnd(bool&)
{
    return nullptr;
}

K3Chart* IAppAccess::GetEnrChart(UIItem)
{
    return nullptr;
}

K3Chart* IAppAccess::GetEnrChart(UIItem, bool& current)
{
    current = false;
    return nullptr;
}

int IAppAccess::GetEnrDbStoreCount()
{
    return 0;
}

ChartInputMode IAppAccess::GetEnrInputMode(UIItem)
{
    return ChartInputMode{0};
}

ChartInputMode IAppAccess::GetNextEnrInputMode(UIItem, ChartInputMode mode)
{
    return mode;
}

IPDFViewer* IAppAccess::GetPDFViewer()
{
    return nullptr;
}

ITermChartData* IAppAccess::GetTermChartData()
{
    return nullptr;
}

ITermChartData* IAppAccess::GetTermChartData(int)
{
    return nullptr;
}

int IAppAccess::GetTermChartDataCount()
{
    return 0;
}

ITermCharts* IAppAccess::GetTermCharts()
{
    return nullptr;
}

TextAttrs* IAppAccess::GetTextAttrs()
{
    return nullptr;
}

ITextPages* IAppAccess::GetTextPages()
{
    return nullptr;
}

EnrZoomHandler* IAppAccess::GetZoomHandler(UIItem)
{
    return nullptr;
}

bool IAppAccess::InitializeFonts(K3Grfx*)
{
    return false;
}

int IAppAccess::IsTCLAndPDFCapable()
{
    return 0;
}

void IAppAccess::ReDraw(UIItem) {}

void IAppAccess::RemoveTopLevelDraw(TopLevelDraw, int) {}

void IAppAccess::SetEnrInputMode(UIItem, ChartInputMode) {}

bool IAppAccess::SetZoomHandler(UIItem, EnrZoomHandler*)
{
    return false;
}

bool IAppAccess::UsingCDA()
{
    return false;
}

bool IAppAccess::UsingDDM()
{
    return false;
}

bool IAppAccess::UsingKDSEChart()
{
    return false;
}

bool IAppAccess::UsingKDSEnr()
{
    return false;
}

void IAppAccess::WaitForDoneDrawing(UIItem) {}
