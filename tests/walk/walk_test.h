// SPDX-License-Identifier: MIT
// What every walk has: the desktop, and a picture of it beside the build when something went wrong.
#pragma once

#include <gtest/gtest.h>

#include <QDir>

#include "walk/desktop.h"

namespace ornavo::walk {

class WalkTest : public ::testing::Test {
protected:
    void TearDown() override {
        if (!HasFailure()) return;
        const QDir folder(ORNAVO_BINARY_DIR "/walk");
        const QString file = folder.filePath(
            QString(::testing::UnitTest::GetInstance()->current_test_info()->name()) + ".png");
        folder.mkpath(".");
        if (desktop_.Picture().save(file))
            std::fprintf(stderr, "the screen is kept in %s\n", qPrintable(file));
    }

    Desktop desktop_{110};  // seconds: the picture is to be kept before the test's own limit
};

}  // namespace ornavo::walk
