#include "chartcontrol/layout/Layout.h"
#include "chartcontrol/paint/PaintScene.h"
#include "chartcontrol/paint/QtTextMeasurer.h"
#include "support/SampleCharts.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

// A picture of large data is made of picked values, and dense lines are drawn column by column. Here it is
// compared with the picture of all points drawn by QPainter: the same chart laid out so finely that nothing
// is picked, painted as vectors into the same size; bars, which are whole pixels in both, as a raster.
// Tolerance: on average 12 of 255 per channel (the tips of pure noise are fainter when each is drawn on its
// own), and no more than 4 % of the pixels differ by more than 128.

namespace QmChart6 {
namespace {

constexpr double MeanTolerance = 12;
constexpr int PixelTolerance = 128;
constexpr double ShareTolerance = 0.04;
constexpr int Rows = 5000;
constexpr double PixelsPerPoint = 4.0 / 3.0;
constexpr Size PictureSize{480, 315};

QImage Painted(const Scene& scene, PaintTarget target) {
    QImage image(640, 420,
                 target == PaintTarget::Raster ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintScene(scene, painter, PixelsPerPoint, target);
    painter.end();
    return image.convertToFormat(QImage::Format_RGB32);
}

struct Case {
    const char* name;
    std::function<double(int)> value;
};

double Noise(int row) {
    return std::sin(row * 12.9898) * 0.5 + std::sin(row * 78.233 + row * row * 0.001) * 0.5;
}

const std::vector<Case>& Cases() {
    static const std::vector<Case> cases{
        {"noise", Noise},
        {"smooth", [](int row) { return std::sin(row * 0.002); }},
        {"spikes", [](int row) { return row % 1501 == 700 ? 8.0 : 0.3 * Noise(row); }},
        {"gaps", [](int row) { return row / 500 % 3 == 1 ? Samples::Missing() : Noise(row); }},
        {"constant_runs", [](int row) { return static_cast<double>(row / 400 % 4); }},
    };
    return cases;
}

/// Some 400 pixels to a point, so many that the slot of a category is whole ones.
double FinePixels(const Scene& scene) {
    constexpr double about = 400;
    for (const Shape& shape : scene.shapes)
        if (shape.part.code == PartCode::Plot)
            if (const auto* plot = std::get_if<Rectangle>(&shape.geometry)) {
                const double slot = plot->box.Width() / Rows;
                return std::round(about * slot) / slot;
            }
    return about;
}

void ExpectSamePicture(const Chart& chart) {
    const QtTextMeasurer measurer;
    const Scene picked = LayOut(chart, {PictureSize, PixelsPerPoint}, measurer).scene;
    const double sofine = FinePixels(picked);
    const Scene all = LayOut(chart, {PictureSize, sofine}, measurer).scene;
    ASSERT_LT(picked.points.size() + picked.shapes.size(), all.points.size() + all.shapes.size());
    const QImage one = Painted(picked, PaintTarget::Raster);
    const bool bars = chart.chartType() == ChartType::Bar2D;
    const QImage other = Painted(all, bars ? PaintTarget::Raster : PaintTarget::Vector);
    double sum = 0;
    double apart = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            const int red = std::abs(qRed(a) - qRed(b));
            const int green = std::abs(qGreen(a) - qGreen(b));
            const int blue = std::abs(qBlue(a) - qBlue(b));
            sum += red + green + blue;
            if (std::max({red, green, blue}) > PixelTolerance) ++apart;
        }
    const double pixels = one.width() * one.height();
    EXPECT_LT(sum / (3 * pixels), MeanTolerance);
    EXPECT_LT(apart / pixels, ShareTolerance);
}

class Decimation : public testing::TestWithParam<std::tuple<ChartType, int>> {};

TEST_P(Decimation, ShowsThePictureOfAllPoints) {
    const auto& [type, index] = GetParam();
    const Case& data = Cases()[static_cast<std::size_t>(index)];
    Chart chart = Samples::ChartOf(Rows, 1, [&](int row, int) { return data.value(row); });
    // Axis lines and labels are drawn alike in both; they are not what is looked at here.
    for (int axis = 0; axis < 3; ++axis) chart.Plot.Axis(axis).AxisScale.Hide = true;
    chart.Plot.Axis(1).AxisGrid.MajorPen.Style = PenStyle::None;
    chart.SetChartType(type);
    // The tolerance is that of a colour of middling contrast.
    chart.Plot.SeriesCollection(1).DataPoints.Item(DataPoints::All).Brush.FillColor = {30, 130, 245};
    if (type == ChartType::XY2D) chart.Plot.SeriesCollection(1).ShowLine = false;
    ExpectSamePicture(chart);
}

INSTANTIATE_TEST_SUITE_P(Types, Decimation,
                         testing::Combine(testing::Values(ChartType::Line2D, ChartType::Area2D,
                                                          ChartType::Step2D, ChartType::Bar2D,
                                                          ChartType::XY2D),
                                          testing::Range(0, 5)),
                         [](const auto& tested) {
                             return "type" + std::to_string(static_cast<int>(std::get<0>(tested.param))) +
                                    "_" + Cases()[static_cast<std::size_t>(std::get<1>(tested.param))].name;
                         });

} // namespace
} // namespace QmChart6
