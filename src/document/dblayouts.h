// SPDX-License-Identifier: MIT
// One layout, which is one screen mode of the jukebox, and all layouts of a skin.
#pragma once

#include "document/dblayoutelements.h"
#include "document/dbpoints.h"

namespace ornavo {

/// One layout: its shape and its elements.
struct dbLayout {
    std::string Key;  // never changes after creation
    std::shared_ptr<ornavo::dbPoints> dbPoints = std::make_shared<ornavo::dbPoints>();
    std::string LayoutName;  // the name that the user sees
    std::shared_ptr<ornavo::dbLayoutElements> dbLayoutElements = std::make_shared<ornavo::dbLayoutElements>();

    /// Adds the four corners of the layout's rectangle, with the orders 1 to 4.
    void AddDummyPoints();
};
using dbLayoutRef = std::shared_ptr<dbLayout>;

/// The layouts of a skin.
class dbLayouts : public KeyedCollection<dbLayout> {
public:
    /// Adds a layout with its three standard elements and no points.
    dbLayoutRef Add(std::string_view key, std::string_view name);
    void AddObject(dbLayoutRef layout);
};

}  // namespace ornavo
