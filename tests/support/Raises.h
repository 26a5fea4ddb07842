#pragma once

#include "qmchart6/RuntimeError.h"

#include <gtest/gtest.h>

/// The statement raises a RuntimeError of that number.
#define EXPECT_RAISES(number, ...)                                                                           \
    try {                                                                                                    \
        static_cast<void>(__VA_ARGS__);                                                                      \
        ADD_FAILURE() << "raised nothing, expected error " << (number);                                      \
    } catch (const QmChart6::RuntimeError& error) {                                                          \
        EXPECT_EQ(error.Number(), number) << error.what();                                                   \
    }
