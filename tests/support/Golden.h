#pragma once

#include <QByteArray>
#include <QFile>

#include <gtest/gtest.h>

#include <cstdlib>

/// The bytes are those of a golden file; with QMCHART6_REWRITE_GOLDENS set they are written to it instead,
/// and the test is skipped.
inline void ExpectGolden(const QString& name, const QByteArray& bytes) {
    QFile golden(name);
    if (std::getenv("QMCHART6_REWRITE_GOLDENS") != nullptr) {
        ASSERT_TRUE(golden.open(QIODevice::WriteOnly));
        golden.write(bytes);
        GTEST_SKIP() << "written anew";
    }
    ASSERT_TRUE(golden.open(QIODevice::ReadOnly)) << "there is no golden of that name yet";
    EXPECT_EQ(golden.readAll().toStdString(), bytes.toStdString());
}
