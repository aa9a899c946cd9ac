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
    return CurrentThreadState().modalDepth;
}

} // namespace framework
