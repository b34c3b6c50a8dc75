// SPDX-License-Identifier: MIT
// The selection: one control at a time, and the key of its element.
#pragma once

#include <functional>
#include <string>

#include "base/failure.h"

namespace ornavo {

class Control;

bool IsCorner(const Control& control);  // whether the control is a corner of the shape

/// The selected control and its key. Uses no window: its owner passes in how to mark a selected corner.
class Selection {
public:
    using ShowCorner = std::function<void(Control& corner, bool selected)>;
    explicit Selection(ShowCorner showCorner);

    Control* SelControl() const { return control_; }  // null: nothing is selected
    /// The Tag of the selected control; "" without a selection and for a control without an element.
    const std::string& SelKey() const { return key_; }
    bool IsCorner() const;

    /// Selects the control of an element or of a corner.
    void Select(Control& control);
    /// Selects a control without an element: one of the sample panel, or the button for the whole skin.
    void SelectSample(Control& control);
    /// Selects another control for the same key, because a composition hands out all controls anew.
    void Follow(Control& control);
    /// Call when the control has been removed. The key is kept until the next selection.
    void ForgetControl();
    void Clear();

    /// While the result lives, removing the handles leaves the properties panel open.
    [[nodiscard]] Raised KeepPropertiesOpen() { return Raised(keepsPropertiesOpen_); }
    bool KeepsPropertiesOpen() const { return keepsPropertiesOpen_; }

private:
    void Become(Control* control);

    ShowCorner showCorner_;
    Control* control_ = nullptr;
    std::string key_;
    bool keepsPropertiesOpen_ = false;
};

}  // namespace ornavo
