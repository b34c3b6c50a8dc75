// SPDX-License-Identifier: MIT
#include "document/dblayoutelements.h"

#include <utility>

namespace ornavo {

dbLayoutElementRef dbLayoutElements::Add(std::int32_t order, std::string_view key, std::int32_t elementType,
                                         std::int32_t actionType) {
    auto element = std::make_shared<dbLayoutElement>();
    element->Order = order;
    element->Key = key;
    element->ElementType = elementType;
    element->ActionType = actionType;
    element->TransparentColor = ButtonFace;
    AddObject(element);
    return element;
}

void dbLayoutElements::AddObject(dbLayoutElementRef element) {
    const std::string_view key = element->Key;
    Append(key, std::move(element));
}

void dbLayoutElements::AddObjectToFirst(dbLayoutElementRef element) {
    const std::string_view key = element->Key;
    Insert(key, std::move(element), 1);
}

}  // namespace ornavo
