// SPDX-License-Identifier: MIT
#include "document/shape_edits.h"

#include <charconv>

namespace ornavo {
namespace {

constexpr int LeastToDelete = 3;  // corners; so at least two are left

}  // namespace

std::string TagOfPoint(std::int32_t order) {
    return "K" + std::to_string(order);
}

std::int32_t OrderOfTag(std::string_view tag) {
    if (tag.empty()) return 0;
    std::int32_t order = 0;
    const char* end = tag.data() + tag.size();
    const auto [stop, error] = std::from_chars(tag.data() + 1, end, order);
    return error == std::errc() && stop == end ? order : 0;
}

void RenumberPoints(dbPoints& points) {
    std::int32_t order = 0;
    for (const dbPointRef& point : points) point->Order = ++order;
}

void DeleteShapePoint(dbLayout& layout, std::string_view tag) {
    if (layout.dbPoints->Count() < LeastToDelete) return;
    const std::int32_t order = OrderOfTag(tag);
    const dbPointRef removed = order > 0 ? layout.dbPoints->GetFromOrder(order) : nullptr;
    if (!removed) return;
    auto kept = std::make_shared<dbPoints>();
    for (const dbPointRef& point : *layout.dbPoints) {
        if (point == removed || point->Order <= 0) continue;
        const dbPointRef copy = kept->Add(kept->Count() + 1);
        copy->X = point->X;
        copy->Y = point->Y;
        copy->VAlign = point->VAlign;
        copy->HAlign = point->HAlign;
    }
    layout.dbPoints = std::move(kept);
}

}  // namespace ornavo
