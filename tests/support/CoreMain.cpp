#include "support/FreshProcess.h"

#include <QCoreApplication>

/// Tests that need an application object and no windows.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    FreshProcess::ForAllTests();
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
