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

/// Tells of a text box that is left, but not for a menu or a list of its own, and of the keys for its button.
class BoxFilter : public QObject {
public:
    BoxFilter(RowText& box, RowEvents& events) : QObject(&box), box_(box), events_(events) {
        box.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::FocusOut &&
            static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
            events_.FocusLost(box_.Index);
        if (event->type() != QEvent::KeyPress || !OpensButton(*static_cast<QKeyEvent*>(event))) return false;
        events_.ButtonWanted(box_.Index);
        return true;
    }

private:
    // The keys that open a list.
    static bool OpensButton(const QKeyEvent& key) {
        return key.key() == Qt::Key_F4 || (key.key() == Qt::Key_Down && key.modifiers() & Qt::AltModifier);
    }

    RowText& box_;
    RowEvents& events_;
};

RowText* MakeText(QWidget& sheet, RowEvents& events, int index) {
    auto* box = new RowText(&sheet, index);
    QObject::connect(box, &QLineEdit::textChanged, box, [&events, index] { events.TextChanged(index); });
    QObject::connect(box, &QLineEdit::returnPressed, box, [&events, index] { events.EnterPressed(index); });
    new BoxFilter(*box, events);
    return box;
}

RowFrame* MakeCombo(QWidget& sheet, RowEvents& events, int index) {
    auto* frame = new RowFrame(&sheet, index);
    QObject::connect(&frame->cboProp, &QComboBox::currentIndexChanged, frame,
                     [&events, index] { events.ComboClicked(index); });
    return frame;
}

RowCheck* MakeCheck(QWidget& sheet, RowEvents& events, int index) {
    auto* box = new RowCheck(&sheet, index);
    QObject::connect(box, &QCheckBox::toggled, box, [&events, index] { events.CheckClicked(index); });
    return box;
}

TileCommand* MakeButton(QWidget& sheet, const char* name, int index, const char* tip) {
    auto* button = new TileCommand(&sheet, name, index);
    button->setToolTip(QLatin1String(tip));
    // The Tab key walks the values; a row's button is pressed from its box.
    button->setFocusPolicy(Qt::NoFocus);
    button->resize(PanelScale(sheet)(QSize(ButtonWidth, ButtonHeight)));
    button->hide();
    return button;
}

}  // namespace

RowPools::RowPools(QWidget& sheet, RowEvents& events)
    : lbl_Prop([&sheet](int index) { return new RowLabel(&sheet, index); }),
      tbx_Prop([&sheet, &events](int index) { return MakeText(sheet, events, index); }),
      cboPic([&sheet, &events](int index) { return MakeCombo(sheet, events, index); }),
      chk_Boolean([&sheet, &events](int index) { return MakeCheck(sheet, events, index); }),
      btn_Prop([&sheet, &events](int index) {
          TileCommand* button = MakeButton(sheet, "btn_Prop", index, "Select (F4)");
          button->SetCaption(QStringLiteral("..."));
          QObject::connect(button, &TileCommand::Click, button,
                           [&events, index] { events.ButtonClicked(index); });
          return button;
      }),
      btn_PicEdit([&sheet, &events](int index) {
          TileCommand* button = MakeButton(sheet, "btn_PicEdit", index, "Edit Picture");
          button->SetPicture(QStringLiteral(":/pictures/edit_picture.png"),
                             PanelScale(sheet)(EditPictureSize));
          QObject::connect(button, &TileCommand::Click, button,
                           [&events, index] { events.PicEditClicked(index); });
          return button;
      }) {}

int RowPools::LoadTextbox() {
    const int index = tbx_Prop.GetFree();
    tbx_Prop[index].SetLocked(false);
    tbx_Prop[index].Tip = nullptr;
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
