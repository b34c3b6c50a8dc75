// SPDX-License-Identifier: MIT
#include "properties/pref_sheet.h"

#include "base/text.h"
#include "render/sample_families.h"

namespace ornavo {
namespace {

SheetRow Heading(std::string caption) {
    return {std::move(caption), KindHeading, 0, ""};
}

bool Holds(std::string_view caption, std::string_view lowerText) {
    return LowerText(caption).find(lowerText) != std::string::npos;
}

SheetRow RowOf(const dbSkinPref& pref) {
    if (pref.PrefType == KindHeading) return Heading(pref.Caption);
    if (pref.PrefType == KindFont)
        return {pref.Caption, KindFont, pref.Font ? pref.Font->Name : "", pref.Key + ".Font"};
    return {pref.Caption, pref.PrefType, pref.value, pref.Key + ".Value"};
}

}  // namespace

void AddSkinProp(Sheet& sheet, const dbSkinPrefs& prefs, std::string_view prefix, std::string_view suffix) {
    const std::string ofBoth = std::string(prefix) + "_";
    const std::string ofOne = std::string(prefix).append(suffix) + "_";
    bool picturesHeadingDone = false, miscHeadingDone = false;
    for (const dbSkinPrefRef& pref : prefs) {
        if (!pref->Key.starts_with(ofBoth) && !pref->Key.starts_with(ofOne)) continue;
        if (pref->PrefType != KindHeading && pref->PrefType != KindFont) {
            if (!picturesHeadingDone && Holds(pref->Caption, "normal")) {
                sheet.push_back(Heading("Pictures"));
                picturesHeadingDone = true;
            } else if (!miscHeadingDone && Holds(pref->Caption, "show border")) {
                sheet.push_back(Heading("Misc"));
                miscHeadingDone = true;
            }
        }
        sheet.push_back(RowOf(*pref));
    }
}

Sheet SampleSheet(const dbSkinPrefs& prefs, std::string_view controlName, const Rect& bounds) {
    const SampleFamily* family = FindSample(controlName);
    if (!family) return {};
    std::string heading(family->heading);
    if (family->headingSize == HeadingSize::Told)
        heading += " - " + std::to_string(bounds.width) + " x " + std::to_string(bounds.height) + " Pixel";
    Sheet sheet = {Heading(std::move(heading))};
    AddSkinProp(sheet, prefs, family->prefix, family->suffix);
    return sheet;
}

}  // namespace ornavo
