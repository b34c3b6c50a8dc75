// SPDX-License-Identifier: MIT
// Which control shows which kind of element, by the control's name.
#pragma once

#include "platform/control.h"

namespace ornavo {

enum class ElementKind { Button, Main, Info, SearchBox, Scrollframe };

/// A control or pool that shows elements.
struct ElementFamily {
    std::string_view control;  // the name of the control or of its pool
    ElementKind kind;
    bool isStandard;  // part of every layout: not cloned or deleted
};

/// Null for any other control. The scroll bar has the kind of its frame.
const ElementFamily* FamilyOf(const Control& control);

/// The row for a kind of a table with one row per kind.
template <class Table>
auto& RowOf(Table& table, ElementKind kind) {
    return table[static_cast<std::size_t>(kind)];
}

}  // namespace ornavo
