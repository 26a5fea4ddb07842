#include "base/Units.h"
#include "chartcontrol/model/ChartKinds.h"
#include "unit/layout/LayoutSupport.h"

#include <gtest/gtest.h>

#include <cmath>

// What holds for every sample chart at every size.

namespace QmChart6 {
namespace {

constexpr double Slack = 0.01;

/// Whether two turned lines of text cover common ground: no side of either separates them.
bool Overlap(const TextLine& one, const TextLine& other) {
    const std::array<Point, 4> a = CornersOf(one);
    const std::array<Point, 4> b = CornersOf(other);
    for (const auto& corners : {a, b}) {
        for (std::size_t i = 0; i < 2; ++i) {
            const Point axis{corners[i + 1].x - corners[i].x, corners[i + 1].y - corners[i].y};
            const double length = std::hypot(axis.x, axis.y);
            const auto reach = [&](const std::array<Point, 4>& box, bool least) {
                double end = least ? 1e300 : -1e300;
                for (const Point corner : box) {
                    const double at = (corner.x * axis.x + corner.y * axis.y) / length;
                    end = least ? std::min(end, at) : std::max(end, at);
                }
                return end;
            };
            if (reach(a, false) <= reach(b, true) + Slack || reach(b, false) <= reach(a, true) + Slack)
                return false;
        }
    }
    return true;
}

/// What of a shape is seen.
Box SeenOf(const Scene& scene, const Shape& shape) {
    if (shape.clip == NoClip) return shape.bounds;
    const Box& clip = scene.clips[static_cast<std::size_t>(shape.clip)];
    return {std::max(shape.bounds.left, clip.left), std::max(shape.bounds.top, clip.top),
            std::min(shape.bounds.right, clip.right), std::min(shape.bounds.bottom, clip.bottom)};
}

class EverySample : public testing::TestWithParam<Samples::Sample> {
protected:
    static std::vector<Size> Sizes(const Samples::Sample& sample) {
        const Size own{sample.width * PointsPerPixel, sample.height * PointsPerPixel};
        if (own.width < 150) return {own};
        return {own,
                {own.width * 2, own.height * 2},
                {own.width, own.height * 0.7},
                {300, 225},
                {375, 525},
                {480, 480},
                {112, 675},
                {1200, 300}};
    }
};

TEST_P(EverySample, NoTextCoversAnother) {
    for (const Size& size : Sizes(GetParam())) {
        const Scene scene = LaidOut(GetParam().make(), size);
        std::vector<TextLine> texts;
        for (const Shape& shape : scene.shapes)
            if (const auto* text = std::get_if<TextLine>(&shape.geometry)) texts.push_back(*text);
        for (std::size_t i = 0; i < texts.size(); ++i)
            for (std::size_t j = i + 1; j < texts.size(); ++j)
                EXPECT_FALSE(Overlap(texts[i], texts[j]))
                    << texts[i].text.toStdString() << " and " << texts[j].text.toStdString() << " at "
                    << size.width;
    }
}

TEST_P(EverySample, NothingLeavesTheChart) {
    for (const Size& size : Sizes(GetParam())) {
        const Scene scene = LaidOut(GetParam().make(), size);
        for (const Shape& shape : scene.shapes) {
            const Box allowed = Box{0, 0, size.width, size.height}.Grown(Slack);
            const auto* text = std::get_if<TextLine>(&shape.geometry);
            const Box seen = SeenOf(scene, shape);
            EXPECT_TRUE(seen.left >= allowed.left && seen.top >= allowed.top && seen.right <= allowed.right &&
                        seen.bottom <= allowed.bottom)
                << "part " << static_cast<int>(shape.part.code) << ' '
                << (text != nullptr ? text->text.toStdString() : std::string()) << " at " << size.width;
        }
    }
}

TEST_P(EverySample, EveryNumberIsFinite) {
    const Scene scene = LaidOut(GetParam().make());
    for (const Point point : scene.points) EXPECT_TRUE(std::isfinite(point.x) && std::isfinite(point.y));
    for (const Shape& shape : scene.shapes)
        EXPECT_TRUE(std::isfinite(shape.bounds.left) && std::isfinite(shape.bounds.bottom));
}

TEST_P(EverySample, SurvivesEverySizeFromNothingOn) {
    const Chart chart = GetParam().make();
    for (const double width : {0.0, 0.5, 1.0, 3.0, 10.0, 40.0, 80.0, 2000.0})
        for (const double height : {0.0, 1.0, 10.0, 40.0, 1500.0}) {
            const Scene scene = LaidOut(chart, {width, height});
            for (const Shape& shape : scene.shapes)
                ASSERT_TRUE(std::isfinite(shape.bounds.left) && std::isfinite(shape.bounds.right))
                    << width << " by " << height;
        }
}

TEST_P(EverySample, KeepsItsPlotInSmallPictures) {
    const Chart chart = GetParam().make();
    for (const Size& size : {Size{90, 67.5}, {67.5, 90}, {45, 37.5}, {30, 30}}) {
        const Scene scene = LaidOut(chart, size);
        Box drawn = Box::Nothing();
        for (const Shape& shape : scene.shapes)
            if (shape.part.code == PartCode::Plot || shape.part.code == PartCode::Series)
                drawn.Include(SeenOf(scene, shape));
        if (chart.CategoryCount() == 0 && KindOf(chart.chartType()).form != ChartForm::Flat) continue;
        EXPECT_GE(drawn.Width(), 0.25 * size.width) << size.width;
        EXPECT_GE(drawn.Height(), 0.2 * size.height) << size.width;
        EXPECT_LE(drawn.bottom, size.height + 1) << size.width;
    }
}

TEST_P(EverySample, GivesTheSameSceneTwice) {
    const Chart chart = GetParam().make();
    EXPECT_EQ(LaidOut(chart).points, LaidOut(chart).points);
    EXPECT_EQ(LaidOut(chart).shapes.size(), LaidOut(chart).shapes.size());
}

INSTANTIATE_TEST_SUITE_P(Samples, EverySample, testing::ValuesIn(Samples::All()), Samples::TestName());

} // namespace
} // namespace QmChart6
