// SPDX-License-Identifier: MIT
#include "document/dbpoints.h"

#include <algorithm>
#include <string>
#include <utility>

namespace ornavo {

namespace {

std::string KeyOf(const dbPoint& point) {
    return std::string("K").append(std::to_string(point.Order));
}

}  // namespace

dbPointRef dbPoints::Add(std::int32_t order) {
    auto point = std::make_shared<dbPoint>();
    point->Order = order;
    AddObject(point);
    return point;
}

void dbPoints::AddObject(dbPointRef point) {
    const std::string key = KeyOf(*point);
    Append(key, std::move(point));
}

void dbPoints::InsertObject(dbPointRef point, int after) {
    const std::string key = KeyOf(*point);
    Insert(key, std::move(point), after + 1);
}

dbPointRef dbPoints::GetFromOrder(std::int32_t order) const {
    for (const dbPointRef& point : *this)
        if (point->Order == order) return point;
    return nullptr;
}

}  // namespace ornavo
