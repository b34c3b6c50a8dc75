// SPDX-License-Identifier: MIT
// One layout, which is one screen mode of the jukebox, and all layouts of a skin.
#pragma once

#include "document/dblayoutelements.h"
#include "document/dbpoints.h"

namespace ornavo {

struct dbLayout {
    std::string Key;  // does not change after creation
    std::shared_ptr<ornavo::dbPoints> dbPoints = std::make_shared<ornavo::dbPoints>();
    std::string LayoutName;  // what the user sees
    std::shared_ptr<ornavo::dbLayoutElements> dbLayoutElements = std::make_shared<ornavo::dbLayoutElements>();

    /// The four corners of the layout's rectangle, orders 1 to 4.
    void AddDummyPoints();
};
using dbLayoutRef = std::shared_ptr<dbLayout>;

class dbLayouts : public KeyedCollection<dbLayout> {
public:
    /// A new layout with its three standard elements and no points.
    dbLayoutRef Add(std::string_view key, std::string_view name);
    void AddObject(dbLayoutRef layout);
};

}  // namespace ornavo
