// SPDX-License-Identifier: MIT
// The time of day and a running clock, handed in so that a test and the renderer can set them.
#pragma once

#include <QDateTime>
#include <cstdint>
#include <string>

namespace ornavo {

class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime Now() const;              // local time
    virtual std::int64_t Milliseconds() const;  // never goes back
};
const Clock& clock();
void UseClock(const Clock* other);  // null: the real one again

/// The clock's time as "HH:mm:ss".
std::string TimeOfDay();

}  // namespace ornavo
