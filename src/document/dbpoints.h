// SPDX-License-Identifier: MIT
// One corner of a layout's window, and the polygon that they make.
#pragma once

#include <cstdint>

#include "base/keyed_collection.h"

namespace ornavo {

/// X and Y are pixels from the edge that HAlign and VAlign name.
struct dbPoint {
    std::int32_t X = 0, Y = 0, VAlign = 0, HAlign = 0, Order = 0;
};
using dbPointRef = std::shared_ptr<dbPoint>;

/// The key is "K" and the order that the point had when it was added; it says nothing about its place.
class dbPoints : public KeyedCollection<dbPoint> {
public:
    dbPointRef Add(std::int32_t order);
    void AddObject(dbPointRef point);
    void InsertObject(dbPointRef point, int after);
    dbPointRef GetFromOrder(std::int32_t order) const;  // the first with it, or null
};

}  // namespace ornavo
