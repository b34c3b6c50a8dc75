// SPDX-License-Identifier: MIT
// What an edit of a row may touch.
#pragma once

#include <QTimer>

#include "editor/selection.h"
#include "editor/windows.h"
#include "properties/row_binding.h"
#include "properties/row_pools.h"

namespace ornavo {

struct PanelParts {
    PropertiesPanel& panel;
    Canvas& canvas;
    Selection& selection;
    Windows& windows;
    RowPools& pools;
    QTimer& tmrUpdate;        // 100 ms after the last edit, one shot
    bool IsBuilding = false;  // code fills the rows; nothing that changes in them is an edit
    BoundObjectRef BoundObject = {};
    std::string lastPictures = {};  // the folder of the picture last chosen in this run; "" for none
};

}  // namespace ornavo
