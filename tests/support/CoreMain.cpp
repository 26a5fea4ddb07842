#include <QCoreApplication>

#include <gtest/gtest.h>

/// Tests that need an application object and no windows.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
