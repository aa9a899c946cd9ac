// Default answers of the smaller host services.

#include "EFB.h"
#include "Printing.h"
#include "ProviderBase.h"

IProviderBase::~IProviderBase() = default;

int IProviderBase::Configurable()
{
    return 0;
}

int IProviderBase::Configure()
{
    return 1;
}

IEFB::~IEFB() = default;

bool IEFB::BeginModalDialog()
{
    return true;
}

bool IEFB::EndModalDialog()
{
    return true;
}

bool IEFB::GetAvailableArea(int& x, int& y, int& width, int& height)
{
    x = y = width = height = 0;
    return false;
}

bool IEFB::IsModalDialogOpen()
{
    return true;
}

void IEFB::ShowVKB(bool, VKB_SHOW_POS, HWND) {}

IPrinting::~IPrinting() = default;
