// SPDX-License-Identifier: MIT
// What a walk expects: the rules of editing written down once more, as arithmetic on numbers alone. It takes
// the same events as the program and gives the file that must come of them. It shares no code with the
// program.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ornavo::walk {

struct Place {
    int x = 0, y = 0;
};
struct Box {
    int left = 0, top = 0, width = 0, height = 0;
    bool Contains(Place at) const;
    Place Middle() const { return {left + width / 2, top + height / 2}; }
};

/// Where a value counts from: the locks of one axis.
struct Locks {
    bool low = true, high = false;
};

struct Element {
    std::string key, name;
    int type = 0;
    Box fields;
    Locks across, down;
    bool visible = true;
    int background = 0, scrollSpeed = 0;
    Box shown;            // on the canvas
    bool isShown = true;  // it had an extent when it was composed
};

/// A corner of the shape; `fromFar`: counted from the right or the bottom edge.
struct Corner {
    Place value;
    bool fromRight = false, fromBottom = false;
};

struct Layout {
    std::string key, name;
    std::vector<Corner> corners;
    std::vector<Element> elements;  // the first at the back
};
using LayoutRef = std::shared_ptr<Layout>;

class Model {
public:
    Model(std::string name, int width, int height);
    /// As it is read from its file.
    Model Reopened() const;

    // What the tool windows do.
    void AddElement(int type);
    void AddLayout(const std::string& name);
    void CloneLayout(const std::string& name);
    void RenameLayout(const std::string& key, const std::string& name);
    void DeleteLayout(const std::string& key);
    void ChooseLayout(const std::string& key);
    void Save();
    void ResizeCanvas(int width, int height);

    // What happens on the canvas.
    void Press(Place at);
    void PressRight(Place at);
    void MoveTo(Place at);
    void Release();
    void Key(const std::string& key, bool shift = false, bool ctrl = false);
    void CloneElement();
    void Restack(bool toFront);

    // What must be seen.
    std::string Caption() const;
    std::optional<Box> handles;  // what they stand round; nothing when they are hidden
    Box Handle(int index) const;
    Place CornerPlace(int index) const;
    /// The key of the element that a press there would take; "" where it would take something else.
    std::string ElementUnder(Place at);
    Element& Named(const std::string& key);
    std::string SelectedKey() const { return selected_; }  // a corner's is "K" and its number from 1
    Layout& current() { return *current_; }
    std::vector<LayoutRef>& layouts() { return layouts_; }

    /// The file's lines from <Layouts> on, and what stands before the preferences.
    std::string LayoutLines() const;
    std::string HeadLines() const;

    bool dirty = false, snap = false;
    int gridX = 10, gridY = 10;

private:
    enum class Held { Nothing, Element, Handle, Corner };
    int HandleAt(Place at) const;  // -1: none
    int CornerAt(Place at) const;
    Element* ElementAt(Place at);
    Element* Selected();
    int SelectedCorner() const { return std::stoi(selected_.substr(1)) - 1; }
    void Compose();
    void WriteFields(Element& element);
    void Select(Element& element);
    void Deselect();
    int SideAt(Place at) const;
    void AddCorner(int side, Place at);
    void DragElement(Element& element, Place by);
    void DragHandle(Element& element, Place by);
    void MoveCorner(int index, Place by);
    void DeleteCorner(int index);
    Corner CornerFrom(Place at, bool fromRight, bool fromBottom) const;
    LayoutRef WithStandardElements(const std::string& name) const;
    LayoutRef Find(const std::string& key) const;
    Place Origin() const;

    std::string name_;
    int width_, height_, canvasWidth_, canvasHeight_;
    std::vector<LayoutRef> layouts_;
    LayoutRef current_;
    std::string selected_;
    Held held_ = Held::Nothing;
    int handle_ = 0;
    Place down_;  // of the pointer in what it holds
};

}  // namespace ornavo::walk
