// SPDX-License-Identifier: MIT
// The window "Properties": the rows of its sheets by their captions, and how they are clicked and filled.
#pragma once

#include "walk/desktop.h"

namespace ornavo::guide {

using Captions = QStringList;
inline const Captions Position =
    QString(
        "Position;X;Y;Width;Height;Lock Left;Lock Right;Stretch Width;Lock Top;Lock Bottom;Stretch Height")
        .split(';');
inline const Captions Element = {"Element List", "Element", "Name", "Element Type"};
inline const Captions Look =
    QString(
        "Caption Heading;Caption;Caption X Margin;Caption Y Margin;Font;Text Color;Show Shadow;Shadow "
        "Distance;Shadow Color;Appearance;Visible;Show Border;Border Color;Normal;On;Over;Down;Disabled;Show "
        "Smooth;Use Transparency;Use Top-Left Transp.;Transparent Color;Rotation")
        .split(';');
inline const Captions ButtonRows = Element + Captions{"Action Type"} + Position + Look;
inline const Captions PictureRows =
    Element + Position + Look +
    Captions{"Misc", "db-Script Name", "Is Jukebox Drager", "Is Jukebox Resizer", "Is Search Graphic"};
inline const Captions InfoHead = Element + Position + Captions{"Info Settings", "Info Type"};
inline const Captions InfoTail =
    QString(
        "Is Song Seeker;Seeker Color;Offset Left;Offset Right;Offset Top;Offset "
        "Bottom;Appearance;Visible;Background Picture;Background Color;Font;Text "
        "Color;Caption Y Margin;Scroll Speed (Pixels)")
        .split(';');
inline const Captions LabelRows = InfoHead + Captions{"Caption", "db-Script Name"} + InfoTail;
inline const Captions TitleRows = InfoHead + Captions{"db-Script Name"} + InfoTail;
/// Of a family only the first rows are worked; there are `count` in all.
inline Captions FirstOf(Captions rows, int count) {
    while (rows.size() < count) rows += "Another";
    return rows;
}

class Sheet {
public:
    explicit Sheet(walk::Desktop& desktop) : desktop_(desktop) {}

    /// The window has come up; nothing yet of its rows.
    void Open(const QPoint& at) {
        if (!window_.isEmpty()) return;
        window_ = desktop_.Window("^Properties$");
        desktop_.Place(window_, at);
    }
    void Becomes(const Captions& rows) {
        rows_ = rows;
        desktop_.WaitFor("a sheet of " + std::to_string(rows.size()) + " rows", [&] {
            return desktop_.Inside(window_).height() == RowHeight * static_cast<int>(rows.size()) - 1;
        });
    }
    QRect Row(const char* caption) {
        const auto row = static_cast<int>(rows_.indexOf(caption));
        if (row < 0) throw std::runtime_error(caption);
        const QRect inside = desktop_.Inside(window_);
        return {inside.left(), inside.top() + RowHeight * row, inside.width(), RowHeight};
    }
    void ClickRow(const char* caption) {
        desktop_.Click(Row(caption).topLeft() + QPoint(ValueLeft + 6, RowHeight / 2));
        desktop_.WaitForFocus("Properties");
    }
    void Type(const char* caption, const QString& text) {
        ClickRow(caption);
        desktop_.Key({"ctrl+a"});
        desktop_.Type(text);
    }
    void ChoosePicture(const char* caption, const QString& file) {
        ClickRow(caption);
        desktop_.Key({"F4"});
        desktop_.WaitForFocus("Open Picture");
        desktop_.Type(file);
        // The first Return may only close a list of proposals.
        desktop_.WaitFor("a chosen picture", [&] {
            desktop_.Key({"Return"});
            return desktop_.FocusTitle() != "Open Picture";
        });
        desktop_.WaitForFocus("Properties");
    }
    const QString& window() const { return window_; }

private:
    static constexpr int RowHeight = 15, ValueLeft = 120;  // pixels
    walk::Desktop& desktop_;
    QString window_;
    Captions rows_;
};

}  // namespace ornavo::guide
