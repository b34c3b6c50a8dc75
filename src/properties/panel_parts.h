// SPDX-License-Identifier: MIT
// What the edits of rows work with.
#pragma once

#include <QTimer>

#include "editor/selection.h"
#include "editor/windows.h"
#include "properties/row_binding.h"
#include "properties/row_pools.h"

namespace ornavo {

/// References to the parts of the panel, for edits and dialogs.
struct PanelParts {
    PropertiesPanel& panel;
    Canvas& canvas;
    Selection& selection;
    Windows& windows;
    RowPools& pools;
    QTimer& tmrUpdate;        // 100 ms after the last edit, single shot
    bool IsBuilding = false;  // code is filling the rows; changes are not edits
    BoundObjectRef BoundObject = {};
    std::string lastPictures = {};  // folder of the last picture chosen in this run; "" if none
};

}  // namespace ornavo
