#pragma once

#include <chrono>
#include <functional>

namespace systeme {

// The time that goes by: a service, so that a test can hold it, or move it on.
using Montre = std::function<std::chrono::steady_clock::time_point()>;

}  // namespace systeme
