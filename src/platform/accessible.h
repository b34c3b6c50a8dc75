// SPDX-License-Identifier: MIT
// How the program tells a screen reader more about a widget than Qt does.
#pragma once

#include <QAccessibleWidget>

namespace ornavo {

/// Registers Interface as the accessibility interface of every Widget. Calls after the first do nothing.
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
