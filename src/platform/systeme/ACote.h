#pragma once

#include <functional>

namespace systeme {

// Has `travail` done by a thread of its own, and calls `souffle` every few milliseconds until it is done. Then throws what
// it threw; errno is as it left it. For what waits for the disk, or reads files at length that nothing else here touches:
// neither the state nor a connection that `souffle` may use. Where no thread can be had it is done at once, without a breath.
void aCote(const std::function<void()>& travail, const std::function<void()>& souffle);

}  // namespace systeme
