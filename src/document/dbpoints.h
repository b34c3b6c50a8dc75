// SPDX-License-Identifier: MIT
// One corner of a layout's window, and the polygon of all its corners.
#pragma once

#include <cstdint>

#include "base/keyed_collection.h"

namespace ornavo {

/// A corner. X and Y are pixels from the edges that HAlign and VAlign name.
struct dbPoint {
    std::int32_t X = 0, Y = 0, VAlign = 0, HAlign = 0, Order = 0;
};
using dbPointRef = std::shared_ptr<dbPoint>;

/// The corners of a layout. A point's key is "K" and the order it had when it was added, so it does not tell
/// the present position.
class dbPoints : public KeyedCollection<dbPoint> {
public:
    dbPointRef Add(std::int32_t order);
    void AddObject(dbPointRef point);
    void InsertObject(dbPointRef point, int after);     // after position `after`; 0 inserts at the start
    dbPointRef GetFromOrder(std::int32_t order) const;  // the first with this order, or null
};

}  // namespace ornavo
