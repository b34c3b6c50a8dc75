// SPDX-License-Identifier: MIT
// Collects what failed in a composition, to tell it once instead of step by step.
#pragma once

#include <string>
#include <vector>

#include "base/failure.h"
#include "document/dblayouts.h"

namespace ornavo {

/// What the last composition has told: a layout and its failures. A composition on the side puts it back.
struct ToldReport {
    std::weak_ptr<dbLayout> layout;
    std::vector<std::string> descriptions;
};
ToldReport& toldReport();

/// The failures of one composition.
class ComposeReport {
public:
    /// Runs one step. A Failure ends the step and is noted; each description is noted once.
    template <class Step>
    void Try(Step&& step) {
        try {
            step();
        } catch (const Failure& failure) {
            Keep(failure.description());
        }
    }

    /// Shows all descriptions in one box, unless the previous composition of this layout has shown the same.
    void Show(const dbLayoutRef& layout) const;

private:
    void Keep(const std::string& description);
    std::vector<std::string> descriptions_;
};

}  // namespace ornavo
