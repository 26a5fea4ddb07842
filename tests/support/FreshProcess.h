#pragma once

#include "base/ProcessState.h"

#include <gtest/gtest.h>

/// Lets every test begin with nothing that another one set process-wide.
class FreshProcess : public testing::EmptyTestEventListener {
public:
    void OnTestStart(const testing::TestInfo& /*test*/) override { QmChart6::ResetProcess(); }
    void OnTestEnd(const testing::TestInfo& /*test*/) override { QmChart6::ResetProcess(); }

    static void ForAllTests() {
        testing::UnitTest::GetInstance()->listeners().Append(new FreshProcess); // which owns it
    }
};
