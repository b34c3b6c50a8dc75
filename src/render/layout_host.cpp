// SPDX-License-Identifier: MIT
#include "render/layout_host.h"

#include <QLineEdit>
#include <initializer_list>

namespace ornavo {

namespace {

template <class T>
T* Listening(T* control, ControlEvents* listener) {
    control->Listen(listener);
    control->setVisible(false);
    return control;
}

}  // namespace

LayoutHost::LayoutHost(QWidget& window, ControlEvents* listener)
    : pMain(&window, "pMain"),
      sample(pMain, listener),
      window_(window),
      cover_(&window),
      Element(
          [&window, listener](int i) { return Listening(new TileButton(&window, "Element", i), listener); }),
      pInfo([&window, listener](int i) { return Listening(new PictureBox(&window, "pInfo", i), listener); }),
      pMainBack(&window, "pMainBack"),
      tbx_Search(&window, "tbx_Search"),
      Scrollframe(&window, "Scrollframe"),
      ScrollBar(&window, "ScrollBar") {
    for (Control* single :
         std::initializer_list<Control*>{&pMain, &pMainBack, &tbx_Search, &Scrollframe, &ScrollBar})
        Listening(single, listener);
    cover_.setAttribute(Qt::WA_TransparentForMouseEvents);
    cover_.hide();
    // It stands for the jukebox's box: nobody types into the picture of it.
    tbx_Search.Edit().setReadOnly(true);
    tbx_Search.Edit().setFocusPolicy(Qt::NoFocus);
}

void LayoutHost::ClearElements() {
    // Qt adds up what every hidden control uncovers, rectangle by rectangle. A cover that comes and goes
    // tells it first that all of the window is to be painted again, and then there is nothing to add.
    cover_.setGeometry(window_.rect());
    cover_.show();
    cover_.hide();
    Element.Clear();
    pInfo.Clear();
    for (Control* single : std::initializer_list<Control*>{&tbx_Search, &Scrollframe, &ScrollBar, &pMain})
        single->setVisible(false);
}

}  // namespace ornavo
