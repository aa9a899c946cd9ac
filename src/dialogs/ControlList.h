#pragma once

#include <afxwin.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace dialogs {

// Objects for the windows on a dialog that outlive the next idle moment, as the framework's
// temporary ones do not. A window with an object of its own is given that one.
class ControlList
{
public:
    CWnd* ObjectFor(HWND window)
    {
        if (CWnd* const permanent = CWnd::FromHandlePermanent(window))
        {
            m_known.push_back({permanent, window});
            return permanent;
        }
        m_standIns.push_back(std::make_unique<StandIn>(window));
        m_known.push_back({m_standIns.back().get(), window});
        return m_standIns.back().get();
    }

    // Takes windows that have gone out of the list and puts objects in that were attached since,
    // as a host does that subclasses its controls late. Entries not from here are left alone.
    void Refresh(std::vector<CWnd*>& controls)
    {
        std::erase_if(controls, [this](CWnd*& control) {
            const auto known = std::find_if(m_known.begin(), m_known.end(), [&](const Known& each) {
                return each.object == control;
            });
            if (known == m_known.end())
            {
                return false;
            }
            if (!::IsWindow(known->window))
            {
                return true;
            }
            CWnd* const now = CWnd::FromHandlePermanent(known->window);
            if (now != known->object && (now != nullptr || !IsStandIn(known->object)))
            {
                const HWND window = known->window;
                m_known.erase(known);
                control = ObjectFor(window);
            }
            return false;
        });
    }

    void Clear()
    {
        m_known.clear();
        m_standIns.clear();
    }

private:
    // Names a window and owns nothing.
    class StandIn : public CWnd
    {
    public:
        explicit StandIn(HWND window) { m_hWnd = window; }
        StandIn(const StandIn&) = delete;
        StandIn& operator=(const StandIn&) = delete;
        ~StandIn() override { m_hWnd = nullptr; }
    };
    struct Known
    {
        const CWnd* object; // compared, followed only while its window lives
        HWND window;
    };

    bool IsStandIn(const CWnd* object) const
    {
        return std::any_of(m_standIns.begin(), m_standIns.end(),
                           [=](const auto& each) { return each.get() == object; });
    }

    std::vector<Known> m_known;
    std::vector<std::unique_ptr<StandIn>> m_standIns;
};

// The windows on a window, in the system's order, added to a list anew. For holders that have no
// say in what belongs to it.
inline void ListControls(HWND window, ControlList& list, std::vector<CWnd*>& controls)
{
    struct Listing
    {
        ControlList& list;
        std::vector<CWnd*>& controls;
    } listing = {list, controls};
    list.Clear();
    controls.clear();
    if (window != nullptr)
    {
        ::EnumChildWindows(
            window,
            [](HWND child, LPARAM data) -> BOOL {
                auto* const to = reinterpret_cast<Listing*>(data);
                to->controls.push_back(to->list.ObjectFor(child));
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&listing));
    }
}

} // namespace dialogs
