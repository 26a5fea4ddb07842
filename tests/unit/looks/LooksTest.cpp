#include "qmchart6/Looks.h"

#include "support/Raises.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

using namespace QmChart6;

namespace {

class LooksTest : public testing::Test {
protected:
    LooksTest() { CreateLookStore(Folder()); }

    [[nodiscard]] QString Folder() const { return folder.path() + u'/'; }
    [[nodiscard]] QJsonObject Exported(const QString& name) const {
        return QJsonDocument::fromJson(ExportLook(Folder(), name)).object();
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(LooksTest, ALookIsImportedWithAllItsFieldsWhereThereCanBeNoWindow) {
    ASSERT_FALSE(QCoreApplication::instance()->inherits("QGuiApplication"));
    EXPECT_EQ(ImportLook(Folder(), R"({"ConfigId": "Plain", "chartType": 3})"), "Plain");
    const QJsonObject look = Exported(QStringLiteral("Plain"));
    EXPECT_EQ(look.value(QStringLiteral("chartType")).toInt(), 3);
    EXPECT_EQ(look.size(), 51 + 2); // its name and its axes
    EXPECT_EQ(look.value(QStringLiteral("Axes")).toArray().size(), 4);
    EXPECT_TRUE(look.value(QStringLiteral("ControlBar")).toBool());
    EXPECT_FALSE(look.value(QStringLiteral("ChartMaximized")).toBool());
    EXPECT_GT(look.value(QStringLiteral("ChartHeight")).toDouble(), 0);
}

TEST_F(LooksTest, WhatIsExportedIsTheSameOnceImported) {
    const QDir examples(QStringLiteral(QMCHART6_SOURCE_DIR "/examples/looks"));
    const QStringList files = examples.entryList({QStringLiteral("*.json")});
    ASSERT_FALSE(files.isEmpty());
    for (const QString& name : files) {
        QFile file(examples.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        ImportLook(Folder(), file.readAll(), QStringLiteral("First"));
        const QByteArray exported = ExportLook(Folder(), QStringLiteral("First"));
        ImportLook(Folder(), exported, QStringLiteral("Second"));
        QJsonObject second = Exported(QStringLiteral("Second"));
        second.insert(QStringLiteral("ConfigId"), QStringLiteral("First"));
        EXPECT_EQ(second, QJsonDocument::fromJson(exported).object()) << name.toStdString();
        DeleteStoredLook(Folder(), QStringLiteral("First"));
        DeleteStoredLook(Folder(), QStringLiteral("Second"));
    }
}

TEST_F(LooksTest, WhatMeansNothingIsRefusedAndNothingStored) {
    EXPECT_RAISES(380, ImportLook(Folder(), R"({"ConfigId": "a", "Projection": 77})"));
    EXPECT_RAISES(380, (UseLook(QStringLiteral("SALES"), R"({"Projection": 77})"), 0));
    EXPECT_TRUE(LookNames(Folder()).isEmpty());
}

TEST_F(LooksTest, ALookThatIsImportedUnderATakenNameReplacesTheOldOneWhole) {
    ImportLook(Folder(), R"({"ConfigId": "a", "Columns": [{}, {}, {}], "Series": [{}, {}, {}]})");
    ImportLook(Folder(), R"({"ConfigId": "A", "Columns": [{}], "Series": [{}]})");
    const QJsonObject look = Exported(QStringLiteral("a"));
    EXPECT_EQ(look.value(QStringLiteral("Series")).toArray().size(), 1);
    EXPECT_EQ(look.value(QStringLiteral("Columns")).toArray().size(), 1);
    EXPECT_EQ(LookNames(Folder()), QStringList(QStringLiteral("a")));
}
