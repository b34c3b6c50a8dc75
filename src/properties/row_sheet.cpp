// SPDX-License-Identifier: MIT
#include "properties/row_sheet.h"

#include <QPainter>
#include <QScrollArea>
#include <algorithm>

#include "base/find_row.h"
#include "platform/panel_scale.h"

namespace ornavo {

RowSheet::RowSheet(QScrollArea& scroll) : scroll_(scroll) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    scroll.setWidget(this);
}

RowSheet::~RowSheet() {
    scroll_.takeWidget();
}

const RowValue* RowSheet::Focused() const {
    return FindRowIf(values_, [](const RowValue& value) {
        return value.control->window()->focusWidget() == value.control;
    });
}

void RowSheet::Focus(std::string_view key) {
    const RowValue* found = FindRow(values_, &RowValue::key, key);
    if (!found) return;
    found->control->setFocus(Qt::OtherFocusReason);
    scroll_.ensureWidgetVisible(found->control, 0, PanelScale(*this)(RowPitch));
}

bool RowSheet::focusNextPrevChild(bool next) {
    if (values_.empty()) return false;
    const auto count = static_cast<std::ptrdiff_t>(values_.size());
    const RowValue* focused = Focused();
    std::ptrdiff_t at = next ? 0 : count - 1;
    if (focused) at = (focused - values_.data() + (next ? 1 : count - 1)) % count;
    QWidget* control = values_[static_cast<std::size_t>(at)].control;
    control->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    scroll_.ensureWidgetVisible(control, 0, PanelScale(*this)(RowPitch));
    return true;
}

void RowSheet::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const PanelScale scale(*this);
    const int captions = scale(CaptionWidth), pitch = scale(RowPitch);
    painter.fillRect(0, 0, captions, height(), palette().window());
    painter.fillRect(captions, 0, width() - captions, height(), palette().base());
    for (int bottom = pitch - 1; bottom < height(); bottom += pitch)
        painter.fillRect(0, bottom, width(), 1, palette().mid());
}

}  // namespace ornavo
