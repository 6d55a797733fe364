#pragma once

#include <QtGlobal>

#include <functional>

namespace tarnloft {

// Calls `work(index)` once for each index below `count`, on all cores, and returns when all calls
// have. The calls come in any order, several at once, so each may write to what is its own alone.
// A small count runs on the calling thread.
void inParallel(qsizetype count, const std::function<void(qsizetype)>& work);

}  // namespace tarnloft
