// SPDX-License-Identifier: MIT
#include "check/use_check.h"

#include <algorithm>
#include <map>

#include "base/lookup.h"
#include "base/numbers.h"
#include "base/text.h"
#include "document/codes.h"
#include "document/skin_preview.h"

namespace ornavo {
namespace {

// clang-format off
constexpr std::string_view UsualFaces[] = {
    "Arial", "Arial Black", "Arial Narrow", "Bahnschrift", "Calibri", "Calibri Light", "Cambria", "Cambria Math", "Candara",
    "Comic Sans MS", "Consolas", "Constantia", "Corbel", "Courier", "Courier New", "Ebrima", "Fixedsys",
    "Franklin Gothic Medium", "Gabriola", "Gadugi", "Georgia", "Impact", "Ink Free", "Javanese Text",
    "Leelawadee UI", "Lucida Console", "Lucida Sans Unicode", "Malgun Gothic", "Marlett",
    "Microsoft Sans Serif", "Mongolian Baiti", "MS Gothic", "MS PGothic", "MS Sans Serif", "MS Serif",
    "MS UI Gothic", "MV Boli", "Myanmar Text", "Nirmala UI", "NSimSun", "Palatino Linotype", "Segoe Print",
    "Segoe Script", "Segoe UI", "Segoe UI Black", "Segoe UI Emoji", "Segoe UI Historic", "Segoe UI Light",
    "Segoe UI Semibold", "Segoe UI Semilight", "Segoe UI Symbol", "SimSun", "Sitka Text", "Small Fonts",
    "Sylfaen", "Symbol", "System", "Tahoma", "Terminal", "Times New Roman", "Trebuchet MS", "Verdana",
    "Webdings", "Wingdings", "Yu Gothic",
};
// clang-format on

constexpr std::string_view StandardLayout = "Standard", KioskLayout = "Kiosk-Mode";
constexpr int LeastCorners = 3;

bool IsPressed(const dbLayoutElement& element) {
    return element.ActionType != 0 || element.Dragger || element.Resizer;
}

/// Something that a window of most layouts can do.
struct Ability {
    std::string_view code;
    bool (*isGiven)(const dbLayoutElement& element);
    const char* words;
};
constexpr Ability Abilities[] = {
    {"no-close", [](const dbLayoutElement& element) { return element.ActionType == ActionClose; },
     "closes it"},
    {"no-move", [](const dbLayoutElement& element) { return element.Dragger; }, "moves its window"},
    {"no-resize", [](const dbLayoutElement& element) { return element.Resizer; }, "sizes its window"},
};

bool Has(const dbLayout& layout, const Ability& ability) {
    return std::ranges::any_of(*layout.dbLayoutElements, [&](const auto& element) {
        return element->Visible && ability.isGiven(*element);
    });
}

class UseCheck {
public:
    explicit UseCheck(const LoadedSkin& loaded) : loaded_(loaded), skin_(loaded.skin()) {}
    Findings Run();

private:
    void Add(std::string_view code, FindingPlace place, int line, std::string text) {
        findings_.push_back(MakeFinding(code, std::move(place), line, std::move(text)));
    }
    void CheckLayout(const dbLayout& layout);
    void CheckAbilities(const dbLayout& layout);
    void CheckFonts();
    void NoteFace(const FontRef& font, FindingPlace place);

    const LoadedSkin& loaded_;
    const dbSkin& skin_;
    Findings findings_;
    /// Where a face is named first, and how often.
    struct Face {
        FindingPlace place;
        int line, count;
    };
    std::map<std::string, Face> faces_;
};

Findings UseCheck::Run() {
    for (const dbLayoutRef& layout : *skin_.dbLayouts) CheckLayout(*layout);
    CheckFonts();
    if (!skin_.dbLayouts->Find(StandardLayout))
        Add("no-standard", {}, 0, "There is no layout \"Standard\", with which the jukebox starts.");
    if (PreviewFiles(OnDisk(loaded_.folder())).empty())
        Add("no-preview", {"", "SP_PicPreview", ""}, 0,
            "The skin has no preview picture: lists of skins show an empty place.");
    return std::move(findings_);
}

void UseCheck::CheckLayout(const dbLayout& layout) {
    if (layout.dbPoints->Count() < LeastCorners)
        Add("few-corners", {layout.Key, "", ""}, 0,
            "The shape has " + std::to_string(layout.dbPoints->Count()) +
                " corners: the window keeps its rectangle.");
    for (const dbLayoutElementRef& element : *layout.dbLayoutElements)
        if (element->ElementType == TypeButton && element->Visible && !IsPressed(*element))
            Add("idle-button", {layout.Key, element->Key, "ActionType"},
                loaded_.LineOf(element.get(), "ActionType"), "The button does nothing when it is pressed.");
    if (!EqualText(layout.Key, KioskLayout)) CheckAbilities(layout);
}

void UseCheck::CheckAbilities(const dbLayout& layout) {
    for (const Ability& ability : Abilities) {
        const auto gives = [&](const dbLayoutRef& other) { return Has(*other, ability); };
        const auto giver = std::ranges::find_if(*skin_.dbLayouts, gives);
        if (giver != skin_.dbLayouts->end() && !Has(layout, ability))
            Add(ability.code, {layout.Key, "", ""}, 0,
                std::string("Nothing in this layout ") + ability.words + ", as something in " +
                    Quoted((*giver)->Key) + " does.");
    }
}

void UseCheck::NoteFace(const FontRef& font, FindingPlace place) {
    if (!font || IsUsualFace(font->Name)) return;
    const auto [face, isNew] =
        faces_.try_emplace(font->Name, Face{std::move(place), loaded_.LineOf(font.get(), "Name"), 0});
    ++face->second.count;
}

void UseCheck::CheckFonts() {
    for (const dbSkinPrefRef& pref : *skin_.dbSkinPrefs) NoteFace(pref->Font, {"", pref->Key, "Font"});
    for (const dbLayoutRef& layout : *skin_.dbLayouts)
        for (const dbLayoutElementRef& element : *layout->dbLayoutElements)
            // The font that an info field gets when it has none is called like the field's value.
            if (element->Font && element->Font->Name != NumberText(element->Value))
                NoteFace(element->Font, {layout->Key, element->Key, "Font"});
    for (const auto& [name, face] : faces_)
        Add("unusual-font", face.place, face.line,
            "A fresh Windows hasn't the font " + Quoted(name) + ", and another takes its place" +
                (face.count > 1 ? ", here and in " + std::to_string(face.count - 1) + " more places." : "."));
}

}  // namespace

bool IsUsualFace(std::string_view face) {
    return std::ranges::any_of(UsualFaces, [&](std::string_view usual) { return EqualText(usual, face); });
}

Findings CheckUse(const LoadedSkin& loaded) {
    return UseCheck(loaded).Run();
}

}  // namespace ornavo
