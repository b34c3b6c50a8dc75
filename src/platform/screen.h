// SPDX-License-Identifier: MIT
// What we ask of the screen: the hourglass, and the counted lock round a rebuild.
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

/// Pairs nest. Qt paints on return to the event loop, so a rebuild appears at once anyway; the count tells a
/// rebuild in progress.
void BeginScreenUpdate();
void EndScreenUpdate();
int ScreenUpdateDepth();

}  // namespace ornavo
