#pragma once

/// The number of blocks that the process has taken from the heap so far: new, malloc, calloc and realloc, of
/// all libraries in it.
unsigned long CountAllocations();
