// SPDX-License-Identifier: MIT
#include "properties/row_pools.h"

#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QSignalBlocker>

#include "platform/panel_scale.h"

namespace ornavo {
namespace {

constexpr int ButtonWidth = 18, ButtonHeight = 16, EditPictureSize = 12;  // pixels

/// Reports that a text box loses the focus, except to its own menu, and presses its button by a key.
class BoxFilter : public QObject {
public:
    BoxFilter(RowText& box, RowEvents& events) : QObject(&box), box_(box), events_(events) {
        box.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::FocusOut &&
            static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
            events_.tbx_Prop_LostFocus(box_);
        if (event->type() != QEvent::KeyPress || !OpensButton(*static_cast<QKeyEvent*>(event))) return false;
        if (box_.button) box_.button->PerformClick();
        return true;
    }

private:
    // The keys that open a drop-down list.
    static bool OpensButton(const QKeyEvent& key) {
        return key.key() == Qt::Key_F4 || (key.key() == Qt::Key_Down && key.modifiers() & Qt::AltModifier);
    }

    RowText& box_;
    RowEvents& events_;
};

RowText* MakeText(QWidget& sheet, RowEvents& events) {
    auto* box = new RowText(&sheet);
    QObject::connect(box, &QLineEdit::textChanged, box, [&events, box] { events.tbx_Prop_Change(*box); });
    QObject::connect(box, &QLineEdit::returnPressed, box, [&events, box] { events.tbx_Prop_KeyPress(*box); });
    new BoxFilter(*box, events);
    return box;
}

RowFrame* MakeCombo(QWidget& sheet, RowEvents& events, int index) {
    auto* frame = new RowFrame(&sheet, index);
    QObject::connect(&frame->cboProp, &QComboBox::currentIndexChanged, frame,
                     [&events, frame] { events.cboProp_Click(frame->cboProp); });
    return frame;
}

RowCheck* MakeCheck(QWidget& sheet, RowEvents& events) {
    auto* box = new RowCheck(&sheet);
    QObject::connect(box, &QCheckBox::toggled, box, [&events, box] { events.chk_Boolean_Click(*box); });
    return box;
}

RowButton* MakeButton(QWidget& sheet, const char* name, int index, const char* tip) {
    auto* button = new RowButton(&sheet, name, index);
    button->setToolTip(QLatin1String(tip));
    // Tab steps through the values; a button is pressed from its box by a key.
    button->setFocusPolicy(Qt::NoFocus);
    button->resize(PanelScale(sheet)(QSize(ButtonWidth, ButtonHeight)));
    button->hide();
    return button;
}

}  // namespace

RowPools::RowPools(QWidget& sheet, RowEvents& events)
    : lbl_Prop([&sheet](int) { return new RowLabel(&sheet); }),
      tbx_Prop([&sheet, &events](int) { return MakeText(sheet, events); }),
      cboPic([&sheet, &events](int index) { return MakeCombo(sheet, events, index); }),
      chk_Boolean([&sheet, &events](int) { return MakeCheck(sheet, events); }),
      btn_Prop([&sheet, &events](int index) {
          RowButton* button = MakeButton(sheet, "btn_Prop", index, "Select (F4)");
          button->SetCaption(QStringLiteral("..."));
          QObject::connect(button, &TileCommand::Click, button,
                           [&events, button] { events.btn_Prop_Click(*button); });
          return button;
      }),
      btn_PicEdit([&sheet, &events](int index) {
          RowButton* button = MakeButton(sheet, "btn_PicEdit", index, "Edit Picture");
          button->SetPicture(QStringLiteral(":/pictures/edit_picture.png"),
                             PanelScale(sheet)(EditPictureSize));
          QObject::connect(button, &TileCommand::Click, button,
                           [&events, button] { events.btn_PicEdit_Click(*button); });
          return button;
      }) {}

int RowPools::LoadTextbox() {
    const int index = tbx_Prop.GetFree();
    tbx_Prop[index].SetLocked(false);
    tbx_Prop[index].Tip = nullptr;
    tbx_Prop[index].button = nullptr;
    tbx_Prop[index].SetBackColor(WindowBackground);
    return index;
}

void RowPools::UnloadProperties() {
    lbl_Prop.Clear();
    tbx_Prop.Clear();
    cboPic.Clear();
    for (int i = 1; i <= cboPic.Top(); ++i) {
        const QSignalBlocker quiet(cboProp(i));
        cboProp(i).clear();
    }
    chk_Boolean.Clear();
    btn_Prop.Clear();
    btn_PicEdit.Clear();
}

}  // namespace ornavo
