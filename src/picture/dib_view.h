// SPDX-License-Identifier: MIT
// A box that scrolls over a picture at its natural size and paints the picture's own bytes.
#pragma once

#include <QAbstractScrollArea>

namespace ornavo {

class cDIBSection;

class DibView : public QAbstractScrollArea {
public:
    /// The picture must outlive the view.
    DibView(const char* name, const char* says, const cDIBSection& picture);

    void Refresh();  // paints at once what has changed, its size too
    void ScrollTogether(DibView& other);

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
