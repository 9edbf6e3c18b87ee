#pragma once

#include <functional>

namespace dao {

// What a long reading calls every few milliseconds, nothing of the base being half done: the window lives on in it. It may
// read the base, and changes nothing in it. None: the reading goes on in one go.
using Souffle = std::function<void()>;

}  // namespace dao
