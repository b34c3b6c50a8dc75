// SPDX-License-Identifier: MIT
#include "check/picture_uses.h"

#include "base/failure.h"
#include "document/codes.h"
#include "document/skin_packaging.h"

namespace ornavo {

std::vector<PictureUse> PictureUses(const dbSkin& skin) {
    std::vector<PictureUse> uses;
    for (const dbSkinPrefRef& pref : *skin.dbSkinPrefs) {
        std::string name;
        if (pref->PrefType == KindPicture) Attempt([&] { name = pref->value.ToText(); });
        if (!name.empty()) uses.push_back({{"", pref->Key, "Value"}, name, pref.get(), nullptr});
    }
    for (const dbLayoutRef& layout : *skin.dbLayouts)
        for (const dbLayoutElementRef& element : InOrder(*layout->dbLayoutElements))
            for (const PictureField& field : PictureFields) {
                const std::string& name = (*element).*field.field;
                const std::string tag = std::string("Pic").append(field.name);
                if (!name.empty())
                    uses.push_back({{layout->Key, element->Key, tag}, name, element.get(), element});
            }
    return uses;
}

}  // namespace ornavo
