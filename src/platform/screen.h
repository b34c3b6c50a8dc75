// SPDX-License-Identifier: MIT
// The wait pointer.
#pragma once

namespace ornavo {

/// Shows the wait pointer over the whole program while it lives. Painting needs no lock during a rebuild,
/// because Qt paints on return to the event loop.
class WaitPointer {
public:
    WaitPointer();
    ~WaitPointer();
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;
};

}  // namespace ornavo
