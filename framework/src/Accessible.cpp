// What a window tells assistive programs: an object that forwards each question to the window, and
// the answers that the platform has for any window.

#include "framework/Exceptions.h"
#include "framework/Wnd.h"

#include <oleacc.h>

#include <type_traits>

namespace framework {

// Handed out for a window's client area. A client may keep it longer than the window lives, and the
// window may go in the middle of a call.
class AccessibleWindow final : public IAccessible
{
public:
    explicit AccessibleWindow(CWnd& window)
        : m_window(&window)
    {}

    void Disconnect() { m_window = nullptr; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override
    {
        if (object == nullptr)
        {
            return E_POINTER;
        }
        const bool known =
            wanted == IID_IUnknown || wanted == IID_IDispatch || wanted == IID_IAccessible;
        *object = known ? static_cast<IAccessible*>(this) : nullptr;
        if (!known)
        {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ULONG(::InterlockedIncrement(&m_count)); }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const LONG left = ::InterlockedDecrement(&m_count);
        if (left == 0)
        {
            delete this;
        }
        return ULONG(left);
    }

    // Scripts do not reach it; assistive programs call the interface itself.
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override
    {
        if (count == nullptr)
        {
            return E_POINTER;
        }
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override
    {
        return E_NOTIMPL;
    }

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override
    {
        return Ask(&CWnd::get_accParent, parent);
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override
    {
        return Ask(&CWnd::get_accChildCount, count);
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override
    {
        return Ask(&CWnd::get_accChild, child, object);
    }
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override
    {
        return Ask(&CWnd::get_accName, child, name);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override
    {
        return Ask(&CWnd::get_accValue, child, value);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override
    {
        return Ask(&CWnd::get_accDescription, child, description);
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override
    {
        return Ask(&CWnd::get_accRole, child, role);
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override
    {
        return Ask(&CWnd::get_accState, child, state);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override
    {
        return Ask(&CWnd::get_accHelp, child, help);
    }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override
    {
        return Ask(&CWnd::get_accHelpTopic, file, child, topic);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override
    {
        return Ask(&CWnd::get_accKeyboardShortcut, child, shortcut);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override
    {
        return Ask(&CWnd::get_accFocus, child);
    }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override
    {
        return Ask(&CWnd::get_accSelection, children);
    }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override
    {
        return Ask(&CWnd::get_accDefaultAction, child, action);
    }
    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override
    {
        return Ask(&CWnd::accSelect, flags, child);
    }
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                          VARIANT child) override
    {
        return Ask(&CWnd::accLocation, left, top, width, height, child);
    }
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override
    {
        return Ask(&CWnd::accNavigate, direction, start, end);
    }
    HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) override
    {
        return Ask(&CWnd::accHitTest, left, top, child);
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override
    {
        return Ask(&CWnd::accDoDefaultAction, child);
    }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override
    {
        return Ask(&CWnd::put_accName, child, name);
    }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override
    {
        return Ask(&CWnd::put_accValue, child, value);
    }

private:
    ~AccessibleWindow() = default;

    // Whether an argument is the place of an answer; a text may be given, too.
    template <class Argument>
    static constexpr bool IsPlace = std::is_pointer_v<Argument> && !std::is_same_v<Argument, BSTR>;

    template <class Argument> static bool IsMissing(Argument argument)
    {
        if constexpr (IsPlace<Argument>)
        {
            return argument == nullptr;
        }
        return false;
    }
    template <class Argument> static void Empty(Argument argument)
    {
        if constexpr (IsPlace<Argument>)
        {
            *argument = {};
        }
    }
    template <class Argument> static void Drop(Argument argument)
    {
        if constexpr (std::is_same_v<Argument, BSTR*>)
        {
            ::SysFreeString(*argument);
        }
        else if constexpr (std::is_same_v<Argument, VARIANT*>)
        {
            ::VariantClear(argument);
        }
        else if constexpr (std::is_same_v<Argument, IDispatch**>)
        {
            if (*argument != nullptr)
            {
                (*argument)->Release();
            }
        }
        Empty(argument);
    }

    // Asks the window. What one that ended meanwhile has answered before is not told.
    template <class... Parameters, class... Arguments>
    HRESULT Ask(HRESULT (CWnd::*question)(Parameters...), Arguments... arguments)
    {
        if ((IsMissing(arguments) || ...))
        {
            return E_POINTER;
        }
        (Empty(arguments), ...);
        const HRESULT answer = m_window == nullptr ? CO_E_OBJNOTCONNECTED : AnswerGuarded([&] {
            return (m_window->*question)(arguments...);
        });
        if (m_window == nullptr || answer == HasThrown)
        {
            (Drop(arguments), ...);
        }
        return m_window == nullptr ? CO_E_OBJNOTCONNECTED : answer;
    }

    static constexpr HRESULT HasThrown = E_UNEXPECTED;

    // Who asks may be another program, which knows nothing of exceptions.
    template <class Call> static HRESULT AnswerGuarded(Call call)
    {
        try
        {
            return call();
        } catch (CException* thrown)
        {
            thrown->Delete();
        } catch (...)
        {}
        return HasThrown;
    }

    CWnd* m_window; // null when it is gone
    LONG m_count = 1;
};

} // namespace framework

using framework::AccessibleWindow;

LRESULT CWnd::OnGetObject(WPARAM wParam, LPARAM lParam)
{
    if (!m_answersAccessibility || LONG(lParam) != LONG(OBJID_CLIENT))
    {
        return Default();
    }
    if (m_accessible == nullptr)
    {
        m_accessible = new AccessibleWindow(*this);
    }
    return ::LresultFromObject(IID_IAccessible, wParam, static_cast<IAccessible*>(m_accessible));
}

void CWnd::EndAccessibility()
{
    if (m_accessible != nullptr)
    {
        AccessibleWindow* const accessible = m_accessible;
        m_accessible = nullptr;
        accessible->Disconnect();
        accessible->Release();
    }
}

// What the platform says of any window -----------------------------------------------------------

namespace {

template <class... Parameters, class... Arguments>
HRESULT AskPlatform(HWND window, HRESULT (STDMETHODCALLTYPE IAccessible::*question)(Parameters...),
                    Arguments... arguments)
{
    IAccessible* standard = nullptr;
    const HRESULT made = ::CreateStdAccessibleObject(window, OBJID_CLIENT, IID_IAccessible,
                                                     reinterpret_cast<void**>(&standard));
    if (FAILED(made) || standard == nullptr)
    {
        return FAILED(made) ? made : E_FAIL;
    }
    const HRESULT answer = (standard->*question)(arguments...);
    standard->Release();
    return answer;
}

} // namespace

// The parent of the client area is the window with its frame.
HRESULT CWnd::get_accParent(IDispatch** parent)
{
    return AskPlatform(m_hWnd, &IAccessible::get_accParent, parent);
}

HRESULT CWnd::get_accChildCount(long* count)
{
    return AskPlatform(m_hWnd, &IAccessible::get_accChildCount, count);
}

HRESULT CWnd::get_accChild(VARIANT child, IDispatch** object)
{
    return AskPlatform(m_hWnd, &IAccessible::get_accChild, child, object);
}

HRESULT CWnd::get_accName(VARIANT child, BSTR* name)
{
    return AskPlatform(m_hWnd, &IAccessible::get_accName, child, name);
}

HRESULT CWnd::get_accValue(VARIANT child, BSTR* value)
{
    return AskPlatform(m_hWnd, &IAccessible::get_accValue, child, value);
}

HRESULT CWnd::get_accDescription(VARIANT child, BSTR* description)
{
    return AskPlatform(m_hWnd, &IAccessible::get_accDescription, child, description);
}

HRESULT CWnd::get_accRole(VARIANT child, VARIANT* role)
{
    return AskPlatform(m_hWnd, &IAccessible::get_accRole, child, role);
}

HRESULT CWnd::get_accState(VARIANT child, VARIANT* state)
{
    return AskPlatform(m_hWnd, &IAccessible::get_accState, child, state);
}

HRESULT CWnd::get_accHelp(VARIANT child, BSTR* help)
{
    return AskPlatform(m_hWnd, &IAccessible::get_accHelp, child, help);
}

HRESULT CWnd::get_accHelpTopic(BSTR* file, VARIANT child, long* topic)
{
    return AskPlatform(m_hWnd, &IAccessible::get_accHelpTopic, file, child, topic);
}

HRESULT CWnd::get_accKeyboardShortcut(VARIANT child, BSTR* shortcut)
{
    return AskPlatform(m_hWnd, &IAccessible::get_accKeyboardShortcut, child, shortcut);
}

HRESULT CWnd::get_accFocus(VARIANT* child)
{
    return AskPlatform(m_hWnd, &IAccessible::get_accFocus, child);
}

HRESULT CWnd::get_accSelection(VARIANT* children)
{
    return AskPlatform(m_hWnd, &IAccessible::get_accSelection, children);
}

HRESULT CWnd::get_accDefaultAction(VARIANT child, BSTR* action)
{
    return AskPlatform(m_hWnd, &IAccessible::get_accDefaultAction, child, action);
}

HRESULT CWnd::accSelect(long flags, VARIANT child)
{
    return AskPlatform(m_hWnd, &IAccessible::accSelect, flags, child);
}

HRESULT CWnd::accLocation(long* left, long* top, long* width, long* height, VARIANT child)
{
    return AskPlatform(m_hWnd, &IAccessible::accLocation, left, top, width, height, child);
}

HRESULT CWnd::accNavigate(long direction, VARIANT start, VARIANT* end)
{
    return AskPlatform(m_hWnd, &IAccessible::accNavigate, direction, start, end);
}

HRESULT CWnd::accHitTest(long left, long top, VARIANT* child)
{
    return AskPlatform(m_hWnd, &IAccessible::accHitTest, left, top, child);
}

HRESULT CWnd::accDoDefaultAction(VARIANT child)
{
    return AskPlatform(m_hWnd, &IAccessible::accDoDefaultAction, child);
}

HRESULT CWnd::put_accName(VARIANT child, BSTR name)
{
    return AskPlatform(m_hWnd, &IAccessible::put_accName, child, name);
}

HRESULT CWnd::put_accValue(VARIANT child, BSTR value)
{
    return AskPlatform(m_hWnd, &IAccessible::put_accValue, child, value);
}
