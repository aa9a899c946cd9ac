#pragma once

#include "catalog/Controls.h"

// Windows that the catalog does not make, because they need templates of the program or a list to
// stand on: a form view, a sheet with its page, a tool bar.
const std::vector<Control>& Forms();
