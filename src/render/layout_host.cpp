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
    // It is only a picture of the jukebox's search box, so nothing can be typed into it.
    tbx_Search.Edit().setReadOnly(true);
    tbx_Search.Edit().setFocusPolicy(Qt::NoFocus);
}

void LayoutHost::ClearElements() {
    // Qt would add up the areas that the hidden controls uncover, one by one. Showing and hiding a cover
    // first marks the whole window for repainting, so that nothing is left to add.
    cover_.setGeometry(window_.rect());
    cover_.show();
    cover_.hide();
    Element.Clear();
    pInfo.Clear();
    for (Control* single : std::initializer_list<Control*>{&tbx_Search, &Scrollframe, &ScrollBar, &pMain})
        single->setVisible(false);
}

}  // namespace ornavo
