#include "paint/MeasuringDC.h"

#include <optional>

namespace {

// Made where it is first asked for. One that stood ready among a thread's variables would be copied
// there by the system's loader before the place of its class's functions is known, which are in
// another library: clang makes it so.
thread_local std::optional<CDC> t_measuring;

} // namespace

CDC& MeasuringDC()
{
    if (!t_measuring)
    {
        t_measuring.emplace();
    }
    if (t_measuring->GetSafeHdc() == nullptr)
    {
        t_measuring->CreateCompatibleDC(nullptr);
    }
    return *t_measuring;
}
