// SPDX-License-Identifier: MIT
// Filling the properties panel for a button, compared with placing and painting as many pairs of a label and
// a text box. A frame has 16 ms.
#include <QApplication>
#include <QLabel>
#include <QLineEdit>

#include "document/codes.h"
#include "document/current_skin.h"
#include "judge.h"
#include "platform/startup.h"
#include "properties/frm_properties.h"
#include "support/recorded_windows.h"

namespace ornavo::bench {
namespace {

constexpr int RowCount = 40, Width = 312;

/// The panel of a button of a layout with 60.
class Panel {
public:
    Panel() {
        objCurrentLayout = std::make_shared<dbLayout>();
        for (int i = 1; i <= 60; ++i) {
            const std::string key = "Button" + std::to_string(i);
            objCurrentLayout->dbLayoutElements->Add(i, key, TypeButton, 0)->ElementName = key;
        }
        selected_.Tag = "Button1";
        canvas_.selection().Select(selected_);
        panel_.Open();
    }
    double Fill() {
        return Cpu([&] {
            panel_.ShowProperties();
            QCoreApplication::processEvents();
        });
    }

private:
    testing::RecordedWindows windows_;
    testing::RecordedCanvas canvas_;
    frm_Properties panel_{nullptr, windows_, canvas_};
    Control selected_{nullptr, "Element"};
};

class PlainRows {
public:
    PlainRows() {
        window_.resize(Width, RowCount * RowPitch);
        for (int i = 0; i < RowCount; ++i) {
            labels_.push_back(new QLabel(&window_));
            boxes_.push_back(new QLineEdit(&window_));
        }
        window_.show();
    }
    double Fill() {
        return Cpu([&] {
            for (int i = 0; i < RowCount; ++i) labels_[i]->hide(), boxes_[i]->hide();
            for (int i = 0; i < RowCount; ++i) FillRow(i);
            QCoreApplication::processEvents();
        });
    }

private:
    void FillRow(int i) {
        labels_[i]->setText("Caption");
        labels_[i]->setGeometry(0, i * RowPitch, CaptionWidth, RowPitch);
        boxes_[i]->setText("Value");
        boxes_[i]->setGeometry(CaptionWidth, i * RowPitch, Width - CaptionWidth, RowPitch);
        labels_[i]->show();
        boxes_[i]->show();
    }
    QWidget window_;
    std::vector<QLabel*> labels_;
    std::vector<QLineEdit*> boxes_;
};

}  // namespace
}  // namespace ornavo::bench

int main(int count, char** words) {
    using namespace ornavo::bench;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ornavo::PrepareProcess();
    QApplication application(count, words);
    ornavo::InitCommonControls(application);
    Panel panel;
    PlainRows rows;
    return Judge({{"sheet of a button", [&] { return panel.Fill(); }, "40 labels and text boxes",
                   [&] { return rows.Fill(); }, 2}},
                 count, words);
}
