// SPDX-License-Identifier: MIT
#include "dialogs/qt_prompts.h"

#include <QMessageBox>

namespace ornavo {
namespace {

QMessageBox::Icon BoxIcon(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Question:
            return QMessageBox::Question;
        case Icon::Critical:
            return QMessageBox::Critical;
        default:
            return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButtons BoxButtons(Buttons buttons) {
    switch (buttons) {
        case Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        default:
            return QMessageBox::Ok;
    }
}

QString Shown(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

Answer QtPrompts::Message(std::string_view text, std::string_view title, Icon icon, Buttons buttons) {
    QMessageBox box(BoxIcon(icon), Shown(title), Shown(text), BoxButtons(buttons),
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    switch (box.exec()) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return buttons == Buttons::YesNo ? Answer::No : Answer::Ok;
    }
}

}  // namespace ornavo
