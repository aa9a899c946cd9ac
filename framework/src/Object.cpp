#include "framework/Object.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <vector>

namespace {

// Function-local, so that it exists before the first static registration of any module.
std::vector<const CRuntimeClass*>& RegisteredClasses()
{
    static std::vector<const CRuntimeClass*> classes;
    return classes;
}

} // namespace

namespace framework {

void Trace(LPCSTR format, ...)
{
    char text[1024];
    va_list values;
    va_start(values, format);
    std::vsnprintf(text, sizeof(text), format, values);
    va_end(values);
    ::OutputDebugString(text);
}

ClassRegistration::ClassRegistration(const CRuntimeClass& registered)
    : m_class(registered)
{
    RegisteredClasses().push_back(&m_class);
}

ClassRegistration::~ClassRegistration()
{
    auto& classes = RegisteredClasses();
    classes.erase(std::remove(classes.begin(), classes.end(), &m_class), classes.end());
}

} // namespace framework

const CRuntimeClass CObject::classCObject = {"CObject", int(sizeof(CObject)), 0xFFFF, nullptr,
                                             nullptr};

CObject::~CObject() = default;

CRuntimeClass* PASCAL CObject::GetThisClass()
{
    return const_cast<CRuntimeClass*>(&classCObject);
}

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return GetThisClass();
}

bool CObject::IsKindOf(const CRuntimeClass* wanted) const
{
    return GetRuntimeClass()->IsDerivedFrom(wanted);
}

CObject* CRuntimeClass::CreateObject() const
{
    return m_pfnCreateObject == nullptr ? nullptr : m_pfnCreateObject();
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCSTR className)
{
    const CRuntimeClass* found = FromName(className);
    return found == nullptr ? nullptr : found->CreateObject();
}

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const
{
    for (const CRuntimeClass* walked = this; walked != nullptr && base != nullptr;
         walked = walked->m_pfnGetBaseClass == nullptr ? nullptr : walked->m_pfnGetBaseClass())
    {
        if (walked == base)
        {
            return true;
        }
    }
    return false;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR className)
{
    for (const CRuntimeClass* walked : RegisteredClasses())
    {
        if (className != nullptr && std::strcmp(walked->m_lpszClassName, className) == 0)
        {
            return const_cast<CRuntimeClass*>(walked);
        }
    }
    return nullptr;
}

CObject* AfxDynamicDownCast(CRuntimeClass* wanted, CObject* object)
{
    return object != nullptr && object->IsKindOf(wanted) ? object : nullptr;
}
