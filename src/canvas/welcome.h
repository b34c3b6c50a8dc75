// SPDX-License-Identifier: MIT
// What an empty canvas says in its middle: how to begin.
#pragma once

#include <QPainter>
#include <string>

namespace ornavo {

/// `skin`: the name of the one that was asked for, "" for none. It was found and has no layout, or wasn't.
void PaintWelcome(QPainter& painter, const QRect& window, const std::string& skin, bool found);

}  // namespace ornavo
