// SPDX-License-Identifier: MIT
// The sheet on which the rows are placed: it draws the lines, and Tab steps from value to value.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

class QScrollArea;

namespace ornavo {

inline constexpr int RowPitch = 15, CaptionWidth = 120;  // pixels at the designed size

/// The value of a row: the control that gets the focus.
struct RowValue {
    std::string key;
    QWidget* control;
};

/// The scrolled widget that has the rows' controls as children.
class RowSheet : public QWidget {
public:
    /// Becomes the widget of the scroll area, which must outlive it.
    explicit RowSheet(QScrollArea& scroll);
    ~RowSheet() override;

    void SetValues(std::vector<RowValue> values) { values_ = std::move(values); }
    const std::vector<RowValue>& Values() const { return values_; }
    /// The value that has the focus of its window; null if none has.
    const RowValue* Focused() const;
    /// Sets the focus to the value with this key; does nothing if there is none.
    void Focus(std::string_view key);

protected:
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent*) override;

private:
    QScrollArea& scroll_;
    std::vector<RowValue> values_;  // from top to bottom
};

}  // namespace ornavo
