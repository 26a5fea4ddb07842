#include "desktop/Application.h"
#include "desktop/CurrentDesktop.h"
#include "desktop/HeadlessDesktop.h"
#include "support/FreshProcess.h"

/// Tests that show windows: one application for all of them, and nobody at the desk unless a test says so.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    FreshProcess::ForAllTests();
    QmChart6::EnsureApplication();
    QmChart6::HeadlessDesktop unattended;
    const QmChart6::ScopedDesktop scope(unattended);
    return RUN_ALL_TESTS();
}
