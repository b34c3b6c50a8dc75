// SPDX-License-Identifier: MIT
#include "check/pictures_check.h"

#include <QImage>
#include <algorithm>
#include <map>
#include <set>

#include "base/colour.h"
#include "base/failure.h"
#include "base/find_row.h"
#include "base/lookup.h"
#include "base/paths.h"
#include "base/text.h"
#include "check/picture_uses.h"
#include "check/size_ranges.h"
#include "document/skin_packaging.h"
#include "platform/picture_bytes.h"
#include "platform/pictures.h"
#include "render/placement.h"

namespace ornavo {
namespace {

constexpr Size LargestScreen = {1920, 1080};
constexpr std::int64_t WasteFactor = 4;  // a picture has so many times the pixels of its place

std::string Words(const QSize& size) {
    return std::to_string(size.width()) + " x " + std::to_string(size.height());
}

std::int64_t PixelsOf(const QSize& size) {
    return std::int64_t{size.width()} * size.height();
}

/// The largest size of an element in windows up to the largest screen: its extents are straight lines.
QSize LargestPlace(const dbLayoutElement& element, const dbSkin& skin) {
    QSize largest(0, 0);
    for (const Size& window : {LeastWindow, LargestScreen, Size{skin.SkinWidth, skin.SkinHeight}})
        Attempt([&] {
            const Rect place =
                GetElementRect(element, {window.width, window.height, skin.SkinWidth, skin.SkinHeight});
            largest = largest.expandedTo({place.width, place.height});
        });
    return largest;
}

bool HasColour(const QImage& image, QRgb colour) {
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        if (std::any_of(row, row + image.width(),
                        [&](QRgb pixel) { return (pixel & RGB_MASK) == (colour & RGB_MASK); }))
            return true;
    }
    return false;
}

QRgb KeyColour(const dbLayoutElement& element) {
    const Colour colour = TranslateColor(element.TransparentColor);
    return qRgb(RedOf(colour), GreenOf(colour), BlueOf(colour));
}

/// A picture file and the places that name it.
struct Sheet {
    const PictureReference* reference;
    std::vector<const PictureUse*> uses;
};

class PicturesCheck {
public:
    PicturesCheck(const LoadedSkin& loaded, std::int64_t most)
        : loaded_(loaded),
          most_(most),
          skin_(loaded.skin()),
          uses_(PictureUses(skin_)),
          steps_(PlanSave(skin_, false)) {}
    Findings Run();

private:
    void Add(std::string_view code, const PictureUse& use, const std::string& text) {
        const int line = loaded_.LineOf(use.owner, use.place.field);
        findings_.push_back(MakeFinding(code, use.place, line, text));
    }
    void Add(std::string_view code, const Sheet& sheet, const std::string& text) {
        const std::size_t more = sheet.uses.size() - 1;
        Add(code, *sheet.uses.front(),
            text + (more == 0   ? ""
                    : more == 1 ? " It is named in one more place."
                                : " It is named in " + std::to_string(more) + " more places."));
    }
    void CheckReference(const std::string& given, const Sheet& sheet);
    void CheckFile(const Sheet& sheet);
    void CheckPlaces(const Sheet& sheet, const QImage& image);
    void CheckNames();
    void CheckStates();
    void CheckUnnamed();
    void CheckWeight();

    const LoadedSkin& loaded_;
    const std::int64_t most_;
    const dbSkin& skin_;
    const std::vector<PictureUse> uses_;
    const std::vector<PictureStep> steps_;
    Findings findings_;
    std::map<std::string, Sheet> sheets_;          // by the name that is given
    std::map<std::string, std::int64_t> weights_;  // decoded bytes, by the file
};

Findings PicturesCheck::Run() {
    for (const PictureStep& step : steps_) sheets_[step.picture->given].reference = step.picture.get();
    for (const PictureUse& use : uses_) sheets_[use.given].uses.push_back(&use);
    for (const auto& [given, sheet] : sheets_) CheckReference(given, sheet);
    CheckNames();
    CheckStates();
    CheckUnnamed();
    CheckWeight();
    return std::move(findings_);
}

void PicturesCheck::CheckReference(const std::string& given, const Sheet& sheet) {
    const PictureReference& reference = *sheet.reference;
    if (reference.isBlank) return;
    if (reference.source.empty())
        return Add("missing-picture", sheet,
                   Quoted(given) + " is not there: nothing is shown, and the next save drops the name.");
    if (reference.isRefused)
        Add("refused-picture", sheet,
            Quoted(given) +
                " is called like the skin's settings: the next save can't "
                "copy it into the folder.");
    else if (NativePath(reference.source).parent_path() != OnDisk(loaded_.folder()))
        Add("outside-picture", sheet,
            Quoted(given) + " is outside of the skin's folder: the next save copies it there.");
    else if (GetFileName(reference.source) != GetFileName(given))
        Add("picture-case", sheet,
            "The file of " + Quoted(given) + " is called " + Quoted(GetFileName(reference.source)) +
                ": a jukebox on a disk that regards case doesn't find it.");
    CheckFile(sheet);
}

void PicturesCheck::CheckFile(const Sheet& sheet) {
    const PictureRef picture = LoadPicture(NativePath(sheet.reference->source));
    if (!picture)
        return Add("unreadable-picture", sheet,
                   Quoted(sheet.reference->given) +
                       " can't be read as a picture, or is too large: nothing is shown.");
    weights_[sheet.reference->source] = picture->image().sizeInBytes();
    CheckPlaces(sheet, picture->image());
}

void PicturesCheck::CheckPlaces(const Sheet& sheet, const QImage& image) {
    QSize largest(0, 0);
    bool hasPlace = false;
    const PictureUse *unclear = nullptr, *unkeyed = nullptr;
    for (const PictureUse* use : sheet.uses) {
        if (!use->element) return;  // the jukebox decides where
        const dbLayoutElement& element = *use->element;
        hasPlace = true;
        largest = largest.expandedTo(LargestPlace(element, skin_));
        const bool isClear = IsSeeThrough(image);
        if (!element.UseTransparency && isClear) unclear = use;
        if (element.UseTransparency && !element.UseTopLeftTransparency && !isClear &&
            !HasColour(image, KeyColour(element)))
            unkeyed = use;
    }
    const std::string name = Quoted(sheet.reference->given);
    if (hasPlace && PixelsOf(image.size()) > WasteFactor * std::max<std::int64_t>(PixelsOf(largest), 1))
        Add("large-picture", sheet,
            name + " has " + Words(image.size()) + " pixels and is never shown larger than " +
                Words(largest) + " up to a window of 1920 x 1080.");
    if (unclear)
        Add("clear-pixels", *unclear,
            name +
                " has clear pixels, which show the background color without Use "
                "Transparency.");
    if (unkeyed)
        Add("unused-key-colour", *unkeyed,
            "No pixel of " + name + " has the transparent color: nothing becomes transparent.");
}

/// Two pictures from different places that a save would give one name.
void PicturesCheck::CheckNames() {
    std::map<std::string, const Sheet*> byName;
    for (const auto& [given, sheet] : sheets_) {
        if (sheet.reference->target.empty()) continue;
        const auto [first, isNew] = byName.try_emplace(LowerText(sheet.reference->stored), &sheet);
        if (!isNew && first->second->reference->source != sheet.reference->source)
            Add("two-pictures-one-name", sheet,
                Quoted(given) + " and " + Quoted(first->second->reference->given) +
                    " are two pictures with one name: the next save keeps one of them.");
    }
}

/// An element whose normal picture moves and another doesn't, or the other way round.
void PicturesCheck::CheckStates() {
    std::map<const void*, std::pair<bool, const PictureUse*>> normal;
    std::set<const void*> told;
    for (const PictureUse& use : uses_) {
        const Sheet& sheet = sheets_.at(use.given);
        if (!use.element || sheet.reference->source.empty()) continue;
        const bool moves = IsAnimatedGIF(NativePath(sheet.reference->source));
        const auto [first, isNew] = normal.try_emplace(use.owner, moves, &use);
        if (isNew || first->second.first == moves || !told.insert(use.owner).second) continue;
        const PictureUse &moving = moves ? use : *first->second.second,
                         &still = moves ? *first->second.second : use;
        Add("mixed-animation", use,
            Quoted(moving.given) + " moves and " + Quoted(still.given) +
                " doesn't: the animation stops there.");
    }
}

void PicturesCheck::CheckUnnamed() {
    std::set<std::string> named = {LowerText(SettingsFileName)};
    for (const auto& [given, sheet] : sheets_)
        if (!sheet.reference->source.empty()) named.insert(LowerText(GetFileName(sheet.reference->source)));
    const auto folder = OnDisk(loaded_.folder());
    std::vector<std::string> names = NamesIn(folder);
    std::ranges::sort(names);
    constexpr std::string_view texts[] = {"txt", "md", "html", "ini", "xml", "rtf", "pdf"};
    for (const std::string& name : names) {
        const bool isOther = name.starts_with('.') || EqualText(GetBaseName(name), "preview") ||
                             Contains(texts, std::string_view(GetExtensionName(name))) ||
                             FolderExists(ToText(folder / name));
        if (!isOther && !named.contains(LowerText(name)))
            findings_.push_back(
                MakeFinding("unnamed-file", {"", name, ""}, 0,
                            "Nothing names the file " + Quoted(name) + ", but it goes where the skin goes."));
    }
}

void PicturesCheck::CheckWeight() {
    std::int64_t bytes = 0;
    for (const auto& [file, weight] : weights_) bytes += weight;
    if (bytes > most_)
        findings_.push_back(
            MakeFinding("heavy-skin", {}, 0,
                        "The pictures take " + std::to_string(bytes >> 20) +
                            " MiB when they are shown; of more than 512 MiB some stay empty."));
}

}  // namespace

Findings CheckPictures(const LoadedSkin& loaded, std::int64_t most) {
    return PicturesCheck(loaded, most).Run();
}

}  // namespace ornavo
