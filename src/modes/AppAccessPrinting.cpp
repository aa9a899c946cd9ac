// Default answers about trip kits and printing.

#include "AppAccess.h"

int IAppAccess::CanDoTripKit(int&)
{
    return 0;
}

void IAppAccess::CollectRevisionLetterInfo(const PIUID&, std::vector<TripKitInfo*>&) {}

void IAppAccess::CreateTripKitandQuickPrint(const PIUID&, bool) {}

void IAppAccess::DoMultiplePrint(const PIUID&, std::vector<MissionTreeObject*>&) {}

void IAppAccess::DoSinglePrint(const PIUID&, std::vector<TripKitInfo*>&) {}

void IAppAccess::DoTripKit(const PIUID&) {}

void IAppAccess::DoTripKitDirect(const PIUID&, bool) {}

void IAppAccess::DoTripKitPrinting(const PIUID&, CPrintInfo*, TripKitInfo*, CDC*, int) {}

IPrinting* IAppAccess::GetPrinting()
{
    return nullptr;
}

void IAppAccess::ModifyTripKitInfo(const PIUID&, std::vector<TripKitInfo*>&, bool) {}

void IAppAccess::PrintCopyrightOnlyHeader(CDC*, PrintHeaderInfo&) {}

void IAppAccess::PrintRevisionLetter(const PIUID&) {}

void IAppAccess::SetPrintingInfo(const PIUID&, std::vector<TripKitInfo*>&, HDC) {}
