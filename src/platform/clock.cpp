// SPDX-License-Identifier: MIT
#include "platform/clock.h"

#include <chrono>

namespace ornavo {
namespace {

const Clock realClock;
const Clock* current = &realClock;

}  // namespace

QDateTime Clock::Now() const {
    return QDateTime::currentDateTime();
}

std::int64_t Clock::Milliseconds() const {
    using std::chrono::steady_clock;
    return std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch())
        .count();
}

const Clock& clock() {
    return *current;
}

void UseClock(const Clock* other) {
    current = other ? other : &realClock;
}

std::string TimeOfDay() {
    return current->Now().toString("HH:mm:ss").toStdString();
}

std::string TimeStamp() {
    return clock().Now().toString(QStringLiteral("yyyy-MM-dd HH-mm-ss-zzz")).toStdString();
}

}  // namespace ornavo
