// SPDX-License-Identifier: MIT
// The headers that most tests include; precompiled.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "qt_headers.h"
