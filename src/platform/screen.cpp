// SPDX-License-Identifier: MIT
#include "platform/screen.h"

#include <QCursor>
#include <QGuiApplication>

namespace ornavo {

WaitPointer::WaitPointer() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

WaitPointer::~WaitPointer() {
    QGuiApplication::restoreOverrideCursor();
}

}  // namespace ornavo
