// SPDX-License-Identifier: MIT
// Which controls show an element, by their names.
#pragma once

#include "platform/control.h"

namespace ornavo {

enum class ElementKind { Button, Main, Info, SearchBox, Scrollframe };

struct ElementFamily {
    std::string_view control;  // the name of the control or of its pool
    ElementKind kind;
    bool isStandard;  // the layout's own: neither cloned nor deleted
};

/// Null for any other control. The bar belongs to the family of its frame.
const ElementFamily* FamilyOf(const Control& control);

/// A row of a table that has one for each kind.
template <class Table>
auto& RowOf(Table& table, ElementKind kind) {
    return table[static_cast<std::size_t>(kind)];
}

}  // namespace ornavo
