#pragma once

// Run-time class information and creation by class.

#include "framework/Platform.h"

class CObject;

// What is known of a class at run time: its name, its base and how to make one.
struct FRAMEWORK_API CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;
    CObject*(PASCAL* m_pfnCreateObject)(); // null for a class that is not dynamically creatable
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)();

    // A new object, owned by the caller, or null when the class cannot be created dynamically.
    CObject* CreateObject() const;
    static CObject* PASCAL CreateObject(LPCSTR className);
    bool IsDerivedFrom(const CRuntimeClass* base) const;

    // The class of that name among those whose modules are loaded, or null.
    static CRuntimeClass* PASCAL FromName(LPCSTR className);
};

namespace framework {

// Keeps a class findable by name for as long as its module is loaded.
class FRAMEWORK_API ClassRegistration
{
public:
    explicit ClassRegistration(const CRuntimeClass& registered);
    ~ClassRegistration();
    ClassRegistration(const ClassRegistration&) = delete;
    ClassRegistration& operator=(const ClassRegistration&) = delete;

private:
    const CRuntimeClass& m_class;
};

} // namespace framework

// The root of the framework's classes; not to be copied.
class FRAMEWORK_API CObject
{
public:
    CObject() = default;
    virtual ~CObject();
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    virtual CRuntimeClass* GetRuntimeClass() const;
    bool IsKindOf(const CRuntimeClass* wanted) const;

    static CRuntimeClass* PASCAL GetThisClass();
    static const CRuntimeClass classCObject;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)                                                                \
public:                                                                                            \
    static const CRuntimeClass class##class_name;                                                  \
    static CRuntimeClass* PASCAL GetThisClass();                                                   \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                              \
    DECLARE_DYNAMIC(class_name)                                                                    \
    static CObject* PASCAL CreateObject();

#define FRAMEWORK_IMPLEMENT_CLASS(class_name, base_class_name, create)                             \
    CRuntimeClass* PASCAL class_name::GetThisClass()                                               \
    {                                                                                              \
        return const_cast<CRuntimeClass*>(&class_name::class##class_name);                         \
    }                                                                                              \
    CRuntimeClass* class_name::GetRuntimeClass() const                                             \
    {                                                                                              \
        return GetThisClass();                                                                     \
    }                                                                                              \
    const CRuntimeClass class_name::class##class_name = {                                          \
        #class_name, int(sizeof(class_name)), 0xFFFF, create, &base_class_name::GetThisClass};     \
    static const framework::ClassRegistration registered##class_name{class_name::class##class_name};

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                             \
    FRAMEWORK_IMPLEMENT_CLASS(class_name, base_class_name, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                           \
    CObject* PASCAL class_name::CreateObject()                                                     \
    {                                                                                              \
        return new class_name;                                                                     \
    }                                                                                              \
    FRAMEWORK_IMPLEMENT_CLASS(class_name, base_class_name, &class_name::CreateObject)

// Null unless object is of the class or derived from it.
FRAMEWORK_API CObject* AfxDynamicDownCast(CRuntimeClass* wanted, CObject* object);

#define DYNAMIC_DOWNCAST(class_name, object)                                                       \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))
