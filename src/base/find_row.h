// SPDX-License-Identifier: MIT
// Searching small tables.
#pragma once

#include <algorithm>
#include <iterator>

namespace ornavo {

/// The first row with this value in the column; null if there is none.
template <class Table, class Column, class Value>
auto* FindRow(Table& table, Column column, const Value& value) {
    const auto row = std::ranges::find(table, value, column);
    return row == std::ranges::end(table) ? nullptr : &*row;
}

}  // namespace ornavo
