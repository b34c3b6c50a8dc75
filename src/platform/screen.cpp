// SPDX-License-Identifier: MIT
#include "platform/screen.h"

#include <QCursor>
#include <QGuiApplication>
#include <algorithm>

namespace ornavo {
namespace {

int depth = 0;

}  // namespace

WaitPointer::WaitPointer() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

WaitPointer::~WaitPointer() {
    QGuiApplication::restoreOverrideCursor();
}

void BeginScreenUpdate() {
    ++depth;
}

void EndScreenUpdate() {
    depth = std::max(0, depth - 1);
}

int ScreenUpdateDepth() {
    return depth;
}

}  // namespace ornavo
