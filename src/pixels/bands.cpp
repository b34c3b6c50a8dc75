// SPDX-License-Identifier: MIT
#include "pixels/bands.h"

#include <algorithm>
#include <cstdint>
#include <exception>
#include <thread>
#include <vector>

namespace ornavo {

void InBands(int rows, int workers, const std::function<void(int first, int end)>& work) {
    const int bands = std::clamp(workers, 1, std::max(rows, 1));
    const auto begin = [&](int band) { return static_cast<int>(std::int64_t{rows} * band / bands); };
    std::vector<std::jthread> threads;  // joined by their destructors
    int band = 0;
    try {
        threads.reserve(static_cast<std::size_t>(bands));
        for (; band < bands - 1; ++band) threads.emplace_back(std::cref(work), begin(band), begin(band + 1));
    } catch (const std::exception&) {  // no more threads, or no memory for one
    }
    work(begin(band), rows);
}

}  // namespace ornavo
