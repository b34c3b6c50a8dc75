// SPDX-License-Identifier: MIT
// The entry point of a walk: its windows are another program's, so it needs no screen itself.
#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
