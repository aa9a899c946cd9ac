#pragma once

// Reaches windows as an assistive program does: through the platform's accessibility interface.

#include <afxwin.h>

#include <oleacc.h>

#include <memory>
#include <string>

struct Releaser
{
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface> using Held = std::unique_ptr<Interface, Releaser>;

// Null for a window that does not answer.
inline Held<IAccessible> Reached(HWND window)
{
    static const HRESULT ready = ::CoInitialize(nullptr);
    IAccessible* reached = nullptr;
    if (SUCCEEDED(ready))
    {
        ::AccessibleObjectFromWindow(window, DWORD(OBJID_CLIENT), IID_IAccessible,
                                     reinterpret_cast<void**>(&reached));
    }
    return Held<IAccessible>(reached);
}

inline VARIANT Child(long id)
{
    VARIANT child = {};
    child.vt = VT_I4;
    child.lVal = id;
    return child;
}

// What a window or a row answers. Where it refuses, -1 and "(error)"; a text that it lacks is
// "(none)".
struct Answers
{
    Answers(IAccessible& object, long child)
    {
        VARIANT number = {};
        role = SUCCEEDED(object.get_accRole(Child(child), &number)) ? number.lVal : -1;
        state = SUCCEEDED(object.get_accState(Child(child), &number)) ? number.lVal : -1;
        const auto text = [&](auto get) {
            BSTR given = nullptr;
            return SUCCEEDED((object.*get)(Child(child), &given)) ? Taken(given) : "(error)";
        };
        name = text(&IAccessible::get_accName);
        action = text(&IAccessible::get_accDefaultAction);
        value = text(&IAccessible::get_accValue);
        description = text(&IAccessible::get_accDescription);
    }

    long role;
    long state; // STATE_SYSTEM_ bits
    std::string name;
    std::string action;
    std::string value;
    std::string description;

private:
    static std::string Taken(BSTR text)
    {
        if (text == nullptr)
        {
            return "(none)";
        }
        const int length = int(::SysStringLen(text));
        std::string narrow(size_t(length) * 2, '\0');
        narrow.resize(size_t(::WideCharToMultiByte(CP_ACP, 0, text, length, narrow.data(),
                                                   int(narrow.size()), nullptr, nullptr)));
        ::SysFreeString(text);
        return narrow;
    }
};
