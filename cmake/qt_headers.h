// SPDX-License-Identifier: MIT
// The headers that most rooms with windows include; precompiled.
#pragma once

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>
