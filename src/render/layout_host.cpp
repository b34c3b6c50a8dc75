// SPDX-License-Identifier: MIT
#include "render/layout_host.h"

#include <QLineEdit>
#include <initializer_list>

namespace ornavo {

LayoutHost::LayoutHost(QWidget& window, ControlEvents* events)
    : SamplePanel(window, events),
      window_(window),
      cover_(*new QWidget(&window)),
      Element([&window, this](int i) { return Listening(new TileButton(&window, "Element", i)); }),
      pInfo([&window, this](int i) { return Listening(new PictureBox(&window, "pInfo", i)); }),
      pMainBack(*new PictureBox(&window, "pMainBack")),
      tbx_Search(*new TextBox(&window, "tbx_Search")),
      Scrollframe(*new TileButton(&window, "Scrollframe")),
      ScrollBar(*new TileButton(&window, "ScrollBar")) {
    for (Control* single : std::initializer_list<Control*>{&pMainBack, &tbx_Search, &Scrollframe, &ScrollBar})
        Listening(single);
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
