// SPDX-License-Identifier: MIT
#include "properties/row_binding.h"

#include "base/failure.h"
#include "document/current_skin.h"
#include "document/fields.h"

namespace ornavo {
namespace {

/// Calls `use` with the object that the key belongs to and the name of its member.
template <class Use>
auto WithOwner(const BoundObjectRef& bound, std::string_view key, Use use) -> decltype(use(dbPoint(), "")) {
    const std::string_view member = GetMethod(key);
    if (const std::string_view preference = GetClass(key); !preference.empty())
        return use(*objSkin->dbSkinPrefs->Item(preference), member);
    if (const auto* element = std::get_if<dbLayoutElementRef>(&bound); element && *element)
        return use(**element, member);
    if (const auto* point = std::get_if<dbPointRef>(&bound); point && *point) return use(**point, member);
    throw Failure(Failure::NothingSet, "Properties", "Nothing is bound");
}

}  // namespace

std::string_view GetClass(std::string_view key) {
    const std::size_t dot = key.find('.');
    return dot == std::string_view::npos ? std::string_view() : key.substr(0, dot);
}

std::string_view GetMethod(std::string_view key) {
    const std::size_t dot = key.find('.');
    return dot == std::string_view::npos ? key : key.substr(dot + 1);
}

Value GetRowValue(const BoundObjectRef& bound, std::string_view key) {
    return WithOwner(bound, key,
                     [](const auto& owner, std::string_view member) { return GetField(owner, member); });
}

void SetRowValue(const BoundObjectRef& bound, std::string_view key, const Value& value) {
    WithOwner(bound, key, [&](auto&& owner, std::string_view member) {
        SetField(owner, member, value);
        return 0;
    });
}

}  // namespace ornavo
