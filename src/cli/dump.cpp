// SPDX-License-Identifier: MIT
// Prints a skin as JSON, and where its elements are.
#include <cstdio>
#include <map>

#include "cli/json.h"
#include "cli/open_skin.h"
#include "document/fields.h"
#include "render/placement.h"

namespace ornavo {
namespace {

int Print(JsonWriter& json) {
    return std::fputs(json.Text().c_str(), stdout) < 0 ? 1 : 0;
}

template <class T>
void WriteFields(JsonWriter& json, const T& object, std::initializer_list<const char*> names) {
    for (const char* name : names) json.Write(name, GetField(object, name));
}

void DumpPref(JsonWriter& json, const dbSkinPref& pref) {
    json.BeginObject();
    WriteFields(json, pref, {"Key", "PrefType", "Caption", "Value"});
    json.Write("Font", Value(pref.Font));
    json.EndObject();
}

void DumpElement(JsonWriter& json, const dbLayoutElement& element) {
    json.BeginObject();
    for (const Field<dbLayoutElement>& field : Fields<dbLayoutElement>())
        if (field.saved && field.name != "Font") json.Write(field.name, field.get(element));
    json.Write("Font", Value(element.Font));
    json.EndObject();
}

void DumpLayout(JsonWriter& json, const dbLayout& layout) {
    json.BeginObject();
    WriteFields(json, layout, {"Key", "LayoutName"});
    json.BeginArray("dbPoints");
    for (const dbPointRef& point : *layout.dbPoints) {
        json.BeginObject();
        WriteFields(json, *point, {"Order", "X", "Y", "HAlign", "VAlign"});
        json.EndObject();
    }
    json.EndArray();
    json.BeginArray("dbLayoutElements");
    for (const dbLayoutElementRef& element : *layout.dbLayoutElements) DumpElement(json, *element);
    json.EndArray();
    json.EndObject();
}

void WriteRect(JsonWriter& json, const std::string& key, const Rect& rect) {
    json.BeginObject();
    json.Write("Key", key);
    json.Write("left", rect.left);
    json.Write("top", rect.top);
    json.Write("width", rect.width);
    json.Write("height", rect.height);
    json.EndObject();
}

}  // namespace

int Dump(const Arguments& arguments) {
    OpenNamedSkin(arguments.operands[0], !arguments.Has("raw"));
    JsonWriter json;
    json.BeginObject();
    WriteFields(json, *objSkin, {"SkinName", "SkinWidth", "SkinHeight"});
    json.BeginArray("dbSkinPrefs");
    for (const dbSkinPrefRef& pref : *objSkin->dbSkinPrefs) DumpPref(json, *pref);
    json.EndArray();
    json.BeginArray("dbLayouts");
    for (const dbLayoutRef& layout : *objSkin->dbLayouts) DumpLayout(json, *layout);
    json.EndArray();
    json.EndObject();
    return Print(json);
}

int Place(const Arguments& arguments) {
    OpenNamedSkin(arguments.operands[0]);
    const dbLayoutRef layout = NamedLayout(arguments);
    const Size size = NamedSize(arguments);
    const Frame frame = {size.width, size.height, objSkin->SkinWidth, objSkin->SkinHeight};
    JsonWriter json;
    json.BeginObject();
    json.Write("width", size.width);
    json.Write("height", size.height);
    json.BeginArray("elements");
    for (const dbLayoutElementRef& element : *layout->dbLayoutElements)
        WriteRect(json, element->Key, GetElementRect(*element, frame));
    json.EndArray();
    json.BeginArray("points");
    std::multimap<int, dbPointRef> byOrder;
    for (const dbPointRef& point : *layout->dbPoints) byOrder.emplace(point->Order, point);
    for (const auto& [order, point] : byOrder) {
        const Point at = GetPointPosition(*point, frame, CornerOf::Shape);
        json.BeginObject();
        json.Write("Order", order);
        json.Write("x", at.x);
        json.Write("y", at.y);
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
    return Print(json);
}

}  // namespace ornavo
