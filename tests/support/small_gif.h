// SPDX-License-Identifier: MIT
// GIF files made in memory, since nothing here writes them: frames of one pixel, red and blue by turns.
#pragma once

#include <string>

namespace ornavo::testing {

inline std::string Bytes(std::initializer_list<int> values) {
    std::string bytes;
    for (const int value : values) bytes += static_cast<char>(value);
    return bytes;
}

inline std::string SmallGif(int frames) {
    const std::string size = Bytes({1, 0, 1, 0});
    std::string gif = "GIF89a" + size + Bytes({0x80, 0, 0, 0xFF, 0, 0, 0, 0, 0xFF});  // two colours
    for (int i = 0; i < frames; ++i) {
        gif += Bytes({0x21, 0xF9, 4, 0, 2, 0, 0, 0});          // 20 ms
        gif += Bytes({0x2C, 0, 0, 0, 0}) + size + Bytes({0});  // the frame's place and size
        gif += Bytes({2, 2, i % 2 ? 0x4C : 0x44, 1, 0});       // clear, the one pixel, end
    }
    return gif + ";";
}

}  // namespace ornavo::testing
