// Default answers about layout pages, panes and their configurations.

#include "AppAccess.h"

namespace {
// Identifies no page and no configuration.
constexpr unsigned int NO_ID = ~0U;
} // namespace

void IAppAccess::ChangeLayoutPage(unsigned int) {}

void IAppAccess::Configure(unsigned int,
                           const std::vector<KESSPLITTERWND::CPanesConfigurationEntry>&)
{}

unsigned int IAppAccess::CurrentLayoutPageID() const
{
    return NO_ID;
}

unsigned int IAppAccess::GetActiveConfigurationID()
{
    return NO_ID;
}

int IAppAccess::GetConfig(unsigned int, KESSPLITTERWND::CPanesConfiguration&)
{
    return 0;
}

CWnd* IAppAccess::GetConfigWnd(CRuntimeClass*)
{
    return nullptr;
}

CString IAppAccess::GetCurrentLayoutPageName()
{
    return CString();
}

int IAppAccess::GetLayoutPageCount(APPMODE) const
{
    return 0;
}

bool IAppAccess::GetOBPageLaunchFlyoutBtnID(unsigned int, unsigned int&)
{
    return false;
}

CWnd* IAppAccess::GetPaneWnd(CRuntimeClass*, bool&)
{
    return nullptr;
}

CWnd* IAppAccess::GetPeeledWnd(CRuntimeClass*, unsigned int&)
{
    return nullptr;
}

CRuntimeClass* IAppAccess::GetRuntimeFromUIName(const PIUID&, const CString&)
{
    return nullptr;
}

void IAppAccess::GetSpacing(unsigned int, KESSPLITTERWND::CPanesSpacing&) {}

void IAppAccess::GetSupportedPaneUINames(std::vector<CString>&) const {}

bool IAppAccess::HasConfigWnd(CRuntimeClass*, unsigned int)
{
    return false;
}

CSP_INSERT_RESULT IAppAccess::InsertPaneByClass(const PIUID&, CRuntimeClass*, CP_INSERT_LOC,
                                                unsigned int)
{
    return CSP_INSERT_DEFAULT;
}

CSP_INSERT_RESULT IAppAccess::InsertPaneByUIName(const PIUID&, const CString&, CP_INSERT_LOC,
                                                 KESSPLITTERWND::CPanesConfiguration*)
{
    return CSP_INSERT_DEFAULT;
}

CSP_INSERT_RESULT IAppAccess::InsertStockPane(const PIUID&, ZEP_STOCK_PANE, CP_INSERT_LOC,
                                              KESSPLITTERWND::CPanesConfiguration*)
{
    return CSP_INSERT_DEFAULT;
}

bool IAppAccess::NextLayoutPage()
{
    return false;
}

unsigned int IAppAccess::NextNewLayoutPageID(APPMODE)
{
    return NO_ID;
}

void IAppAccess::OnBoardPageChange(unsigned int) {}

bool IAppAccess::PrevLayoutPage()
{
    return false;
}

bool IAppAccess::RemovePane(const PIUID&, unsigned int, CRuntimeClass*)
{
    return false;
}

int IAppAccess::SelectConfiguration(unsigned int)
{
    return 0;
}

int IAppAccess::SelectConfigurationWithClass(const CString&)
{
    return 0;
}

void IAppAccess::SetDefaultConfigID(unsigned int) {}

bool IAppAccess::SetPaneTitle(CRuntimeClass*, const CString&, bool)
{
    return false;
}

void IAppAccess::SetSpacing(unsigned int, const KESSPLITTERWND::CPanesSpacing&) {}

bool IAppAccess::SwapPanes(const PIUID&, CRuntimeClass*, CRuntimeClass*, unsigned int)
{
    return false;
}

bool IAppAccess::SwapPeeledPanes(const PIUID&, CRuntimeClass*, CRuntimeClass*, unsigned int)
{
    return false;
}

void IAppAccess::SwitchToDefaultLayoutPage() {}

bool IAppAccess::UpdatePaneCaption(CRuntimeClass*)
{
    return false;
}
