// SPDX-License-Identifier: MIT
#include "document/layout_edits.h"

#include <array>
#include <string_view>

#include "document/codes.h"

namespace ornavo {
namespace {

constexpr std::array<std::string_view, 5> KeyWords = {"", "Button", "Graphic", "Volume", "Info"};

void Renumber(dbLayoutElements& elements, std::int32_t first) {
    for (const dbLayoutElementRef& element : elements) element->Order = first++;
}

}  // namespace

std::int32_t GetTopOrder(const dbLayout& layout) {
    return layout.dbLayoutElements->Count() + 1;
}

void DeleteElement(dbLayout& layout, std::string_view key) {
    layout.dbLayoutElements->Remove(key);
    Renumber(*layout.dbLayoutElements, 1);
}

dbLayoutElementRef AddNumberedElement(dbLayout& layout, std::int32_t order, std::int32_t elementType) {
    if (elementType < TypeButton || elementType > TypeInfo) return nullptr;
    const std::string word(KeyWords[static_cast<std::size_t>(elementType)]);
    for (int i = 1;; ++i) {
        try {
            return layout.dbLayoutElements->Add(order, word + std::to_string(i), elementType, 0);
        } catch (const Failure& failure) {
            if (failure.number() != Failure::DuplicateKey) throw;
        }
    }
}

void BringElementToFront(dbLayout& layout, std::string_view key) {
    dbLayoutElements& elements = *layout.dbLayoutElements;
    const dbLayoutElementRef element = elements.Item(key);
    elements.Remove(key);
    elements.AddObject(element);
    Renumber(elements, 1);
}

void SendElementToBack(dbLayout& layout, std::string_view key) {
    dbLayoutElements& elements = *layout.dbLayoutElements;
    const dbLayoutElementRef element = elements.Item(key);
    elements.Remove(key);
    elements.AddObjectToFirst(element);
    Renumber(elements, 1);
}

}  // namespace ornavo
