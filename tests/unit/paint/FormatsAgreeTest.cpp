#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/paint/PictureFormat.h"
#include "support/EmfPlayer.h"
#include "support/SampleCharts.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

// A picture of every kind of chart, in pixels and in the three formats that are drawn by others: SVG by
// rsvg-convert, PDF by pdftoppm, EMF by a player of the tests' own. They must be the same picture but for how
// edges are smoothed and letters hinted: on average 5 of 255 grey levels, and no more than 3 % of the pixels
// apart by more than 96 where not even a neighbour is like it.

namespace QmChart6 {
namespace {

constexpr double MeanTolerance = 5;
constexpr int PixelTolerance = 96;
constexpr double ShareTolerance = 0.03;

/// A chart of the kind with whatever differs between formats: patterns, dashes, markers, labels, areas that
/// shine through.
Picture PictureOf(ChartType type) {
    Chart chart =
        Samples::ChartOf(5, 4, [](int row, int column) { return 20.0 * column + 7 * row * (column % 3); });
    chart.SetChartType(type);
    chart.Title.Text = QStringLiteral("The same picture");
    chart.Plot.SeriesCollection(2).LinePen.Style = PenStyle::Dashed;
    chart.Plot.SeriesCollection(3).DataPoints.Item(DataPoints::All).Brush.Style = BrushStyle::Hatch;
    chart.Plot.SeriesCollection(3).DataPoints.Item(DataPoints::All).Brush.Index = 2;
    DataPointLabel& label = chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).DataPointLabel;
    label.Component = LabelShowsValue;
    label.LocationType = LabelLocation::AbovePoint;
    for (Series& series : chart.Plot.SeriesCollection) series.SeriesMarker.Show = true;
    return {chart, 640, 420};
}

QImage Grey(const QImage& image, QSize size) {
    QImage white(size, QImage::Format_RGB32);
    white.fill(Qt::white);
    QPainter painter(&white);
    painter.drawImage(QRect(QPoint(), size), image);
    painter.end();
    return white.convertToFormat(QImage::Format_Grayscale8);
}

/// How far a pixel is from the likest one near it.
int LeastApart(const QImage& one, const QImage& other, int x, int y) {
    const int level = one.constScanLine(y)[x];
    int least = 255;
    for (int down = std::max(0, y - 1); down <= std::min(other.height() - 1, y + 1); ++down)
        for (int across = std::max(0, x - 1); across <= std::min(other.width() - 1, x + 1); ++across)
            least = std::min(least, std::abs(level - other.constScanLine(down)[across]));
    return least;
}

void ExpectSame(const QImage& drawn, const QImage& pixels, const char* format) {
    ASSERT_FALSE(drawn.isNull()) << format;
    const QImage one = Grey(drawn, pixels.size());
    const QImage other = Grey(pixels, pixels.size());
    double sum = 0;
    double apart = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            sum += LeastApart(one, other, x, y);
            apart += LeastApart(one, other, x, y) > PixelTolerance ||
                     LeastApart(other, one, x, y) > PixelTolerance;
        }
    const double count = one.width() * one.height();
    EXPECT_LT(sum / count, MeanTolerance) << format;
    EXPECT_LT(apart / count, ShareTolerance) << format;
}

class FormatsAgree : public testing::TestWithParam<ChartType> {
protected:
    QTemporaryDir folder;

    static void Run(const char* program, const QStringList& arguments) {
        ASSERT_EQ(QProcess::execute(QLatin1String(program), arguments), 0) << program;
    }
};

TEST_P(FormatsAgree, OnThePicture) {
    for (const char* program : {"rsvg-convert", "pdftoppm"})
        ASSERT_FALSE(QStandardPaths::findExecutable(QLatin1String(program)).isEmpty()) << program;
    const Picture picture = PictureOf(GetParam());
    const QImage pixels = QImage::fromData(EncodePicture(picture, PictureFormat::Png));
    const QString base = folder.filePath(QStringLiteral("picture"));
    SavePicture(picture, base + QStringLiteral(".svg"));
    SavePicture(picture, base + QStringLiteral(".pdf"));
    Run("rsvg-convert",
        {base + QStringLiteral(".svg"), QStringLiteral("-o"), base + QStringLiteral("-svg.png")});
    Run("pdftoppm", {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-r"),
                     QStringLiteral("96"), base + QStringLiteral(".pdf"), base + QStringLiteral("-pdf")});
    ExpectSame(QImage(base + QStringLiteral("-svg.png")), pixels, "SVG");
    ExpectSame(QImage(base + QStringLiteral("-pdf.png")), pixels, "PDF");
    ExpectSame(EmfPlayer(EncodePicture(picture, PictureFormat::Emf)).Play(pixels.size()), pixels, "EMF");
}

INSTANTIATE_TEST_SUITE_P(Kinds, FormatsAgree, testing::ValuesIn([] {
                             std::vector<ChartType> types;
                             for (const ChartKind& kind : ChartKinds) types.push_back(kind.type);
                             return types;
                         }()),
                         [](const auto& tested) {
                             return "type" + std::to_string(static_cast<int>(tested.param));
                         });

} // namespace
} // namespace QmChart6
