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

/// The first row that the condition holds for; null if there is none.
template <class Table, class Condition>
auto* FindRowIf(Table& table, Condition condition) {
    const auto row = std::ranges::find_if(table, condition);
    return row == std::ranges::end(table) ? nullptr : &*row;
}

template <class Table, class Value>
bool Contains(const Table& table, const Value& value) {
    return std::ranges::find(table, value) != std::ranges::end(table);
}

}  // namespace ornavo
