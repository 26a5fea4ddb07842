#include "qmchart/TableReader.h"
#include "qmchart/InputText.h"
#include "qmchart/Separator.h"
#include "support/Raises.h"

#include <QFile>
#include <QStringEncoder>
#include <QTemporaryDir>

#include <cmath>

using namespace QmChart6;

namespace {

Table Read(const QByteArray& text, const TableLayout& layout = {}) {
    return ReadTable(text, layout);
}

/// Cells by rows, "x" for a missing one.
QString Values(const Table& table) {
    QStringList rows;
    for (int row = 1; row <= table.rows; ++row) {
        QStringList cells;
        for (int column = 1; column <= table.columns; ++column) {
            const double value = table.values.At(row, column);
            cells.append(std::isnan(value) ? QStringLiteral("x") : QString::number(value, 'g', 15));
        }
        rows.append(cells.join(' '));
    }
    return rows.join('/');
}

QString Labels(const Array<QString>& labels) {
    QStringList list;
    for (int i = labels.LowerBound(); i <= labels.UpperBound(); ++i) list.append(labels.At(i));
    return list.join('/');
}

/// The error that reading raises: its number and description.
QString ErrorOf(const QByteArray& text, const TableLayout& layout = {}) {
    try {
        static_cast<void>(Read(text, layout));
    } catch (const RuntimeError& error) {
        return error.Message();
    }
    return QStringLiteral("none");
}

} // namespace

TEST(TableReader, ReadsLabelsTitleAndNumbers) {
    const Table table = Read("Year,North,South\n2001,1.5,2\n2002,-3,4e1\n");
    EXPECT_EQ(table.rowTitle, "Year");
    EXPECT_EQ(table.rows, 2);
    EXPECT_EQ(table.columns, 2);
    EXPECT_EQ(Labels(table.rowLabels), "2001/2002");
    EXPECT_EQ(Labels(table.columnLabels), "North/South");
    EXPECT_EQ(Values(table), "1.5 2/-3 40");
}

TEST(TableReader, NumbersLabelsWhereTheTableHasNone) {
    const Table bare = Read("1,2,3\n4,5,6\n", {.hasHeader = false, .hasRowLabels = false});
    EXPECT_EQ(Values(bare), "1 2 3/4 5 6");
    EXPECT_EQ(Labels(bare.rowLabels), "1/2");
    EXPECT_EQ(Labels(bare.columnLabels), "1/2/3");
    EXPECT_EQ(bare.rowTitle, "");
    const Table headed = Read("a,b\n1,2\n", {.hasRowLabels = false});
    EXPECT_EQ(Labels(headed.columnLabels), "a/b");
    EXPECT_EQ(headed.rowTitle, "");
    const Table labelled = Read("a,1\nb,2\n", {.hasHeader = false});
    EXPECT_EQ(Labels(labelled.rowLabels), "a/b");
    EXPECT_EQ(Values(labelled), "1/2");
}

TEST(TableReader, ReadsQuotedCells) {
    const Table table = Read("\"a, or \"\"b\"\"\",\"two\nlines\"\r\n\"r;1\",\"7\"\r\n");
    EXPECT_EQ(table.rowTitle, "a, or \"b\"");
    EXPECT_EQ(Labels(table.columnLabels), "two\nlines");
    EXPECT_EQ(Labels(table.rowLabels), "r;1");
    EXPECT_EQ(Values(table), "7");
}

TEST(TableReader, ReadsEveryLineEndAndALastLineWithoutOne) {
    for (const char* text : {"a,b\n1,2\n3,4\n", "a,b\r\n1,2\r\n3,4", "a,b\r1,2\r3,4\r",
                             "\n\na,b\n\n1,2\n3,4\n\n\n", "a,b\n1,2\n3,4\n,\n,\n"})
        EXPECT_EQ(Values(Read(text)), "2/4") << text;
}

TEST(TableReader, TellsMissingValuesAndShortRows) {
    EXPECT_EQ(Values(Read("k,a,b,c\n1,,NA,n/a\n2,NaN,null,-\n3,7\n4\n5,1,2,3\n")),
              "x x x/x x x/7 x x/x x x/1 2 3");
}

TEST(TableReader, ReadsUtf8AndUtf16WithAMark) {
    const QString text = QStringLiteral(u"Größe,Área\nñ,1\n");
    QByteArray marked = "\xEF\xBB\xBF" + text.toUtf8();
    QStringEncoder little(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom);
    QStringEncoder big(QStringEncoder::Utf16BE, QStringEncoder::Flag::WriteBom);
    for (const QByteArray& bytes : {text.toUtf8(), marked, QByteArray(little(text)), QByteArray(big(text))}) {
        const Table table = Read(bytes);
        EXPECT_EQ(table.rowTitle, QStringLiteral(u"Größe"));
        EXPECT_EQ(Labels(table.columnLabels), QStringLiteral(u"Área"));
        EXPECT_EQ(Labels(table.rowLabels), QStringLiteral(u"ñ"));
    }
}

TEST(TableReader, NamesTheLineThatIsNoText) {
    EXPECT_TRUE(ErrorOf("a,b\n1,2\n\xE9t\xE9,3\n").startsWith("Error 5: ")) << "Latin-1";
    EXPECT_TRUE(ErrorOf("a,b\n1,2\n\xE9t\xE9,3\n").contains("line 3: "));
    EXPECT_TRUE(ErrorOf("a,b\n1,2\xC3").contains("line 2: ")) << "cut within a character";
    EXPECT_RAISES(5, Read(QByteArray("\xFF\xFE"
                                     "a\0,",
                                     5)));
    EXPECT_RAISES(5, Read(QByteArray("\xFF\xFE\x00\xD8"
                                     "a\0",
                                     6)));
}

TEST(TableReader, NamesTheLineOfMalformedQuoting) {
    EXPECT_TRUE(ErrorOf("a,b\n1,2\n\"x\"y,3\n").startsWith("Error 5: "));
    EXPECT_TRUE(ErrorOf("a,b\n1,2\n\"x\"y,3\n").contains("line 3, column 1: ")) << "text behind the quote";
    EXPECT_TRUE(ErrorOf("a,b\n1,2\"\n").contains("line 2, column 2: ")) << "a quote within a cell";
    EXPECT_TRUE(ErrorOf("a,b\n1,2\n\"x,3\n4,5\n").contains("line 3, column 1: ")) << "never closed";
}

TEST(TableReader, NamesLineColumnAndTextOfWhatIsNoNumber) {
    const QString error = ErrorOf("a,b,c\n\n\"x\ny\",1,2\nz,3,many\n");
    EXPECT_TRUE(error.startsWith("Error 13: ")) << error.toStdString();
    EXPECT_TRUE(error.contains("line 5, column 3: ")) << error.toStdString();
    EXPECT_TRUE(error.contains("\"many\"")) << error.toStdString();
    const QString shortened = ErrorOf("a,b\n1,\"two\n" + QByteArray(500, 'w') + "\"\n");
    EXPECT_LT(shortened.size(), 150);
    EXPECT_FALSE(shortened.contains('\n'));
}

TEST(TableReader, RefusesRowsLongerThanTheHeader) {
    const QString error = ErrorOf("a,b\n1,2\n3,4,5\n");
    EXPECT_TRUE(error.startsWith("Error 5: ") && error.contains("line 3: ")) << error.toStdString();
}

TEST(TableReader, RefusesTablesWithoutNumbers) {
    for (const char* text : {"", "\n\n", "\xEF\xBB\xBF", ",,\n,\n", "a,b\n", "a\n1\n2\n"})
        EXPECT_TRUE(ErrorOf(text).startsWith("Error 5: ")) << text;
    EXPECT_TRUE(ErrorOf("a\n1\n2\n").contains("--no-row-labels"));
}

TEST(TableReader, TakesAsManyRowsAndColumnsAsAChartAndNoMore) {
    QByteArray tall = "k,v\n";
    for (int row = 0; row < 32767; ++row) tall += "r,1\n";
    EXPECT_EQ(Read(tall).rows, 32767);
    EXPECT_TRUE(ErrorOf(tall + "r,1\n").startsWith("Error 380: "));
    EXPECT_TRUE(ErrorOf(tall + "r,1\n").contains("32768 rows"));
    const QByteArray wide = "k" + QByteArray(",v").repeated(32767);
    EXPECT_EQ(Read(wide + "\nr,1\n").columns, 32767);
    EXPECT_RAISES(380, Read(wide + ",v\nr,1\n"));
}

TEST(TableReader, ReadsDecimalCommasWhereTheSeparatorIsNone) {
    EXPECT_EQ(Values(Read("k;a;b\n1;3,14;1.234,5\n2;7;1.000\n")), "3.14 1234.5/7 1000");
    EXPECT_EQ(Values(Read("k\ta\n1\t0,5\n")), "0.5");
    EXPECT_EQ(Values(Read("a\n1,5\n2,5\n", {.hasRowLabels = false})), "1.5/2.5");
    EXPECT_EQ(Values(Read("k;a;b\n1;3.14;1,234.5\n")), "3.14 1234.5");
}

TEST(TableReader, ReadsQuotedThousandsBetweenCommas) {
    EXPECT_EQ(Values(Read("k,a,b\n1,\"1,234\",\"1,234,567.5\"\n")), "1234 1234567.5");
    EXPECT_TRUE(ErrorOf("k,a,b\n1,\"3,14\",2\n").startsWith("Error 13: "));
}

TEST(TableReader, RefusesDecimalsThatContradictEachOther) {
    EXPECT_TRUE(ErrorOf("k;a;b\n1;3,14;2.5\n").contains("\"3,14\""));
    EXPECT_TRUE(ErrorOf("k;a;b\n1;1,234;1.234\n").contains("\"1,234\""));
}

TEST(TableReader, ReadsUnitsAndBracketsWhereAColumnAgrees) {
    const Table table = Read("k,a,b\n1,12%,(3)\n2,,5\n3,4.5 %,0\n");
    EXPECT_EQ(Values(table), "12 -3/x 5/4.5 0");
    EXPECT_EQ(table.unit, "");
    EXPECT_EQ(Read("k,a,b\n1,12%,3%\n").unit, "%");
    EXPECT_EQ(Values(Read("k;a\n1;-1.200,50 €\n2;€ 3\n")), "-1200.5/3");
    EXPECT_TRUE(ErrorOf("k,a\n1,12%\n2,45\n").contains("\"12%\" in line 2"));
    EXPECT_TRUE(ErrorOf("k,a\n1,-1\n2,(2)\n").startsWith("Error 13: "));
    for (const char* cell : {"%", "$", "()", "(", "(%)", "5%%", "((5))", "12 km", "$5€"})
        EXPECT_TRUE(ErrorOf(QByteArray("k,a\n1,") + cell + "\n").startsWith("Error 13: ")) << cell;
}

TEST(TableReader, WarnsOfShortRowsOnce) {
    EXPECT_TRUE(Read("k,a\n1,2\n").warnings.isEmpty());
    const QStringList warnings = Read("k,a,b\n1,2\n2,3,4\n3\n").warnings;
    ASSERT_EQ(warnings.size(), 1);
    EXPECT_TRUE(warnings.front().startsWith("the table, line 2: 2 of 3 cells"))
        << warnings.front().toStdString();
}

TEST(TableReader, AsksWhereANumberCanBeReadInTwoWays) {
    EXPECT_TRUE(ErrorOf("k;a\n1;1.234\n").contains("--decimal"));
    EXPECT_EQ(Values(Read("k;a\n1;1.234\n", {.decimal = ','})), "1234");
    EXPECT_EQ(Values(Read("k;a\n1;1.234\n", {.decimal = '.'})), "1.234");
    EXPECT_EQ(Values(Read("k;a\n1;0.234\n")), "0.234");
}

TEST(Separator, IsTheOneThatDividesMostEvenly) {
    EXPECT_EQ(FindSeparator("a,b\n1,2\n", {}, true, true), ',');
    EXPECT_EQ(FindSeparator("a;b\n1,5;2,5\n", {}, true, true), ';');
    EXPECT_EQ(FindSeparator("a\tb\n1\t2\n", {}, true, true), '\t');
    EXPECT_EQ(FindSeparator("a|b\n1|2\n", {}, true, true), '|');
    EXPECT_EQ(FindSeparator("k;one, or two;three\n1;2,5;3\n4;5;6,5\n", {}, true, true), ';');
    EXPECT_EQ(FindSeparator("\"a;b\";\"c\"\n\"x, y\";1\n", {}, true, true), ';');
    EXPECT_EQ(FindSeparator("x;1,5;2,5\ny;3,5;4,5\n", {}, false, true), ';');
    EXPECT_EQ(FindSeparator("place,note|x\nA|B,1\nC|D,2\n", {}, true, true), ',');
}

TEST(Separator, FollowsTheFileNameAndIsNotLookedForWhereGiven) {
    EXPECT_EQ(FindSeparator("a,b\n1,2\n", "x.TSV", true, true), '\t');
    EXPECT_EQ(Values(Read("a:b\n1:2\n", {.separator = ':'})), "2");
    EXPECT_EQ(Values(Read("a b\n1 2\n", {.separator = ' '})), "2");
}

TEST(InputText, MissingFilesFoldersAndUnreadableFilesHaveTheirErrors) {
    const QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    EXPECT_RAISES(53, ReadInput(folder.filePath("none.csv")));
    EXPECT_RAISES(75, ReadInput(folder.path()));
    EXPECT_RAISES(70, ReadInput("/proc/self/mem")); // opens, and fails to read at 0
}

TEST(InputText, ReadsAFileWhole) {
    const QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    const QByteArray text = QByteArray("a,b\n").repeated(600000);
    QFile file(folder.filePath("long.csv"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(text), text.size());
    file.close();
    EXPECT_EQ(ReadInput(file.fileName()), text);
}
