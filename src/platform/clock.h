// SPDX-License-Identifier: MIT
// The time of day, replaceable by tests and by the command-line renderer.
#pragma once

#include <QDateTime>
#include <string>

namespace ornavo {

/// A source of the present time; the base class is the system's clock.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime Now() const;  // local time
};
const Clock& clock();
void UseClock(const Clock* other);  // null: the system's clock

/// The clock's time as "HH:mm:ss".
std::string TimeOfDay();
/// Date and time in a form that a file name can contain: "2026-01-31 23-59-59-999".
std::string TimeStamp();

}  // namespace ornavo
