#include "StoreTest.h"

#include "RandomLook.h"
#include "chart/ChartFunctions.h"
#include "chartcontrol/layout/Layout.h"
#include "config/LookJson.h"
#include "support/SceneJson.h"
#include "support/StubTextMeasurer.h"

using namespace QmChart6;

namespace {

QByteArray DumpOf(const Chart& chart) {
    return DumpScene(LayOut(chart, {.size = {480, 320}}, StubTextMeasurer()).scene);
}

class RoundTripTest : public StoreTest {
protected:
    RoundTripTest() {
        // The basis of shares stays once they were shown, and says nothing while they are not.
        SetFullStacked(viewer.Model(), True);
        SetFullStacked(viewer.Model(), False);
    }

    /// Saves the viewer's look, changes everything, loads it, and compares.
    void Check(std::mt19937& random) {
        Save(viewer, "Look");
        const LookState saved = viewer.look;
        Look other = RandomLook(random, 6, 6);
        ApplyLook(viewer.look, other, true);
        viewer.look.maximized = saved.maximized;
        EXPECT_NE(viewer.look.chart, saved.chart);
        LoadConfiguration(viewer, T("Look"), true);
        ASSERT_TRUE(Errors().isEmpty()) << Errors().front().toStdString();
        const LookState& loaded = viewer.look;
        EXPECT_EQ(loaded, saved);
        EXPECT_EQ(DumpOf(loaded.chart), DumpOf(saved.chart));
    }
};
INSTANTIATE_TEST_SUITE_P(Engines, RoundTripTest, testing::Values(Engine::Sqlite, Engine::Postgres),
                         EngineName());

} // namespace

TEST_P(RoundTripTest, EveryChartTypeWithEveryOptionComesBackWhole) {
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same every time
    for (const int type : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 14, 16}) {
        for (int options = 0; options < 16; options += GetParam() == Engine::Sqlite ? 1 : 5) {
            Fill(viewer, 4, 3);
            Look look = RandomLook(random, 3, 4); // its series have the label formats that loading gives them
            const auto set = [&](const char* name, int value) {
                const LookField& field = ChartLook().Field(T(name));
                look.Set(ChartLook(), field,
                         field.kind == FieldKind::Boolean ? FieldValue(value != 0) : FieldValue(value));
            };
            set("chartType", type);
            set("Flipped", options & 1);
            set("Stacked", (options >> 1) & 1);
            set("FullStacked", (options >> 2) & 1);
            set("Markers", (options >> 3) & 1);
            set("Lines", (options >> 2) & 1);
            set("Legend", options & 1);
            set("PieLabelPos", options % 4);
            set("Projection", options % 3);
            ApplyLook(viewer.look, look, true);
            Check(random);
            if (HasFailure()) FAIL() << "type " << type << ", options " << options;
        }
    }
}

TEST_P(RoundTripTest, RandomLooksComeBackWhole) {
    std::mt19937 random(11); // NOLINT(cert-msc51-cpp)
    const int count = GetParam() == Engine::Sqlite ? 150 : 50;
    for (int i = 0; i < count; ++i) {
        const int rows = 1 + i % 5;
        const int columns = 1 + i % 4;
        Fill(viewer, rows, columns);
        Look look = RandomLook(random, columns, std::max(rows, columns));
        ApplyLook(viewer.look, look, true);
        Check(random);
        if (HasFailure()) FAIL() << "look " << i;
    }
}

TEST_P(RoundTripTest, ALookComesBackFromJsonWhole) {
    std::mt19937 random(13); // NOLINT(cert-msc51-cpp)
    for (int i = 0; i < 50; ++i) {
        const NamedLook named{T("a \"name\"\n"), RandomLook(random, 3, 3)};
        const QByteArray json = WriteLookJson(named);
        const NamedLook read = ReadLookJson(json);
        EXPECT_EQ(read.name, named.name);
        EXPECT_EQ(read.look.Of(SeriesLook()), named.look.Of(SeriesLook()));
        EXPECT_EQ(WriteLookJson(read), json);
    }
}
