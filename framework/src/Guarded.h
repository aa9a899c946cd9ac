#pragma once

#include "framework/Exceptions.h"

#include <exception>
#include <new>

namespace framework {

// Lets the thread answer for the handler of this message, which threw.
LRESULT AnswerThrown(CException& thrown, const MSG& message);
LRESULT AnswerThrown(const std::exception& thrown, const MSG& message);

// Calls what handles a message. What it throws must not unwind the platform, which called us.
template <class Call> LRESULT CallGuarded(const MSG& message, Call call)
{
    try
    {
        return call();
    } catch (CException* thrown)
    {
        const LRESULT answer = AnswerThrown(*thrown, message);
        thrown->Delete();
        return answer;
    } catch (const std::bad_alloc&)
    {
        CMemoryException thrown(FALSE);
        return AnswerThrown(thrown, message);
    } catch (const std::exception& thrown)
    {
        return AnswerThrown(thrown, message);
    }
}

} // namespace framework
