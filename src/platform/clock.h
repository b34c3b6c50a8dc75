// SPDX-License-Identifier: MIT
// The time of day, handed in so that a test and the renderer can set them.
#pragma once

#include <QDateTime>
#include <string>

namespace ornavo {

class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime Now() const;  // local time
};
const Clock& clock();
void UseClock(const Clock* other);  // null: the real one again

/// The clock's time as "HH:mm:ss".
std::string TimeOfDay();
/// Date and time as they can stand in the name of a file: "2026-01-31 23-59-59-999".
std::string TimeStamp();

}  // namespace ornavo
