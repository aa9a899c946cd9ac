#pragma once

#include "support/HostWindow.h"

#include <memory>
#include <utility>

// Something that a test does, under the name that its messages give.
template <class... Arguments> struct Act
{
    const char* name;
    std::function<void(Arguments...)> act;
};

// Has a host act the first time that it is told of a code, in the middle of the telling.
class OnceTold
{
public:
    OnceTold(HostWindow& host, UINT code, const std::function<void()>& act)
    {
        host.hook = [code, act, done = m_done](ToldMessage& told) {
            if (told.code == code && !std::exchange(*done, true))
            {
                act();
            }
        };
    }
    explicit operator bool() const { return *m_done; } // whether it has acted

private:
    std::shared_ptr<bool> m_done = std::make_shared<bool>(false);
};
