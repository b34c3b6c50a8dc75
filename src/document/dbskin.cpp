// SPDX-License-Identifier: MIT
#include "document/dbskin.h"

#include <string_view>
#include <utility>

#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "document/catalogue.h"

namespace ornavo {

namespace {

Value DefaultOf(const CatalogueRow& row) {
    if (const auto* text = std::get_if<std::string_view>(&row.value)) return Value(std::string(*text));
    if (const auto* flag = std::get_if<bool>(&row.value)) return Value(*flag);
    if (const auto* whole = std::get_if<std::int32_t>(&row.value)) return Value(*whole);
    return Value(std::get<double>(row.value));
}

}  // namespace

dbSkin::dbSkin()
    : dbSkinPrefs(std::make_shared<ornavo::dbSkinPrefs>()), dbLayouts(std::make_shared<ornavo::dbLayouts>()) {
    SetupSkinPrefs();
}

void dbSkin::SetBasePath(std::string_view folder) {
    basePath_ = WithSeparator(folder);
}

std::string dbSkin::SkinFolder() const {
    return WithSeparator(basePath_ + SkinName);
}

std::string dbSkin::SkinFile() const {
    return SkinFolder().append(SettingsFileName);
}

void dbSkin::SetupSkinPrefs() {
    for (const CatalogueRow& row : Catalogue)
        if (!dbSkinPrefs->Find(row.key)) dbSkinPrefs->Add(row.key, row.caption, DefaultOf(row), row.prefType);
}

dbLayoutRef dbSkin::AddNewLayout(std::string_view name) {
    return dbLayouts->Add(GetLayoutKey(name), name);
}

std::string dbSkin::GetLayoutKey(std::string_view name) {
    if (IsNumeric(name)) return std::string("L").append(name);
    return ReplaceAll(std::string(name), " ", "_");
}

}  // namespace ornavo
