// SPDX-License-Identifier: MIT
// The ground on which the rows stand: its lines, and the way of the Tab key from value to value.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

class QScrollArea;

namespace ornavo {

inline constexpr int RowPitch = 15, CaptionWidth = 120;  // pixels, as designed

/// The value of a row: what the keyboard goes to.
struct RowValue {
    std::string key;
    QWidget* control;
};

class RowSheet : public QWidget {
public:
    /// Becomes the widget of the scroll area, which still has to live when the sheet goes.
    explicit RowSheet(QScrollArea& scroll);
    ~RowSheet() override;

    void SetValues(std::vector<RowValue> values) { values_ = std::move(values); }
    const std::vector<RowValue>& Values() const { return values_; }
    /// The value that has the focus of the window, and null for none.
    const RowValue* Focused() const;
    /// Gives the focus of the window to the value with the key, if there is one.
    void Focus(std::string_view key);

protected:
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent*) override;

private:
    QScrollArea& scroll_;
    std::vector<RowValue> values_;  // from the top
};

}  // namespace ornavo
