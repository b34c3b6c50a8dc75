// SPDX-License-Identifier: MIT
// Where the tool windows stand as long as the user has not said so.
#pragma once

#include <optional>
#include <vector>

#include "platform/form.h"

namespace ornavo {

class ToolPlaces {
public:
    /// The tool lives as long as this does. It stays where its settings in `section` want it, if they do;
    /// otherwise it gets a place beside the main window, at least so high (pixels).
    void Add(Form& tool, const char* section, int leastHeight = 0);
    /// Reckons the places anew. No more once the user has moved one of the tools.
    void Arrange(const Form& main);

private:
    struct Tool {
        Form* form;
        bool hasPlace;  // of its own, from the settings
        int leastHeight;
        QPoint designed;            // where it stands if there is no room beside the main window
        std::optional<QPoint> put;  // where it was last put
    };
    std::vector<Tool> tools_;
    bool userHasMovedOne_ = false;
};

}  // namespace ornavo
