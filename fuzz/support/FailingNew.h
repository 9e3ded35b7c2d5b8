#pragma once

namespace fuzz {

/// Counts down with each allocation of C++; the one that brings it to 0 fails. 0 while none is to fail.
extern long allocationsLeft;
/// Whether it has come to that.
extern bool allocationFailed;

} // namespace fuzz
