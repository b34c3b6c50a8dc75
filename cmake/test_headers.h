// SPDX-License-Identifier: MIT
// What most tests include. Compiled once.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "qt_headers.h"
