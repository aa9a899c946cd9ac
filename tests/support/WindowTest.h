#pragma once

// Whatever most tests need: they include this one.

#include "support/Acts.h"
#include "support/Fenced.h"
#include "support/Input.h"
#include "support/LiveObjects.h"
#include "support/MessageLog.h"
#include "support/ModeScope.h"
#include "support/Repaint.h"
#include "support/Rows.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <climits>
#include <functional>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

// A test with a host window and controls on it. Afterwards nothing may be left: no window, capture,
// pressed button, registered window or WM_QUIT. What is left fails the test and is cleared away, so
// that the next one begins clean, in the standard mode. A fault of memory access fails it, too.
class WindowTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    HostWindow& Host() { return *m_host; }

    // A visible child of the host that the fixture owns. With id 0 it gets the next one from
    // FirstId on. The control's Create takes (style, place, parent, id) or, first, a text.
    template <class Control>
    Control& Add(const CRect& place, DWORD style = 0, const char* text = "", UINT id = 0)
    {
        return Add(std::make_unique<Control>(), place, style, text, id);
    }

    // The same for one whose constructor takes something.
    template <class Control>
    Control& Add(std::unique_ptr<Control> made, const CRect& place, DWORD style = 0,
                 const char* text = "", UINT id = 0)
    {
        Control& control = *made;
        m_owned.push_back(std::move(made));
        const DWORD childStyle = style | WS_CHILD | WS_VISIBLE;
        const UINT itsId = id != 0 ? id : FirstId + UINT(m_owned.size()) - 1;
        BOOL created = FALSE;
        if constexpr (requires { control.Create(childStyle, place, &Host(), itsId); })
        {
            created = control.Create(childStyle, place, &Host(), itsId);
        }
        else if constexpr (requires { control.Create(text, childStyle, place, &Host(), itsId); })
        {
            created = control.Create(text, childStyle, place, &Host(), itsId);
        }
        else
        {
            created = control.Create(nullptr, text, childStyle, place, &Host(), itsId);
        }
        EXPECT_TRUE(created) << "the control could not be created";
        PumpAll();
        return control;
    }

    // Ends one control (and its window) before the others.
    void Remove(const CWnd& control);

    static constexpr UINT FirstId = 1000;

private:
    AccessFaults m_faults;
    std::unique_ptr<HostWindow> m_host;
    std::vector<std::unique_ptr<CWnd>> m_owned;
};
