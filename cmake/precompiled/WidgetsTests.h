// What most tests of the floors with widgets include, compiled once.
#pragma once

#include "Widgets.h"

#include <gtest/gtest.h>
