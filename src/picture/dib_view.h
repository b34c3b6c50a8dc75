// SPDX-License-Identifier: MIT
// A scrolling view of a picture in its natural size, painted from the picture's own bytes.
#pragma once

#include <QAbstractScrollArea>

namespace ornavo {

class cDIBSection;

/// The view of a 24-bit picture.
class DibView : public QAbstractScrollArea {
public:
    /// The picture must outlive the view.
    DibView(const char* name, const char* says, const cDIBSection& picture);

    void Refresh();                       // repaints at once after a change of pixels or size
    void ScrollTogether(DibView& other);  // from now on, scrolling this view scrolls the other

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void scrollContentsBy(int dx, int dy) override;
    QSize sizeHint() const override { return {440, 330}; }
    QSize minimumSizeHint() const override { return {120, 90}; }

private:
    void SetRanges();
    const cDIBSection& picture_;
};

}  // namespace ornavo
