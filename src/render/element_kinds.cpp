// SPDX-License-Identifier: MIT
#include "render/element_kinds.h"

#include <array>

#include "base/find_row.h"

namespace ornavo {
namespace {

constexpr std::array Kinds = {
    ElementFamily{"Element", ElementKind::Button, false},
    ElementFamily{"pMain", ElementKind::Main, true},
    ElementFamily{"pInfo", ElementKind::Info, false},
    ElementFamily{"tbx_Search", ElementKind::SearchBox, true},
    ElementFamily{"Scrollframe", ElementKind::Scrollframe, true},
    ElementFamily{"ScrollBar", ElementKind::Scrollframe, true},
};

}  // namespace

const ElementFamily* FamilyOf(const Control& control) {
    return FindRow(Kinds, &ElementFamily::control, control.Name);
}

}  // namespace ornavo
