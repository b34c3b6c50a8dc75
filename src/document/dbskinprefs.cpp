// SPDX-License-Identifier: MIT
#include "document/dbskinprefs.h"

#include <utility>

namespace ornavo {

dbSkinPrefRef dbSkinPrefs::Add(std::string_view key, std::string_view caption, Value value,
                               std::int32_t prefType) {
    auto pref = std::make_shared<dbSkinPref>();
    pref->Key = key;
    pref->Caption = caption;
    pref->value = std::move(value);
    pref->PrefType = prefType;
    AddObject(pref);
    return pref;
}

void dbSkinPrefs::AddObject(dbSkinPrefRef pref) {
    const std::string_view key = pref->Key;
    Append(key, std::move(pref));
}

}  // namespace ornavo
