#include "catalog/Controls.h"

#include "catalog/Makers.h"

namespace {

template <class Class> using Itself = Class;

} // namespace

const std::vector<Control>& Controls()
{
    static const std::vector<Control> controls = Makers<Itself>::All();
    return controls;
}
