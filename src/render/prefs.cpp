// SPDX-License-Identifier: MIT
#include "render/prefs.h"

#include <memory>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/value.h"
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

dbSkinPref& Pref(std::string_view key) {
    return *objSkin->dbSkinPrefs->Item(key);
}

std::string PrefText(std::string_view key) {
    return Pref(key).value.ToText();
}

int SafeLong(const std::string& text) {
    int number = 0;
    Attempt([&] { number = Value(text).ToLong(); });
    return number;
}

FontRef GetPrefFont(std::string_view key, double defaultSize) {
    dbSkinPref& pref = Pref(key);
    return StoredOrNew(pref.Font, pref.value.ToText(), defaultSize);
}

FontRef GetElementFont(dbLayoutElement& element, double defaultSize) {
    return StoredOrNew(element.Font, NumberText(element.Value), defaultSize);
}

float TextHeight(const Font& font) {
    return static_cast<float>(font.Size * 1.6);
}

}  // namespace ornavo
