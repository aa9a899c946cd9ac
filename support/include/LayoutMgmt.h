#pragma once

#include "SupportExport.h"

class CActiveStateMediator;

// Keeps the stacking order of the host's windows. The host derives from it and hands it out; a
// window tells it that it was activated or restacked.
class SUPPORT_API CZOrderManager
{
public:
    CZOrderManager() = default;
    CZOrderManager(const CZOrderManager&) = delete;
    CZOrderManager& operator=(const CZOrderManager&) = delete;
    virtual ~CZOrderManager();

    // Puts the windows back into their wanted order. Does nothing here.
    virtual void UpdateZOrder();
};
