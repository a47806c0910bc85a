// Spreads the same work on many things over the processors.
#pragma once

#include <cstddef>
#include <functional>

namespace docmodel {

// How many threads are worth their while for so many documents, this one among them.
size_t ThreadsFor(size_t count);

// Calls `work(i)` once for each i below `count`, on this thread and, where there is enough to do,
// on others, in no certain order, and returns when all is done. If calls raise, the rest may be
// left out, and one of the errors is raised here.
void InParallel(size_t count, const std::function<void(size_t)>& work);

}  // namespace docmodel
