/// Counts what the calling thread takes from the heap.
#pragma once

#include <cstddef>

/// How often operator new, of whichever shared object, ran on this thread so far.
size_t allocationsOfThisThread();
