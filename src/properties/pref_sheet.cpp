// SPDX-License-Identifier: MIT
#include "properties/pref_sheet.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace ornavo {
namespace {

struct Sample {
    std::string_view controlName, heading, prefix, suffix;
    bool showsSize;
};
// clang-format off
constexpr std::array Samples = {
    Sample{"btn_SkinProperties", "Skin Properties", "SP", "", false},
    Sample{"cmd_Button", "Command Button (1 Row)", "CB", "S", true},
    Sample{"cmd_Button2", "Command Button (2 Rows)", "CB", "D", true},
    Sample{"but_AddAll", "Add All Button", "AA", "", true},
    Sample{"but_Info", "Info Button", "IN", "", false},
    Sample{"but_Song", "Main Button (Song & Artist)", "SO", "D", false},
    Sample{"but_Song2", "Main Button (Song only)", "SO", "S", false},
    Sample{"KeyN", "Key General", "KB", "N", true},
    Sample{"KeyE", "Key Enter", "KB", "E", true},
    Sample{"KeyS", "Key Space", "KB", "S", true},
    Sample{"KeyU", "Key Shift", "KB", "U", true},
    Sample{"KeyB", "Key Backspace", "KB", "B", true},
    Sample{"lbl_SL", "Search Letters", "SL", "", false},
    Sample{"but_Picture", "Album/Artist Picture", "PI", "", false},
    Sample{"lbl_Kiosk", "General Labels", "LA", "", false},
};
// clang-format on

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
    const auto sample = std::find_if(Samples.begin(), Samples.end(),
                                     [&](const Sample& one) { return one.controlName == controlName; });
    if (sample == Samples.end()) return {};
    std::string heading(sample->heading);
    if (sample->showsSize)
        heading += " - " + std::to_string(bounds.width) + " x " + std::to_string(bounds.height) + " Pixel";
    Sheet sheet = {Heading(std::move(heading))};
    AddSkinProp(sheet, prefs, sample->prefix, sample->suffix);
    return sheet;
}

}  // namespace ornavo
