#pragma once

#include "OnBoardUIExport.h"

// What every service of a host has in common.
class ONBOARDUI_API IProviderBase
{
public:
    IProviderBase() = default;
    IProviderBase(const IProviderBase&) = delete;
    IProviderBase& operator=(const IProviderBase&) = delete;
    virtual ~IProviderBase();

    // A name of the host's choice. The library never asks for it.
    virtual const char* GetProviderName() = 0;

    // Whether there is anything to configure: 0.
    virtual int Configurable();

    // Lets the user configure the provider; 1.
    virtual int Configure();
};
