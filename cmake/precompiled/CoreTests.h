// What most tests of the floors below the widgets include, compiled once.
#pragma once

#include "Core.h"

#include <gtest/gtest.h>
