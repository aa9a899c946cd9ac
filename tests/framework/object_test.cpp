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
};
IMPLEMENT_DYNCREATE(Circle, Shape)

class BigCircle : public Circle // no run-time class of its own
{};

TEST(RuntimeClass, ObjectsAreMadeByNameAndKnowTheirKin)
{
    EXPECT_EQ(CRuntimeClass::FromName("Circle"), RUNTIME_CLASS(Circle));
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(Circle)->CreateObject());
    ASSERT_NE(DYNAMIC_DOWNCAST(Shape, made.get()), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CWnd, made.get()), nullptr);
    EXPECT_FALSE(RUNTIME_CLASS(Shape)->IsDerivedFrom(RUNTIME_CLASS(Circle)));
    EXPECT_EQ(BigCircle().GetRuntimeClass(), RUNTIME_CLASS(Circle)) << "the nearest declared class";
    const std::unique_ptr<CObject> window(CRuntimeClass::CreateObject("CFrameWnd"));
    EXPECT_TRUE(window->IsKindOf(RUNTIME_CLASS(CWnd))) << "classes of another module are found";
    EXPECT_EQ(RUNTIME_CLASS(Shape)->CreateObject(), nullptr) << "not declared as creatable";
    EXPECT_EQ(CRuntimeClass::CreateObject("Square"), nullptr);
}

} // namespace
