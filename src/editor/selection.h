// SPDX-License-Identifier: MIT
// What is selected: one control at a time, and the key of what it stands for.
#pragma once

#include <functional>
#include <string>

#include "base/failure.h"

namespace ornavo {

class Control;

bool IsCorner(const Control& control);  // of the shape

/// Knows no window: whoever owns it says how a corner of the shape shows that it is selected.
class Selection {
public:
    using ShowCorner = std::function<void(Control& corner, bool selected)>;
    explicit Selection(ShowCorner showCorner);

    Control* SelControl() const { return control_; }  // null: nothing is selected
    /// The Tag of the selected control; "" for nothing, and for a control without an element.
    const std::string& SelKey() const { return key_; }
    bool IsCorner() const;

    /// The control of an element or of a corner.
    void Select(Control& control);
    /// A control without an element: of the panel's sample, or the button for all of the skin.
    void SelectSample(Control& control);
    /// Another control shows the same key, since a composition deals all controls anew.
    void Follow(Control& control);
    /// The control has been removed. The key stays until the next selection.
    void ForgetControl();
    void Clear();

    /// While the scope lives, the handles go without the properties panel.
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
