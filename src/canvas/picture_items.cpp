// SPDX-License-Identifier: MIT
#include "canvas/picture_items.h"

#include <QImage>
#include <array>
#include <vector>

#include "base/failure.h"
#include "base/files.h"
#include "base/lookup.h"
#include "base/paths.h"
#include "canvas/anchors.h"
#include "canvas/element_families.h"
#include "canvas/shape_points.h"
#include "document/current_skin.h"
#include "platform/picture_bytes.h"
#include "render/layout_host.h"
#include "render/redraw.h"
#include "render/skin_picture.h"

namespace ornavo {
namespace {

/// While it lives, hides the selected control and what belongs to the editor and not to the layout.
class ToolsHidden {
public:
    explicit ToolsHidden(CanvasParts& parts) {
        Hide(parts.selection.SelControl());
        Hide(&parts.anchors.Mover);
        for (Control* handle : parts.anchors.Anchor) Hide(handle);
        HideAll(parts.points.cPoint);
        HideAll(parts.points.cPointMover);
    }
    ~ToolsHidden() {
        for (Control* control : hidden_) control->setVisible(true);
    }
    ToolsHidden(const ToolsHidden&) = delete;
    ToolsHidden& operator=(const ToolsHidden&) = delete;

private:
    void Hide(Control* control) {
        if (control->isHidden()) return;
        control->setVisible(false);
        hidden_.push_back(control);
    }
    template <class T>
    void HideAll(const Pool<T>& pool) {
        for (int i = 1; i <= pool.Top(); ++i) Hide(&pool[i]);
    }
    std::vector<Control*> hidden_;
};

/// The canvas's pixels in the bounds, one for each pixel of the skin; black outside of the canvas.
QImage PixelsOf(QWidget& canvas, const Rect& bounds) {
    if (std::int64_t{bounds.width} * bounds.height > PicturePixelLimit) return {};
    QImage pixels(bounds.width, bounds.height, QImage::Format_RGB32);
    if (pixels.isNull()) return pixels;
    pixels.fill(Qt::black);
    const QRect seen = canvas.rect() & QRect(bounds.left, bounds.top, bounds.width, bounds.height);
    if (!seen.isEmpty())
        canvas.render(&pixels, seen.topLeft() - QPoint(bounds.left, bounds.top), QRegion(seen),
                      QWidget::DrawWindowBackground | QWidget::DrawChildren);
    return pixels;
}

}  // namespace

Size PicRealSize;

void ResetToOriginalSize(CanvasParts& parts) {
    const dbLayoutElementRef element = SelectedElement(parts);
    if (!element) return;
    if (const PictureRef picture = LoadSkinPicture(element->PicNormal))
        PicRealSize = {picture->image().width(), picture->image().height()};
    if (PicRealSize == Size{}) return;
    element->WidthX = PicRealSize.width;
    element->HeightY = PicRealSize.height;
    parts.canvas.UpdateCurrentLayout();
    parts.anchors.PlaceAnchors();
}

void UseBackgroundAsPicture(CanvasParts& parts) {
    const dbLayoutElementRef element = SelectedElement(parts);
    if (!element || objSkin->SkinName.empty()) return;
    const std::string name = CleanFileName(element->ElementName) + "_up.jpg";
    MakePath(objSkin->SkinFolder());  // a new skin has no folder before its first save
    {
        const ToolsHidden hidden(parts);
        const QImage picCopyBackground = PixelsOf(parts.form, parts.selection.SelControl()->Bounds());
        ReplaceFileItself(OnDisk(objSkin->SkinFolder() + name),
                          FileBytesOf(picCopyBackground, FileKind::Jpeg));
    }
    element->PicNormal = name;
    Attempt([&] { RedrawElement(*element); });
    parts.anchors.PlaceAnchors();
}

}  // namespace ornavo
