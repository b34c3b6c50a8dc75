// SPDX-License-Identifier: MIT
#include <array>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "document/dbskin.h"
#include "document/fields.h"
#include "document/load_report.h"
#include "document/skin_lines.h"

namespace ornavo {

namespace {

/// Finds the field of a line. Because lines mostly have the same order, it first tries the field that
/// followed the last one the time before.
template <class T>
class FieldFinder {
public:
    const Field<T>* Find(std::string_view tag) {
        const Field<T>* field = next_[last_];
        if (!field || field->name != tag) {
            field = FindField<T>(tag);
            if (!field) return nullptr;
            next_[last_] = field;
        }
        last_ = static_cast<std::size_t>(field - Fields<T>().data()) + 1;
        return field;
    }
    void Restart() { last_ = 0; }

private:
    std::vector<const Field<T>*> next_ = std::vector<const Field<T>*>(Fields<T>().size() + 1);
    std::size_t last_ = 0;  // 0 before the first field, otherwise 1 + the index of the last one found
};

using PointsRef = std::shared_ptr<dbPoints>;
using ElementsRef = std::shared_ptr<dbLayoutElements>;
using LayoutsRef = std::shared_ptr<dbLayouts>;
using Object = LoadedObject;

/// The open objects; the current one is on top.
class LoadStack {
public:
    void PushObject(Object object) { objects_.push_back(std::move(object)); }
    void PopObject() {
        if (!objects_.empty()) objects_.pop_back();
    }
    bool IsEmpty() const { return objects_.empty(); }
    Object& Current() { return objects_.empty() ? nothing_ : objects_.back(); }
    Object& ParentObject() { return objects_.size() < 2 ? nothing_ : objects_[objects_.size() - 2]; }

private:
    std::vector<Object> objects_;
    Object nothing_;
};

constexpr std::size_t MostDamage = 12;  // lines; more would not help anyone

/// What an open object is called in a line of Damage; "" for the skin and for a collection, which cannot be
/// lost.
std::string NameOf(const Object& object) {
    const auto named = [](const char* kind, const std::string& key) {
        return std::string(kind).append(" \"").append(key).append("\"");
    };
    if (const auto* layout = std::get_if<dbLayoutRef>(&object))
        return named("layout", (*layout)->Key) + " with " +
               std::to_string((*layout)->dbLayoutElements->Count()) + " elements";
    if (const auto* element = std::get_if<dbLayoutElementRef>(&object))
        return named("element", (*element)->Key);
    if (const auto* pref = std::get_if<dbSkinPrefRef>(&object)) return named("preference", (*pref)->Key);
    if (std::holds_alternative<dbPointRef>(object)) return "corner of a shape";
    return std::holds_alternative<FontRef>(object) ? "font" : "";
}

/// Reads a settings file into a skin, line by line, and notes what could not be placed.
class Loader {
public:
    /// The observer may be null.
    Loader(dbSkin& skin, LoadObserver* observer) : skin_(skin), observer_(observer) {}
    void Load(std::string_view bytes);
    /// What was lost of the file, in words; empty if it is whole.
    std::vector<std::string> Damage(std::string_view bytes) const;

private:
    /// A tag of structure and what it does when it opens and closes.
    struct Structure {
        std::string_view tag;
        void (Loader::*open)();
        void (Loader::*close)();
    };
    static const std::array<Structure, 10> Structures;

    void ReadLine(std::string_view line);
    LineFate ReadTag(const TagLine& parts);
    LineFate ReadStructure(std::string_view tag);
    LineFate AssignToCurrent(std::string_view tag, std::string_view bytes);
    template <class T>
    LineFate Assign(FieldFinder<T>& finder, T& object, const TagLine& line);
    void ReadObserved(std::string_view line, const TagLine& parts);

    void OpenSkin() {
        ++skins_;
        stack_.PushObject(&skin_);
    }
    void OpenPrefs() {
        skin_.dbSkinPrefs = std::make_shared<dbSkinPrefs>();
        stack_.PushObject(skin_.dbLayouts);  // only closes the tag; nothing is assigned to it
    }
    void OpenPref() {
        prefFields_.Restart();
        stack_.PushObject(std::make_shared<dbSkinPref>());
    }
    void OpenFont() {
        fontFields_.Restart();
        stack_.PushObject(std::make_shared<Font>());
    }
    void OpenLayouts() {
        skin_.dbLayouts = std::make_shared<dbLayouts>();
        stack_.PushObject(skin_.dbLayouts);
    }
    void OpenLayout() { stack_.PushObject(std::make_shared<dbLayout>()); }
    void OpenPoints();
    void OpenPoint() {
        pointFields_.Restart();
        stack_.PushObject(std::make_shared<dbPoint>());
    }
    void OpenElements();
    void OpenElement();

    void Close() { Pop(false); }
    void Pop(bool kept);
    void ClosePref();
    void CloseLayout();
    void CloseIntoParent();
    void CloseFont();

    dbSkin& skin_;
    LoadObserver* observer_;
    int line_ = 0;  // its number, counted for the observer
    LoadStack stack_;
    int skins_ = 0;                    // how many <Skin> tags
    bool endsEarly_ = false;           // a tag was still open at the end
    std::map<std::string, int> lost_;  // how often an object of this name had no place
    FieldFinder<dbSkin> skinFields_;
    FieldFinder<dbSkinPref> prefFields_;
    FieldFinder<Font> fontFields_;
    FieldFinder<dbLayout> layoutFields_;
    FieldFinder<dbPoint> pointFields_;
    FieldFinder<dbLayoutElement> elementFields_;
};

const std::array<Loader::Structure, 10> Loader::Structures = {{
    {"element", &Loader::OpenElement, &Loader::CloseIntoParent},
    {"font", &Loader::OpenFont, &Loader::CloseFont},
    {"point", &Loader::OpenPoint, &Loader::CloseIntoParent},
    {"skinpref", &Loader::OpenPref, &Loader::ClosePref},
    {"elements", &Loader::OpenElements, &Loader::Close},
    {"points", &Loader::OpenPoints, &Loader::Close},
    {"layout", &Loader::OpenLayout, &Loader::CloseLayout},
    {"layouts", &Loader::OpenLayouts, &Loader::Close},
    {"skinprefs", &Loader::OpenPrefs, &Loader::Close},
    {"skin", &Loader::OpenSkin, &Loader::Close},
}};

void Loader::Load(std::string_view bytes) {
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    while (at < end) {
        const auto* stop =
            static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
        if (!stop) stop = end;
        ReadLine(std::string_view(at, static_cast<std::size_t>(stop - at)));
        at = stop + 1;
    }
    endsEarly_ = !stack_.IsEmpty();
    while (!stack_.IsEmpty()) Pop(false);
}

std::vector<std::string> Loader::Damage(std::string_view bytes) const {
    const bool wide = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF") ||
                      bytes.substr(0, 2).find('\0') != std::string_view::npos;
    if (wide) return {"It is UTF-16 text, of which nothing can be read."};
    if (skins_ == 0 && bytes.find_first_not_of(" \t\r\n") != std::string_view::npos)
        return {"It has no <Skin>."};
    std::vector<std::string> damage;
    if (skins_ > 1) damage.emplace_back("It has more than one <Skin>, and the last one counts.");
    if (bytes.find('\0') != std::string_view::npos) damage.emplace_back("It has bytes that are no text.");
    const bool isLong = damage.size() + lost_.size() > MostDamage;
    for (const bool layouts : {true, false})  // the most serious first
        for (const auto& [name, count] : lost_)
            if (name.starts_with("layout") == layouts && damage.size() < MostDamage)
                damage.push_back("Lost: " + (count > 1 ? std::to_string(count) + " x " : "") + name);
    if (isLong) damage.emplace_back("There is more.");
    if (endsEarly_) damage.emplace_back("It ends early: a tag is not closed.");
    return damage;
}

/// Closes the current object. An object that was pushed twice stays with the entry below it, and so is not
/// lost.
void Loader::Pop(bool kept) {
    if (!kept && stack_.Current() != stack_.ParentObject())
        if (const std::string name = NameOf(stack_.Current()); !name.empty()) ++lost_[name];
    stack_.PopObject();
}

void Loader::ReadLine(std::string_view line) {
    const std::optional<TagLine> plain = PlainLine(line);
    const TagLine parts = plain ? *plain : GetTag(TrimTag(line));
    if (observer_)
        ReadObserved(line, parts);
    else
        ReadTag(parts);
}

void Loader::ReadObserved(std::string_view line, const TagLine& parts) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    LineReport report{++line_, {}, line, parts.tag, parts.value.value_or(""), stack_.Current(), {}};
    report.fate = ReadTag(parts);
    if (report.fate == LineFate::Opened) {
        report.object = stack_.Current();
        report.parent = stack_.ParentObject();
    }
    observer_->Tell(report);
}

LineFate Loader::ReadTag(const TagLine& parts) {
    if (parts.tag.empty() || parts.tag[0] == ' ' || parts.tag[0] == '!' || parts.tag[0] == '?')
        return LineFate::Nothing;
    return parts.value ? AssignToCurrent(parts.tag, *parts.value) : ReadStructure(parts.tag);
}

LineFate Loader::ReadStructure(std::string_view tag) {
    const bool closing = tag[0] == '/';
    if (closing) tag.remove_prefix(1);
    for (const Structure& structure : Structures) {
        if (!EqualText(structure.tag, tag)) continue;
        (this->*(closing ? structure.close : structure.open))();
        return closing ? LineFate::Closed : LineFate::Opened;
    }
    return LineFate::Unknown;
}

template <class T>
LineFate Loader::Assign(FieldFinder<T>& finder, T& object, const TagLine& line) {
    const Field<T>* field = finder.Find(line.tag);
    if (!field) return LineFate::NoField;
    const bool taken =
        field->take(object, *line.value) || Attempt([&] { field->set(object, ReadValue(*line.value)); });
    return taken ? LineFate::Assigned : LineFate::Refused;
}

LineFate Loader::AssignToCurrent(std::string_view tag, std::string_view bytes) {
    const TagLine line{tag, bytes};
    Object& current = stack_.Current();
    if (auto* element = std::get_if<dbLayoutElementRef>(&current))
        return Assign(elementFields_, **element, line);
    if (auto* pref = std::get_if<dbSkinPrefRef>(&current)) return Assign(prefFields_, **pref, line);
    if (auto* point = std::get_if<dbPointRef>(&current)) return Assign(pointFields_, **point, line);
    if (auto* font = std::get_if<FontRef>(&current)) return Assign(fontFields_, **font, line);
    if (auto* layout = std::get_if<dbLayoutRef>(&current)) return Assign(layoutFields_, **layout, line);
    auto* skin = std::get_if<dbSkin*>(&current);
    if (!skin) return LineFate::NoField;
    // The file must not decide where the skin's folder is or whether the skin has been changed.
    const Field<dbSkin>* field = skinFields_.Find(tag);
    return field && field->saved ? Assign(skinFields_, **skin, line) : LineFate::NoField;
}

// Without a layout to give a collection to, the current object is pushed once more, so that the closing tag
// has something to pop.
void Loader::OpenPoints() {
    Object next = stack_.Current();
    if (auto* layout = std::get_if<dbLayoutRef>(&next)) {
        (*layout)->dbPoints = std::make_shared<dbPoints>();
        next = Object((*layout)->dbPoints);
    }
    stack_.PushObject(std::move(next));
}

void Loader::OpenElements() {
    Object next = stack_.Current();
    if (auto* layout = std::get_if<dbLayoutRef>(&next)) {
        (*layout)->dbLayoutElements = std::make_shared<dbLayoutElements>();
        next = Object((*layout)->dbLayoutElements);
    }
    stack_.PushObject(std::move(next));
}

void Loader::OpenElement() {
    elementFields_.Restart();
    auto element = std::make_shared<dbLayoutElement>();
    element->Visible = false;
    stack_.PushObject(std::move(element));
}

void Loader::ClosePref() {
    auto* pref = std::get_if<dbSkinPrefRef>(&stack_.Current());
    Pop(pref && Attempt([&] { skin_.dbSkinPrefs->AddObject(*pref); }));
}

void Loader::CloseLayout() {
    auto* layout = std::get_if<dbLayoutRef>(&stack_.Current());
    Pop(layout && Attempt([&] { skin_.dbLayouts->AddObject(*layout); }));
}

/// Adds the item to the collection if both have the types of the template. Returns whether it was added.
template <class Collection, class Item>
bool AddTo(Object& parent, Object& current) {
    auto* collection = std::get_if<Collection>(&parent);
    auto* item = std::get_if<Item>(&current);
    return collection && item && Attempt([&] { (*collection)->AddObject(*item); });
}

void Loader::CloseIntoParent() {
    Object& parent = stack_.ParentObject();
    Object& current = stack_.Current();
    Pop(AddTo<ElementsRef, dbLayoutElementRef>(parent, current) ||
        AddTo<PointsRef, dbPointRef>(parent, current) || AddTo<LayoutsRef, dbLayoutRef>(parent, current));
}

void Loader::CloseFont() {
    auto* font = std::get_if<FontRef>(&stack_.Current());
    Object& parent = stack_.ParentObject();
    auto* element = std::get_if<dbLayoutElementRef>(&parent);
    auto* pref = std::get_if<dbSkinPrefRef>(&parent);
    if (font && element) (*element)->Font = *font;
    if (font && pref) (*pref)->Font = *font;
    Pop(font && (element || pref));
}

/// Whether `name`, read from a file, means the folder that the file is in: a folder's name that looks like a
/// number is read as a number and gets its plain text, and another system's signs may have been used to write
/// it.
bool NamesFolder(const std::string& name, const std::string& folder) {
    static const NumberSigns usual[] = {{".", ","}, {",", "."}};
    for (const NumberSigns& signs : usual)
        if (IsNumeric(folder, signs) && name == NumberText(ToNumber(folder, signs))) return true;
    return name == ReadValue(ToFileBytes(folder)).ToText() || name == ReadBack(folder);
}

}  // namespace

bool dbSkin::LoadSkin() {
    const std::string file = SkinFile();
    const bool found = !NothingStandsAt(file);
    LoadBytes(found ? ReadFile(file) : "");
    return found;
}

void dbSkin::LoadBytes(std::string_view bytes, LoadObserver* observer) {
    OldSkinName = SkinName;
    Loader loader(*this, observer);
    loader.Load(bytes);
    Damage = loader.Damage(bytes);
    if (SkinName != OldSkinName) SkinName = CleanFileName(SkinName);
    if (!IsPlainName(SkinName) || NamesFolder(SkinName, OldSkinName)) SkinName = OldSkinName;
}

}  // namespace ornavo
