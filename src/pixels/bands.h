// SPDX-License-Identifier: MIT
// Divides work on many rows among the processors.
#pragma once

#include <functional>

namespace ornavo {

/// Calls `work(first, end)` for bands of neighbouring rows that together are 0 to `rows`, `workers` of them
/// or as many as there are rows, each on a thread of its own but the last, which the caller does. All are
/// done when it returns. The caller also does the bands for which there is no thread. The work must not
/// throw, and a band must not touch what another writes.
void InBands(int rows, int workers, const std::function<void(int first, int end)>& work);

}  // namespace ornavo
