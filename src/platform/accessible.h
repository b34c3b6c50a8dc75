// SPDX-License-Identifier: MIT
// What a screen reader is told of a widget beyond what Qt knows.
#pragma once

#include <QAccessibleWidget>

namespace ornavo {

/// From the first call on, a screen reader asks an Interface, made from it, about each Widget.
template <class Widget, class Interface>
void TellReaders() {
    const auto make = [](const QString&, QObject* object) -> QAccessibleInterface* {
        auto* widget = dynamic_cast<Widget*>(object);
        return widget ? new Interface(widget) : nullptr;
    };
    static const bool once = (QAccessible::installFactory(make), true);
    static_cast<void>(once);
}

}  // namespace ornavo
