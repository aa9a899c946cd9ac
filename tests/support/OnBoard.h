#pragma once

#include "OnBoardUIGeneral.h"

// A fixture whose windows live in the on-board mode.
template <class Fixture> class OnBoard : public Fixture
{
protected:
    void SetUp() override
    {
        Fixture::SetUp();
        COnBoardUIGeneral::SetAppMode(ONBOARD);
    }

    void TearDown() override
    {
        COnBoardUIGeneral::SetAppMode(STD);
        Fixture::TearDown();
    }
};
