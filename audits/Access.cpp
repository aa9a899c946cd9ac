#include "Access.h"

#include <oleacc.h>

namespace {

std::string Narrow(BSTR text)
{
    std::string narrow(size_t(::SysStringLen(text)) * 2, '\0');
    const int length = ::WideCharToMultiByte(CP_ACP, 0, text, int(::SysStringLen(text)),
                                             narrow.data(), int(narrow.size()), nullptr, nullptr);
    narrow.resize(size_t(length));
    ::SysFreeString(text);
    return narrow;
}

} // namespace

Answers AskWindow(const CWnd& window)
{
    Answers answers;
    IAccessible* object = nullptr;
    if (FAILED(::AccessibleObjectFromWindow(window.GetSafeHwnd(), DWORD(OBJID_CLIENT),
                                            IID_IAccessible, reinterpret_cast<void**>(&object))))
    {
        return answers;
    }
    VARIANT self = {};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    VARIANT answer = {};
    if (SUCCEEDED(object->get_accRole(self, &answer)) && answer.vt == VT_I4)
    {
        char role[60] = "";
        ::GetRoleText(DWORD(answer.lVal), role, sizeof(role));
        answers.role = role;
    }
    if (SUCCEEDED(object->get_accState(self, &answer)) && answer.vt == VT_I4)
    {
        answers.state = answer.lVal;
    }
    BSTR text = nullptr;
    if (SUCCEEDED(object->get_accName(self, &text)))
    {
        answers.name = Narrow(text);
    }
    text = nullptr;
    if (SUCCEEDED(object->get_accValue(self, &text)))
    {
        answers.value = Narrow(text);
    }
    object->Release();
    return answers;
}
