// SPDX-License-Identifier: MIT
#include "walk/model.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <stdexcept>

namespace ornavo::walk {
namespace {

constexpr int HandleSize = 7, CornerReach = 2, CornerSize = 5, SideReach = 3, EdgeZone = 100;
constexpr int ButtonFace = static_cast<int>(0x8000000F), White = 0xFFFFFF;
/// The sides of the box that each handle holds: -1 the left or upper one, 1 the other one.
constexpr Place Sides[] = {{-1, -1}, {0, -1}, {1, -1}, {1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}};
enum Type { Main = 0, Button = 1, Volume = 3, Info = 4, SearchBox = 5, Scrollbar = 6 };

int Round(double value) {
    return static_cast<int>(std::nearbyint(value));  // ties to even
}

int Steps(int distance, int spacing) {
    return Round(distance / static_cast<double>(spacing)) * spacing;
}

/// The axis' rule is its own inverse for a start; a size grows with the canvas only between two locks.
int Start(int value, Locks locks, int canvas) {
    return locks.high && !locks.low ? canvas - value : value;
}
int Growth(Locks locks, int canvas, int design) {
    return locks.high && locks.low ? canvas - design : 0;
}

std::string LayoutKey(const std::string& name) {
    std::string key = name;
    std::replace(key.begin(), key.end(), ' ', '_');
    return key;
}

}  // namespace

bool Box::Contains(Place at) const {
    return at.x >= left && at.x < left + width && at.y >= top && at.y < top + height;
}

Model::Model(std::string name, int width, int height)
    : name_(std::move(name)), width_(width), height_(height), canvasWidth_(width), canvasHeight_(height) {
    for (const char* layout : {"Admin-Mode", "Kiosk-Mode"}) layouts_.push_back(WithStandardElements(layout));
    current_ = layouts_[0];
    for (const char* key : {"SearchBox", "Scrollbar"}) Named(key).visible = false;
    Compose();
}

LayoutRef Model::WithStandardElements(const std::string& name) const {
    auto layout = std::make_shared<Layout>();
    layout->key = LayoutKey(name);
    layout->name = name;
    const Locks both = {true, true}, none, far = {false, true};
    layout->elements = {
        {"Main", "Main", Main, {30, 120, 740, 450}, both, both, true, ButtonFace, 0, {}},
        {"SearchBox", "Search Box", SearchBox, {330, 85, 200, 25}, none, none, true, White, 0, {}},
        {"Scrollbar", "Scrollbar", Scrollbar, {70, 120, 40, 450}, far, both, true, ButtonFace, 0, {}}};
    layout->corners = {
        {{0, 0}, false, false}, {{0, 1}, false, true}, {{1, 1}, true, true}, {{1, 0}, true, false}};
    return layout;
}

Model Model::Reopened() const {
    Model read = *this;
    for (LayoutRef& layout : read.layouts_) layout = std::make_shared<Layout>(*layout);
    read.dirty = false;
    read.canvasWidth_ = width_;
    read.canvasHeight_ = height_;
    read.Deselect();
    read.current_ = read.layouts_.front();
    read.Compose();
    return read;
}

LayoutRef Model::Find(const std::string& key) const {
    const auto found =
        std::find_if(layouts_.begin(), layouts_.end(), [&](const LayoutRef& l) { return l->key == key; });
    return found == layouts_.end() ? nullptr : *found;
}

Element& Model::Named(const std::string& key) {
    for (Element& element : current_->elements)
        if (element.key == key) return element;
    throw std::runtime_error("no element " + key);
}

Element* Model::Selected() {
    for (Element& element : current_->elements)
        if (element.key == selected_) return &element;
    return nullptr;
}

Element* Model::ElementAt(Place at) {
    for (auto element = current_->elements.rbegin(); element != current_->elements.rend(); ++element)
        if (element->visible && element->isShown && element->shown.Contains(at)) return &*element;
    return nullptr;
}

void Model::Compose() {
    for (Element& e : current_->elements) {
        e.shown = {Start(e.fields.left, e.across, canvasWidth_), Start(e.fields.top, e.down, canvasHeight_),
                   std::max(0, e.fields.width + Growth(e.across, canvasWidth_, width_)),
                   std::max(0, e.fields.height + Growth(e.down, canvasHeight_, height_))};
        e.isShown = e.shown.width > 0 && e.shown.height > 0;
    }
    if (const Element* selected = Selected(); selected && !selected->isShown) Deselect();
}

void Model::WriteFields(Element& e) {
    e.fields = {Start(e.shown.left, e.across, canvasWidth_), Start(e.shown.top, e.down, canvasHeight_),
                e.shown.width - Growth(e.across, canvasWidth_, width_),
                e.shown.height - Growth(e.down, canvasHeight_, height_)};
}

void Model::Select(Element& element) {
    if (!element.isShown) return Deselect();
    selected_ = element.key;
    handles = element.shown;
}

void Model::Deselect() {
    selected_.clear();
    handles.reset();
}

void Model::AddElement(int type) {
    static const Element kinds[] = {
        {"Button", "", Button, {25, 25, 50, 50}, {}, {}, true, 0, 0, {}},
        {"Graphic", "", 2, {25, 25, 50, 50}, {}, {}, true, 0, 0, {}},
        {"Volume", "", Volume, {75, 25, 50, 50}, {false, true}, {}, true, 0, 0, {}},
        {"Info", "", Info, {100, 20, 400, 50}, {true, true}, {}, true, ButtonFace, 1, {}}};
    Element element = kinds[type - Button];
    const std::string word = element.key;
    const auto& all = current_->elements;
    const auto taken = [&](const std::string& key) {
        return std::any_of(all.begin(), all.end(), [&](const Element& e) { return e.key == key; });
    };
    int number = 1;
    while (taken(word + std::to_string(number))) ++number;
    element.key = element.name = word + std::to_string(number);
    current_->elements.push_back(element);
    dirty = true;
    Compose();
    Select(current_->elements.back());
}

void Model::CloneElement() {
    const Element source = *Selected();
    AddElement(source.type);
    Element& clone = current_->elements.back();
    const std::string key = clone.key;
    clone = source;
    clone.key = key;
    clone.name = "Clone of " + source.name;
    Compose();
    Select(clone);
}

void Model::Restack(bool toFront) {
    auto& all = current_->elements;
    const auto chosen = all.begin() + (Selected() - all.data());
    std::rotate(toFront ? chosen : all.begin(), toFront ? chosen + 1 : chosen,
                toFront ? all.end() : chosen + 1);
    Compose();
}

void Model::AddLayout(const std::string& name) {
    Deselect();
    layouts_.push_back(WithStandardElements(name));
    current_ = layouts_.back();
    dirty = true;
    Compose();
}

void Model::Save() {
    dirty = false;
    Compose();
}

/// A clone is also a save.
void Model::CloneLayout(const std::string& name) {
    auto clone = std::make_shared<Layout>(*current_);
    clone->key = LayoutKey(name);
    clone->name = name;
    layouts_.push_back(clone);
    current_ = clone;
    dirty = false;
    Deselect();
    Compose();
}

void Model::RenameLayout(const std::string& key, const std::string& name) {
    Find(key)->name = name;
}

/// The next one is chosen, or the last.
void Model::DeleteLayout(const std::string& key) {
    const auto gone = std::find(layouts_.begin(), layouts_.end(), Find(key));
    const auto next = layouts_.erase(gone);
    dirty = true;
    ChooseLayout((next == layouts_.end() ? layouts_.back() : *next)->key);
}

void Model::ChooseLayout(const std::string& key) {
    Deselect();
    current_ = Find(key);
    Compose();
}

void Model::ResizeCanvas(int width, int height) {
    canvasWidth_ = width;
    canvasHeight_ = height;
    Compose();
    if (Element* element = Selected()) Select(*element);
}

Box Model::Handle(int index) const {
    const auto along = [](int side, int start, int extent) {
        if (side < 0) return start - HandleSize;
        return side > 0 ? start + extent : Round(start + extent / 2.0 - 3);
    };
    return {along(Sides[index].x, handles->left, handles->width),
            along(Sides[index].y, handles->top, handles->height), HandleSize, HandleSize};
}

Place Model::CornerPlace(int index) const {
    const Corner& corner = current_->corners.at(static_cast<std::size_t>(index));
    return {corner.fromRight ? canvasWidth_ - corner.value.x : corner.value.x,
            corner.fromBottom ? canvasHeight_ - corner.value.y : corner.value.y};
}

Corner Model::CornerFrom(Place at, bool fromRight, bool fromBottom) const {
    return {{fromRight ? canvasWidth_ - at.x : at.x, fromBottom ? canvasHeight_ - at.y : at.y},
            fromRight,
            fromBottom};
}

int Model::HandleAt(Place at) const {
    int i = handles ? 7 : -1;
    while (i >= 0 && !Handle(i).Contains(at)) --i;
    return i;
}

int Model::CornerAt(Place at) const {
    int i = static_cast<int>(current_->corners.size()) - 1;
    for (; i >= 0; --i) {
        const Place corner = CornerPlace(i);
        if (Box{corner.x - CornerReach, corner.y - CornerReach, CornerSize, CornerSize}.Contains(at)) break;
    }
    return i;
}

std::string Model::ElementUnder(Place at) {
    if (HandleAt(at) >= 0 || CornerAt(at) >= 0) return "";
    const Element* element = ElementAt(at);
    return element ? element->key : "";
}

void Model::Press(Place at) {
    if (const int handle = HandleAt(at); handle >= 0) {
        held_ = Held::Handle;
        handle_ = handle;
        down_ = {at.x - Handle(handle).left, at.y - Handle(handle).top};
        return;
    }
    if (const int index = CornerAt(at); index >= 0) {
        const Place corner = CornerPlace(index);
        Deselect();
        selected_ = "K" + std::to_string(index + 1);
        held_ = Held::Corner;
        down_ = {at.x - corner.x + CornerReach, at.y - corner.y + CornerReach};
        return;
    }
    if (Element* element = ElementAt(at)) {
        Select(*element);
        held_ = Held::Element;
        down_ = {at.x - element->shown.left, at.y - element->shown.top};
    } else if (const int side = SideAt(at)) {
        AddCorner(side, at);
    } else {
        Deselect();
    }
}

void Model::PressRight(Place at) {
    Press(at);
    if (held_ == Held::Corner) DeleteCorner(SelectedCorner());
    held_ = Held::Nothing;
}

void Model::MoveTo(Place at) {
    const auto away = [&](int left, int top) { return Place{at.x - left - down_.x, at.y - top - down_.y}; };
    if (held_ == Held::Element) {
        Element& element = *Selected();
        DragElement(element, away(element.shown.left, element.shown.top));
    } else if (held_ == Held::Handle) {
        const Box handle = Handle(handle_);
        DragHandle(*Selected(), away(handle.left, handle.top));
    } else if (held_ == Held::Corner) {
        const int index = SelectedCorner();
        const Place corner = CornerPlace(index);
        const Place by = away(corner.x - CornerReach, corner.y - CornerReach);
        if (by.x == 0 && by.y == 0) return;
        MoveCorner(index, snap ? Place{Steps(by.x, gridY), Steps(by.y, gridX)} : by);
    }
}

void Model::DragElement(Element& element, Place by) {
    const bool tile = element.type != Main && element.type != Info && element.type != SearchBox;
    const int dead = tile ? 1 : 0;
    if (std::abs(by.x) <= dead && std::abs(by.y) <= dead) return;
    // Across goes by the spacing that is drawn down, and down by the other one.
    element.shown.left += snap ? Steps(by.x, gridY) : by.x;
    element.shown.top += snap ? Steps(by.y, gridX) : by.y;
    handles = element.shown;
    dirty = true;
}

void Model::DragHandle(Element& element, Place by) {
    const auto follow = [&](int side, int distance, int spacing, int& start, int& extent) {
        if (side == 0) return;
        const int step = snap ? Steps(distance, spacing) : distance;
        const auto settled = [&](int value) { return snap ? Steps(value, spacing) : value; };
        if (side < 0) start = settled(start + step);
        extent = std::max(0, settled(extent + side * step));
    };
    follow(Sides[handle_].x, by.x, gridX, element.shown.left, element.shown.width);
    follow(Sides[handle_].y, by.y, gridY, element.shown.top, element.shown.height);
    handles = element.shown;
    dirty = true;
}

void Model::Release() {
    if (held_ == Held::Element || held_ == Held::Handle) WriteFields(*Selected());
    held_ = Held::Nothing;
}

int Model::SideAt(Place at) const {
    const int count = static_cast<int>(current_->corners.size());
    for (int i = 0; i < count; ++i) {
        const Place one = CornerPlace(i), other = CornerPlace((i + 1) % count);
        if (at.x >= std::min(one.x, other.x) - SideReach && at.x <= std::max(one.x, other.x) + SideReach &&
            at.y >= std::min(one.y, other.y) - SideReach && at.y <= std::max(one.y, other.y) + SideReach)
            return i + 1;
    }
    return 0;
}

/// Near an edge it counts from there, elsewhere as the corner before it.
void Model::AddCorner(int side, Place at) {
    const auto far = [](int value, int canvas, bool neighbour) {
        return value < EdgeZone ? false : value > canvas - EdgeZone ? true : neighbour;
    };
    const Corner before = current_->corners[static_cast<std::size_t>(side - 1)];
    current_->corners.insert(current_->corners.begin() + side,
                             CornerFrom(at, far(at.x, canvasWidth_, before.fromRight),
                                        far(at.y, canvasHeight_, before.fromBottom)));
    dirty = true;
    if (selected_.empty() || Selected()) return;
    // A selected corner stays selected, whatever its number is now.
    if (const int order = std::stoi(selected_.substr(1)); order > side)
        selected_ = "K" + std::to_string(order + 1);
}

void Model::MoveCorner(int index, Place by) {
    const Place from = CornerPlace(index);
    const Place to = {std::clamp(from.x + by.x, 0, canvasWidth_ - 1),
                      std::clamp(from.y + by.y, 0, canvasHeight_ - 1)};
    Corner& corner = current_->corners[static_cast<std::size_t>(index)];
    corner = CornerFrom(to, corner.fromRight, corner.fromBottom);
    dirty = true;
}

void Model::DeleteCorner(int index) {
    if (current_->corners.size() >= 3) current_->corners.erase(current_->corners.begin() + index);
    Deselect();
    dirty = true;
}

void Model::Key(const std::string& key, bool shift, bool ctrl) {
    if (selected_.empty()) return;
    const int step = shift || ctrl ? 10 : 1;
    const Place by = {(key == "Right") * step - (key == "Left") * step,
                      (key == "Down") * step - (key == "Up") * step};
    Element* element = Selected();
    if (!element) {
        const int index = SelectedCorner();
        if (key == "Delete") return DeleteCorner(index);
        return MoveCorner(index, by);
    }
    dirty = true;
    if (key == "Delete" && element->type >= Button && element->type <= Info) {
        current_->elements.erase(current_->elements.begin() + (element - current_->elements.data()));
        return Deselect();
    }
    const int divisor = shift ? 10 : 1;
    int& across = shift || ctrl ? element->shown.width : element->shown.left;
    int& down = shift || ctrl ? element->shown.height : element->shown.top;
    if (!(shift || ctrl) || across + by.x / divisor >= 0) across += by.x / divisor;
    if (!(shift || ctrl) || down + by.y / divisor >= 0) down += by.y / divisor;
    WriteFields(*element);
    handles = element->shown;
}

std::string Model::Caption() const {
    return "Ornavo -> " + name_ + " -> " + current_->name + (dirty ? "*" : "") +
           " -> Current Size: " + std::to_string(canvasWidth_) + "x" + std::to_string(canvasHeight_);
}

}  // namespace ornavo::walk
