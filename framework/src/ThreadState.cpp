#include "ThreadState.h"

namespace framework {

ThreadState& CurrentThreadState()
{
    static thread_local ThreadState* state = nullptr;
    if (state == nullptr)
    {
        state = new ThreadState;
    }
    return *state;
}

int ModalDepth()
{
    return int(CurrentThreadState().modalWindows.size());
}

} // namespace framework
