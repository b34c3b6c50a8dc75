// SPDX-License-Identifier: MIT
// The picture of a layout, composed on the side.
#pragma once

#include <QImage>
#include <QRegion>
#include <memory>
#include <string>
#include <vector>

#include "document/dbskin.h"
#include "render/layout_host.h"
#include "render/placement.h"
#include "render/view.h"

namespace ornavo {

/// A layout in an invisible window of its own, composed from a copy of the skin. As long as it lives the copy
/// is the current skin, and nothing is shown to the user; at its end all that is current in the program is as
/// it was, and no field of the skin has changed. It may not outlive one that is made within its life.
class LayoutPicture {
public:
    /// The size is in pixels, 1 to MostWindowPixels each. Failure 9 if there is no such layout.
    LayoutPicture(const dbSkin& skin, std::string_view layoutKey, Size size, View view);
    ~LayoutPicture();
    LayoutPicture(const LayoutPicture&) = delete;
    LayoutPicture& operator=(const LayoutPicture&) = delete;

    LayoutHost& host();
    const dbLayout& layout() const;
    /// What failed in the composition, in words.
    const std::vector<std::string>& failures() const;
    QImage Whole();
    /// Only the controls in a part of the window, cut hard to the shape; clear where there is none.
    QImage Controls(const QRegion& part);
    /// With everything outside of the layout's shape transparent. Soft edges are anti-aliased along the
    /// polygon, hard ones follow the window's region.
    QImage Shaped(bool isSoft);

private:
    class Aside;
    class Window;
    std::unique_ptr<Aside> aside_;
    std::unique_ptr<Window> window_;
};

}  // namespace ornavo
