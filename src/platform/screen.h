// SPDX-License-Identifier: MIT
// What we ask of the screen: the hourglass. A rebuild needs no lock, as Qt paints on return to the event
// loop.
#pragma once

namespace ornavo {

/// The hourglass while it lives, on the whole program.
class WaitPointer {
public:
    WaitPointer();
    ~WaitPointer();
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;
};

}  // namespace ornavo
