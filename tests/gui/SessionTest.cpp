#include "SessionPlayer.h"
#include "automation/ViewerList.h"
#include "chartcontrol/layout/Layout.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "desktop/CurrentDesktop.h"
#include "qmchart6/QMChartArray.h"
#include "support/ChartDesk.h"
#include "support/Golden.h"
#include "support/Samples.h"
#include "support/SceneJson.h"
#include "support/StubTextMeasurer.h"
#include "support/TestStore.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

// Sessions of a person at a viewer, kept as text, replayed by real events. The chart that they end with is
// kept too, laid out with the stub font; QMCHART6_REWRITE_GOLDENS=1 writes it anew.

using namespace QmChart6;

namespace {

struct Session {
    const char* name;
    std::int16_t columns;
    const char* config;
};

void PrintTo(const Session& session, std::ostream* out) {
    *out << session.name;
}

QString Kept(const char* name, const char* ending) {
    return QStringLiteral(QMCHART6_SOURCE_DIR "/tests/gui/%1%2")
        .arg(QLatin1String(name), QLatin1String(ending));
}

class SessionTest : public testing::TestWithParam<Session> {
protected:
    SessionTest() { SetConfigurationFolder(store.Folder()); }
    ~SessionTest() override { CloseViewer(QStringLiteral("sales")); }

    GraphForm& Make(std::int16_t useConfig) {
        const std::int16_t columns = GetParam().columns;
        QMChartArray().QmMakeGraph(QStringLiteral("sales"), 5, columns, Numbers(5, columns),
                                   Names(QStringLiteral("Region"), 5), Names(QStringLiteral("Year"), columns),
                                   QStringLiteral("Turnover"), QStringLiteral("Regions"),
                                   QStringLiteral("Years"), QStringLiteral("Euro"), std::int16_t{0},
                                   static_cast<std::uint8_t>(useConfig));
        QString id = QStringLiteral("sales");
        viewer = FindViewer(id);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(viewer.get()));
        viewer->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(viewer.get()));
        return *viewer;
    }
    void Play() {
        QFile file(Kept(GetParam().name, ".txt"));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        SessionPlayer(*viewer, desktop).Play(QString::fromUtf8(file.readAll()));
        EXPECT_TRUE(desktop.colours.empty());
        EXPECT_TRUE(desktop.fonts.empty());
    }

    TestStore store{Engine::Sqlite, ConfigurationSchema()};
    ScriptedDesktop desktop;
    ScopedDesktop scope{desktop};
    ViewerPointer viewer;
};

} // namespace

TEST_P(SessionTest, EndsWithTheChartThatItEndedWith) {
    Make(QMChartArray().QmChNo());
    Play();
    EXPECT_TRUE(desktop.messages.isEmpty());
    Chart chart = viewer->ChartImage().Model();
    // Where exactly the title was depends on the machine's fonts.
    EXPECT_EQ(chart.Title.Location.LocationType, LocationType::Custom);
    chart.Title.Location = {};
    const QByteArray dump = DumpScene(LayOut(chart, {{570, 360}}, StubTextMeasurer()).scene);
    ExpectGolden(Kept(GetParam().name, "-scene.json"), dump);
}

TEST_P(SessionTest, TheSavedLookGivesTheSamePictureAgain) {
    const QPixmap plain = Make(QMChartArray().QmChNo()).ChartImage().grab();
    Play();
    EXPECT_EQ(viewer->QmConfig(), GetParam().config);
    const QImage before = viewer->ChartImage().grab().toImage();
    EXPECT_NE(before, plain.toImage());
    viewer->close();
    viewer.reset();
    QString id = QStringLiteral("sales");
    ASSERT_EQ(FindViewer(id), nullptr);

    GraphForm& again = Make(QMChartArray().QmChYes());
    EXPECT_EQ(again.QmConfig(), GetParam().config);
    const QImage after = again.ChartImage().grab().toImage();
    EXPECT_EQ(after.size(), before.size());
    EXPECT_TRUE(after == before);
    if (const char* folder = std::getenv("QMCHART6_TEST_PICTURES")) {
        before.save(QDir(QLatin1String(folder)).filePath(QLatin1String(GetParam().name) + "-before.png"));
        after.save(QDir(QLatin1String(folder)).filePath(QLatin1String(GetParam().name) + "-after.png"));
    }
}

TEST_P(SessionTest, AllOfItCanBeTakenBackAndDoneAgain) {
    GraphForm& form = Make(QMChartArray().QmChNo());
    const Chart first = form.ChartImage().Model();
    Play();
    const Chart last = form.ChartImage().Model();
    for (int step = 0; step < 60; ++step) form.Undo();
    Chart back = form.ChartImage().Model();
    back.Row = first.Row;
    back.Column = first.Column;
    EXPECT_EQ(back, first);
    for (int step = 0; step < 60; ++step) form.Redo();
    Chart again = form.ChartImage().Model();
    again.Row = last.Row;
    again.Column = last.Column;
    EXPECT_EQ(again, last);
}

INSTANTIATE_TEST_SUITE_P(Kept, SessionTest,
                         testing::Values(Session{"session", 3, "Shares by region"},
                                         Session{"session-pie", 1, "One pie"},
                                         Session{"session-statistics", 2, "Statistics"}),
                         [](const auto& instance) {
                             std::string name = instance.param.name;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });
