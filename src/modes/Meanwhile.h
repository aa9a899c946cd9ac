#pragma once

#include "modes/WindowAlive.h"

#include <utility>

// Sets a flag that ends with a window object, for the life of the guard, and puts back what it was
// before if the object is still there: what is called meanwhile may have ended it.
class Meanwhile
{
public:
    Meanwhile(const CWnd& watched, bool& flag)
        : m_alive(watched)
        , m_flag(flag)
        , m_outer(std::exchange(flag, true))
    {}

    Meanwhile(const Meanwhile&) = delete;
    Meanwhile& operator=(const Meanwhile&) = delete;

    ~Meanwhile()
    {
        if (m_alive)
        {
            m_flag = m_outer;
        }
    }

private:
    const WindowAlive m_alive;
    bool& m_flag;
    const bool m_outer;
};
