#pragma once

#include "OnBoardUIGeneral.h"

#include <gtest/gtest.h>

// Fixtures whose windows live in the on-board mode, or in that of the parameter.

template <class Fixture> class OnBoard : public Fixture
{
protected:
    void SetUp() override
    {
        Fixture::SetUp();
        COnBoardUIGeneral::SetAppMode(ONBOARD);
    }
};

template <class Fixture> class InMode : public Fixture, public testing::WithParamInterface<APPMODE>
{
protected:
    void SetUp() override
    {
        Fixture::SetUp();
        COnBoardUIGeneral::SetAppMode(GetParam());
    }
};
