#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>

namespace {

class Shape : public CObject
{
    DECLARE_DYNAMIC(Shape)
};
IMPLEMENT_DYNAMIC(Shape, CObject)

class Circle : public Shape
{
    DECLARE_DYNCREATE(Circle)

public:
    int radius = 5;
};
IMPLEMENT_DYNCREATE(Circle, Shape)

class BigCircle : public Circle // no run-time class of its own
{};

TEST(RuntimeClass, ObjectsAreMadeByClassAndByName)
{
    for (const CRuntimeClass* from : {RUNTIME_CLASS(Circle), CRuntimeClass::FromName("Circle")})
    {
        ASSERT_EQ(from, RUNTIME_CLASS(Circle));
        const std::unique_ptr<CObject> made(from->CreateObject());
        const auto* circle = DYNAMIC_DOWNCAST(Circle, made.get());
        ASSERT_NE(circle, nullptr);
        EXPECT_EQ(circle->radius, 5);
    }
    const std::unique_ptr<CObject> window(CRuntimeClass::CreateObject("CFrameWnd"));
    EXPECT_TRUE(window->IsKindOf(RUNTIME_CLASS(CWnd))) << "classes of another module are found";

    EXPECT_EQ(RUNTIME_CLASS(Shape)->CreateObject(), nullptr) << "not declared as creatable";
    EXPECT_EQ(CRuntimeClass::CreateObject("Square"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName(nullptr), nullptr);
}

TEST(RuntimeClass, KinshipFollowsTheBases)
{
    const struct
    {
        CRuntimeClass* derived;
        CRuntimeClass* base;
        bool kin;
    } cases[] = {
        {RUNTIME_CLASS(Circle), RUNTIME_CLASS(Circle), true},
        {RUNTIME_CLASS(Circle), RUNTIME_CLASS(Shape), true},
        {RUNTIME_CLASS(Circle), RUNTIME_CLASS(CObject), true},
        {RUNTIME_CLASS(Shape), RUNTIME_CLASS(Circle), false},
        {RUNTIME_CLASS(CDialog), RUNTIME_CLASS(CCmdTarget), true},
        {RUNTIME_CLASS(CDialog), RUNTIME_CLASS(CFrameWnd), false},
    };
    for (const auto& each : cases)
    {
        EXPECT_EQ(each.derived->IsDerivedFrom(each.base), each.kin)
            << each.derived->m_lpszClassName << " and " << each.base->m_lpszClassName;
    }

    BigCircle big;
    EXPECT_EQ(big.GetRuntimeClass(), RUNTIME_CLASS(Circle)) << "the nearest declared class";
    EXPECT_EQ(DYNAMIC_DOWNCAST(Shape, static_cast<CObject*>(&big)), &big);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CWnd, static_cast<CObject*>(&big)), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CWnd, static_cast<CObject*>(nullptr)), nullptr);
}

} // namespace
