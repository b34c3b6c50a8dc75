// SPDX-License-Identifier: MIT
// Places the tool windows until the user moves one.
#pragma once

#include <optional>
#include <vector>

#include "platform/form.h"

namespace ornavo {

/// The tool windows and their automatic places.
class ToolPlaces {
public:
    /// Adds a tool, which must live as long as this object. If `section` of the settings has a place for it,
    /// the tool stays there; otherwise it gets a place beside the main window with at least this height in
    /// pixels.
    void Add(Form& tool, const char* section, int leastHeight = 0);
    /// Computes and sets the places. Does nothing once the user has moved one of the tools.
    void Arrange(const Form& main);

private:
    /// A tool window and its place.
    struct Tool {
        Form* form;
        bool hasPlace;  // the settings have a place for it
        int leastHeight;
        QPoint designed;            // its place if there is no room beside the main window
        std::optional<QPoint> put;  // its last automatic place
    };
    std::vector<Tool> tools_;
    bool userHasMovedOne_ = false;
};

}  // namespace ornavo
