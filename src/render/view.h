// SPDX-License-Identifier: MIT
// The two ways of showing a layout.
#pragma once

namespace ornavo {

/// On the canvas every element can be edited; in the preview the layout behaves as in the jukebox.
enum class View { Canvas, Preview };

}  // namespace ornavo
