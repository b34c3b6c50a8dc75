// SPDX-License-Identifier: MIT
// What the mouse does on the preview: the skin's own buttons operate the window, the volume and the song.
#pragma once

#include <QPoint>
#include <QSize>

#include "document/dblayouts.h"
#include "platform/control.h"
#include "playback/info_show.h"
#include "render/element_kinds.h"

namespace ornavo {

/// What the mouse may ask of the window. All values are pixels.
class PreviewWindow {
public:
    virtual ~PreviewWindow() = default;
    virtual bool IsMaximised() const = 0;
    virtual QPoint Corner() const = 0;
    virtual QSize Inside() const = 0;
    virtual void MoveCorner(const QPoint& corner) = 0;
    virtual void ShowOutline(const QSize& size) = 0;  // instead of the window
    virtual void EndOutline() = 0;                    // shows the window again in the outline's size
    virtual void ToggleMaximise() = 0;
    virtual void Minimise() = 0;
    virtual void Unload() = 0;
};

inline constexpr int LeastPreview = 600;  // pixels; least width and height when resizing

/// The new length of a side, in pixels, when its grip is dragged from `from` to `to`; at least LeastPreview.
int ResizedSide(int length, int from, int to);

/// The listener of the preview's controls.
class PreviewMouse : public ControlEvents {
public:
    PreviewMouse(PreviewWindow& window, InfoShow& infos) : window_(window), infos_(infos) {}

    dbLayoutRef Layout;
    bool Resizing = false;  // from the press on a resizer to the release

    void MouseDown(Control& control, const Mouse& mouse) override;
    void MouseMove(Control& control, const Mouse& mouse) override;
    void MouseUp(Control& control, const Mouse& mouse) override;
    void DblClick(Control& control, const Mouse& mouse) override;
    void Repeat(Control& control) override;

private:
    const dbLayoutElement* ElementOf(const Control& control, ElementKind kind) const;
    void Element_MouseDown(const dbLayoutElement& element, const Mouse& mouse);
    void Element_MouseMove(const dbLayoutElement& element, const Mouse& mouse);
    void Element_MouseUp(const dbLayoutElement& element);
    void pInfo_MouseMove(const dbLayoutElement& element, const Rect& box, const Mouse& mouse);
    void ChangeVolume(double by);

    PreviewWindow& window_;
    InfoShow& infos_;
    bool dragging_ = false;
    QPoint grip_;  // from the window's corner to the pointer, pixels
    int StartX = 0, StartY = 0, StartWidth = 0, StartHeight = 0;
    int VolumeY = 0;  // last place on a dial
};

}  // namespace ornavo
