// SPDX-License-Identifier: MIT
// What failed while a layout was composed, told once and not statement by statement.
#pragma once

#include <string>
#include <vector>

#include "base/failure.h"
#include "document/dblayouts.h"

namespace ornavo {

class ComposeReport {
public:
    /// Runs one step; a Failure in it ends the step and is kept, each description once.
    template <class Step>
    void Try(Step&& step) {
        try {
            step();
        } catch (const Failure& failure) {
            Keep(failure.description());
        }
    }

    /// Shows all descriptions in one box, unless the same ones were shown for this layout the last time that
    /// it was composed.
    void Show(const dbLayoutRef& layout) const;

private:
    void Keep(const std::string& description);
    std::vector<std::string> descriptions_;
};

}  // namespace ornavo
