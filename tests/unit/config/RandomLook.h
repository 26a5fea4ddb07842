#pragma once

#include "config/Look.h"

#include <random>

/// A look with a random value in each field, of those that the field may have.
QmChart6::Look RandomLook(std::mt19937& random, int columns, int series);
