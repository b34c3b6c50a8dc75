// SPDX-License-Identifier: MIT
#include "platform/clock.h"

namespace ornavo {
namespace {

const Clock realClock;
const Clock* current = &realClock;

}  // namespace

QDateTime Clock::Now() const {
    return QDateTime::currentDateTime();
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
