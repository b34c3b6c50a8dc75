// SPDX-License-Identifier: MIT
// What an empty canvas says in its middle: how to begin.
#pragma once

#include <QPainter>
#include <string>

namespace ornavo {

/// `missingSkin`: the name of a skin that was asked for and has no file; "" if none was asked for.
void PaintWelcome(QPainter& painter, const QRect& window, const std::string& missingSkin);

}  // namespace ornavo
