#include "base/Units.h"
#include "chartcontrol/layout/Layout.h"
#include "support/Golden.h"
#include "support/SampleCharts.h"
#include "support/SceneJson.h"
#include "support/StubTextMeasurer.h"

#include <QDir>
#include <QFile>
#include <QString>

#include <gtest/gtest.h>

// Scenes laid out with the stub font, kept as text and compared exactly. QMCHART6_REWRITE_GOLDENS=1 writes
// them anew; read the difference before committing it.

namespace QmChart6 {
namespace {

/// Scenes of large data would be large files; the tests of decimation look after those.
bool IsKept(const Samples::Sample& sample) {
    return sample.name.find("dense") == std::string::npos &&
           sample.name.find("32-series") == std::string::npos;
}

std::vector<Samples::Sample> KeptSamples() {
    std::vector<Samples::Sample> kept;
    for (const Samples::Sample& sample : Samples::All())
        if (IsKept(sample)) kept.push_back(sample);
    return kept;
}

class SceneGolden : public testing::TestWithParam<Samples::Sample> {};

TEST_P(SceneGolden, IsLaidOutAsBefore) {
    const Samples::Sample& sample = GetParam();
    const Scene scene =
        LayOut(sample.make(), {{sample.width * PointsPerPixel, sample.height * PointsPerPixel}},
               StubTextMeasurer())
            .scene;
    const QByteArray dump = DumpScene(scene);
    ExpectGolden(QStringLiteral(QMCHART6_SOURCE_DIR "/tests/golden/scenes/%1.json")
                     .arg(QString::fromStdString(sample.name)),
                 dump);
}

TEST_P(SceneGolden, IsReadBackAsItWasDumped) {
    const Samples::Sample& sample = GetParam();
    const QByteArray dump =
        DumpScene(LayOut(sample.make(), {{sample.width * PointsPerPixel, sample.height * PointsPerPixel}},
                         StubTextMeasurer())
                      .scene);
    EXPECT_EQ(DumpScene(ReadScene(dump)).toStdString(), dump.toStdString());
}

INSTANTIATE_TEST_SUITE_P(Samples, SceneGolden, testing::ValuesIn(KeptSamples()), Samples::TestName());

} // namespace
} // namespace QmChart6
