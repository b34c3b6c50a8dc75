// SPDX-License-Identifier: MIT
#include "render/prefs.h"

#include <memory>

#include "base/numbers.h"
#include "document/current_skin.h"

namespace ornavo {
namespace {

FontRef StoredOrNew(FontRef& stored, std::string name, double defaultSize) {
    if (stored) return std::make_shared<Font>(*stored);
    stored = std::make_shared<Font>();
    stored->Name = std::move(name);
    stored->Size = defaultSize;
    return stored;
}

}  // namespace

std::string PrefText(std::string_view key) {
    return objSkin->dbSkinPrefs->Item(key)->value.ToText();
}

FontRef GetPrefFont(std::string_view key, double defaultSize) {
    dbSkinPref& pref = *objSkin->dbSkinPrefs->Item(key);
    return StoredOrNew(pref.Font, pref.value.ToText(), defaultSize);
}

FontRef GetElementFont(dbLayoutElement& element, double defaultSize) {
    return StoredOrNew(element.Font, NumberText(element.Value), defaultSize);
}

}  // namespace ornavo
