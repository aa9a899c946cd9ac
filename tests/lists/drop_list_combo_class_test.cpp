#include "CustomDropListCombo.h"
#include "support/WindowTest.h"

TEST_F(WindowTest, TheCombosWindowClassServesEveryModule)
{
    ASSERT_TRUE(CCustomDropListCombo::RegisterWndClass(nullptr));
    EXPECT_TRUE(CCustomDropListCombo::RegisterWndClass(nullptr)) << "again";
    WNDCLASS known = {};
    const HMODULE another = ::GetModuleHandle("user32.dll");
    EXPECT_TRUE(::GetClassInfo(another, "CCUSTOMDROPLISTCOMBO", &known));
}
