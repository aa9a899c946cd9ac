#include "paint/MeasuringDC.h"

namespace {

thread_local CDC t_measuring;

} // namespace

CDC& MeasuringDC()
{
    if (t_measuring.GetSafeHdc() == nullptr)
    {
        t_measuring.CreateCompatibleDC(nullptr);
    }
    return t_measuring;
}
