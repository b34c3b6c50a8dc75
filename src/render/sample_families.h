// SPDX-License-Identifier: MIT
// The table of the sample panel's controls, for clicks, sheets, edits and compositions. To add a sample
// control, add a member to SamplePanel and a row here.
#pragma once

#include <span>
#include <string_view>

#include "render/sample_family.h"

namespace ornavo {

std::span<const SampleFamily> SampleFamilies();

/// The family of the control with this name; null for any other control.
const SampleFamily* FindSample(std::string_view controlName);

/// The control that is selected when `clicked` is clicked: the family's button, or the template of its pool.
Control& SelectedBy(Control& clicked, SamplePanel& sample, const SampleFamily& family);

/// Styles the family's button by its preferences; does nothing for a family without a button.
void StyleButton(SamplePanel& sample, const SampleFamily& family);

/// Call after an edit of `prefix` + "_TransparentColor": the family's controls then take the stored colour
/// when they are next styled, even where they would otherwise store their own.
void TakeTransparentColor(SamplePanel& sample, std::string_view prefix);

}  // namespace ornavo
