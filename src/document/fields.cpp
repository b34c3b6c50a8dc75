// SPDX-License-Identifier: MIT
#include "document/fields.h"

#include <algorithm>
#include <string>

#include "base/failure.h"
#include "base/text_map.h"
#include "document/skin_lines.h"

namespace ornavo {

namespace {

void Convert(const Value& value, bool& field) {
    field = value.ToBoolean();
}
void Convert(const Value& value, std::int32_t& field) {
    field = value.ToLong();
}
void Convert(const Value& value, double& field) {
    field = value.ToDouble();
}
void Convert(const Value& value, std::string& field) {
    field = value.ToText();
}
void Convert(const Value& value, FontRef& field) {
    field = value.ToFont();
}
void Convert(const Value& value, Value& field) {
    field = value;
}

template <auto Member, class T, class Type>
Field<T> Line(std::string_view name, bool saved, Type T::*) {
    Field<T> field{name,
                   [](const T& object) { return Value(object.*Member); },
                   [](T& object, const Value& value) { Convert(value, object.*Member); },
                   saved,
                   [](T&, std::string_view) { return false; },
                   [](const T&, std::string&) { return false; }};
    if constexpr (!std::is_same_v<Type, FontRef>) {
        field.take = [](T& object, std::string_view bytes) { return TakePlain(bytes, object.*Member); };
        field.append = [](const T& object, std::string& bytes) { return AppendValue(bytes, object.*Member); };
    }
    return field;
}

/// A row of a table: a field that the file has, or one that it has not.
template <auto Member>
auto Saved(std::string_view name) {
    return Line<Member>(name, true, Member);
}
template <auto Member>
auto Unsaved(std::string_view name) {
    return Line<Member>(name, false, Member);
}

#define SAVED(type, name) Saved<&type::name>(#name)
#define UNSAVED(type, name) Unsaved<&type::name>(#name)

const Field<Font> FontFields[] = {
    SAVED(Font, Name),   SAVED(Font, Size),          SAVED(Font, Bold),
    SAVED(Font, Italic), SAVED(Font, Strikethrough), SAVED(Font, Underline),
};

const Field<dbPoint> PointFields[] = {
    SAVED(dbPoint, X),      SAVED(dbPoint, Y),     SAVED(dbPoint, VAlign),
    SAVED(dbPoint, HAlign), SAVED(dbPoint, Order),
};

const Field<dbLayout> LayoutFields[] = {
    SAVED(dbLayout, Key),
    SAVED(dbLayout, LayoutName),
};

const Field<dbSkinPref> PrefFields[] = {
    SAVED(dbSkinPref, Key),
    SAVED(dbSkinPref, Font),
    UNSAVED(dbSkinPref, MaxValue),
    UNSAVED(dbSkinPref, MinValue),
    UNSAVED(dbSkinPref, Comment),
    SAVED(dbSkinPref, PrefType),
    Saved<&dbSkinPref::value>("Value"),
    SAVED(dbSkinPref, Caption),
};

const Field<dbSkin> SkinFields[] = {
    UNSAVED(dbSkin, Dirty),
    UNSAVED(dbSkin, OldSkinName),
    SAVED(dbSkin, SkinHeight),
    SAVED(dbSkin, SkinWidth),
    {"BasePath", [](const dbSkin& skin) { return Value(skin.BasePath()); },
     [](dbSkin& skin, const Value& value) { skin.SetBasePath(value.ToText()); }, false,
     [](dbSkin&, std::string_view) { return false; }, [](const dbSkin&, std::string&) { return false; }},
    SAVED(dbSkin, SkinName),
};

const Field<dbLayoutElement> ElementFields[] = {
    SAVED(dbLayoutElement, Key),
    SAVED(dbLayoutElement, ElementType),
    SAVED(dbLayoutElement, ElementName),
    SAVED(dbLayoutElement, TopY),
    SAVED(dbLayoutElement, LeftX),
    SAVED(dbLayoutElement, WidthX),
    SAVED(dbLayoutElement, HeightY),
    SAVED(dbLayoutElement, LockLeft),
    SAVED(dbLayoutElement, LockTop),
    SAVED(dbLayoutElement, LockRight),
    SAVED(dbLayoutElement, LockBottom),
    SAVED(dbLayoutElement, dbScript),
    SAVED(dbLayoutElement, PicNormal),
    SAVED(dbLayoutElement, PicOn),
    SAVED(dbLayoutElement, PicOver),
    SAVED(dbLayoutElement, PicDown),
    SAVED(dbLayoutElement, ShowSmooth),
    SAVED(dbLayoutElement, Rotation),
    SAVED(dbLayoutElement, Value),
    SAVED(dbLayoutElement, UseTransparency),
    SAVED(dbLayoutElement, Order),
    SAVED(dbLayoutElement, ActionType),
    SAVED(dbLayoutElement, UseTopLeftTransparency),
    SAVED(dbLayoutElement, TransparentColor),
    SAVED(dbLayoutElement, Resizer),
    SAVED(dbLayoutElement, Dragger),
    UNSAVED(dbLayoutElement, ControlIndex),
    SAVED(dbLayoutElement, BackgroundColor),
    SAVED(dbLayoutElement, StretchBackground),
    SAVED(dbLayoutElement, StretchHeight),
    SAVED(dbLayoutElement, StretchWidth),
    SAVED(dbLayoutElement, Visible),
    SAVED(dbLayoutElement, Font),
    SAVED(dbLayoutElement, CaptionY),
    SAVED(dbLayoutElement, InfoType),
    SAVED(dbLayoutElement, Seeker),
    SAVED(dbLayoutElement, InfoField),
    SAVED(dbLayoutElement, TextColor),
    SAVED(dbLayoutElement, Caption),
    UNSAVED(dbLayoutElement, ScrollMax),
    UNSAVED(dbLayoutElement, ScrollPos),
    UNSAVED(dbLayoutElement, ScrollDir),
    UNSAVED(dbLayoutElement, ScrollWait),
    SAVED(dbLayoutElement, CapScrollSpeed),
    SAVED(dbLayoutElement, SeekerColor),
    UNSAVED(dbLayoutElement, SpareLong1),
    SAVED(dbLayoutElement, SeekTopOffset),
    SAVED(dbLayoutElement, SeekBottomOffset),
    SAVED(dbLayoutElement, SeekLeftOffset),
    SAVED(dbLayoutElement, SeekRightOffset),
    UNSAVED(dbLayoutElement, SpareLong2),
    SAVED(dbLayoutElement, BorderColor),
    SAVED(dbLayoutElement, ShowBorder),
    SAVED(dbLayoutElement, IsSearch),
    SAVED(dbLayoutElement, VolumeChangeable),
    SAVED(dbLayoutElement, PicDisabled),
    SAVED(dbLayoutElement, CaptionX),
    SAVED(dbLayoutElement, ShowShadow),
    SAVED(dbLayoutElement, ShadowColor),
    SAVED(dbLayoutElement, ShadowDistance),
    SAVED(dbLayoutElement, MarginTop),
    SAVED(dbLayoutElement, MarginLeft),
    SAVED(dbLayoutElement, MarginBottom),
    SAVED(dbLayoutElement, MarginRight),
};

#undef SAVED
#undef UNSAVED

template <class T>
using NameTable = TextMap<std::string_view, const Field<T>*>;

template <class T>
NameTable<T> ByName() {
    NameTable<T> table;
    for (const Field<T>& field : Fields<T>()) table.emplace(field.name, &field);
    return table;
}

template <class T>
const Field<T>& NamedField(std::string_view name) {
    if (const Field<T>* field = FindField<T>(name)) return *field;
    throw Failure(Failure::NoSuchField, "Fields", "There is no field \"" + std::string(name) + "\"");
}

}  // namespace

template <>
std::span<const Field<Font>> Fields() {
    return FontFields;
}
template <>
std::span<const Field<dbPoint>> Fields() {
    return PointFields;
}
template <>
std::span<const Field<dbLayout>> Fields() {
    return LayoutFields;
}
template <>
std::span<const Field<dbSkinPref>> Fields() {
    return PrefFields;
}
template <>
std::span<const Field<dbSkin>> Fields() {
    return SkinFields;
}
template <>
std::span<const Field<dbLayoutElement>> Fields() {
    return ElementFields;
}

template <class T>
const Field<T>* FindField(std::string_view name) {
    static const NameTable<T> table = ByName<T>();
    const auto found = table.find(name);
    return found == table.end() ? nullptr : found->second;
}

template <class T>
Value GetField(const T& object, std::string_view name) {
    return NamedField<T>(name).get(object);
}

template <class T>
void SetField(T& object, std::string_view name, const Value& value) {
    NamedField<T>(name).set(object, value);
}

#define INSTANTIATE(type)                                          \
    template const Field<type>* FindField<type>(std::string_view); \
    template Value GetField(const type&, std::string_view);        \
    template void SetField(type&, std::string_view, const Value&);
INSTANTIATE(Font)
INSTANTIATE(dbPoint)
INSTANTIATE(dbLayout)
INSTANTIATE(dbSkinPref)
INSTANTIATE(dbSkin)
INSTANTIATE(dbLayoutElement)
#undef INSTANTIATE

}  // namespace ornavo
