// SPDX-License-Identifier: MIT
// Look-ups in small tables.
#pragma once

#include <algorithm>
#include <iterator>

namespace ornavo {

/// The first row whose column has the value; null where there is none.
template <class Table, class Column, class Value>
auto* FindRow(Table& table, Column column, const Value& value) {
    const auto row = std::ranges::find(table, value, column);
    return row == std::ranges::end(table) ? nullptr : &*row;
}

}  // namespace ornavo
