// SPDX-License-Identifier: MIT
#include "platform/places.h"

#include <algorithm>

namespace ornavo {

std::optional<QPoint> PlaceBeside(const QRect& room, const QRect& main, const QSize& window,
                                  const std::vector<QRect>& taken) {
    const int top = std::max(room.top(), main.top());
    for (const bool right : {true, false}) {
        const QRect side = right ? QRect(QPoint(main.right() + 1, top), room.bottomRight())
                                 : QRect(QPoint(room.left(), top), QPoint(main.left() - 1, room.bottom()));
        // The window touches the main window or a taken place, and is at the top or right below a taken
        // place.
        std::vector<int> lefts = {right ? side.left() : side.right() + 1 - window.width()};
        std::vector<int> tops = {top};
        for (const QRect& other : taken) {
            lefts.push_back(right ? other.right() + 1 : other.left() - window.width());
            tops.push_back(other.bottom() + 1);
        }
        std::sort(tops.begin(), tops.end());
        for (const int y : tops)
            for (const int x : lefts) {
                const QRect place(QPoint(x, y), window);
                const bool isFree = std::none_of(taken.begin(), taken.end(),
                                                 [&](const QRect& other) { return other.intersects(place); });
                if (isFree && side.contains(place)) return place.topLeft();
            }
    }
    return std::nullopt;
}

QPoint WithinRoom(const QRect& room, const QPoint& corner, const QSize& window) {
    return {std::max(room.left(), std::min(corner.x(), room.right() + 1 - window.width())),
            std::max(room.top(), std::min(corner.y(), room.bottom() + 1 - window.height()))};
}

}  // namespace ornavo
