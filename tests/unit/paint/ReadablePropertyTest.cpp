#include "base/Units.h"
#include "chartcontrol/layout/Layout.h"
#include "chartcontrol/model/ChartKinds.h"
#include "chartcontrol/model/ColourContrast.h"
#include "chartcontrol/paint/PaintScene.h"
#include "chartcontrol/paint/QtColour.h"
#include "chartcontrol/paint/QtTextMeasurer.h"
#include "chartcontrol/scene/SceneBuilder.h"
#include "support/RandomCharts.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>

// Over random tables, looks and sizes of every kind: whatever stands in a picture can be read, nothing that
// has a value is missing, and axes tell round numbers. QMCHART6_CASES says how many are tried (10,000 in the
// long form), QMCHART6_FIRST_CASE from which on, and QMCHART6_TEST_PICTURES into which folder pictures of
// those that fail are put.

namespace QmChart6 {
namespace {

constexpr int UsualCases = 300;
constexpr double Slack = 0.02;
/// Less than the 4.5 that is aimed at: components are whole numbers, those of layers that shine through too,
/// and edges may reach half a point into a label's box.
constexpr double LeastContrast = 4;

int CaseCount() {
    const char* asked = std::getenv("QMCHART6_CASES");
    return asked == nullptr ? UsualCases : std::max(1, std::atoi(asked));
}

/// What is wrong with the pictures, in words.
class Complaints {
public:
    void Begin(std::string place) {
        place_ = std::move(place);
        ofCase_ = 0;
    }
    void Require(bool holds, const std::string& otherwise) {
        if (holds) return;
        constexpr int mostOfCase = 3;
        if (ofCase_++ == 0) ++cases_;
        if (ofCase_ <= mostOfCase) told_.push_back(place_ + ": " + otherwise);
    }
    [[nodiscard]] int OfCase() const { return ofCase_; }
    [[nodiscard]] int Cases() const { return cases_; }
    [[nodiscard]] std::string Text() const {
        constexpr std::size_t most = 60;
        std::string text;
        for (std::size_t i = 0; i < std::min(most, told_.size()); ++i) text += told_[i] + '\n';
        return text;
    }

private:
    std::string place_;
    std::vector<std::string> told_;
    int cases_ = 0;
    int ofCase_ = 0;
};

/// One laid-out case and what it looks like without its texts.
class Case {
public:
    explicit Case(unsigned seed) : made_(Samples::RandomCaseOf(seed)) {
        const Size points{made_.pixels.width * PointsPerPixel, made_.pixels.height * PointsPerPixel};
        scene = LayOut(made_.chart, {points, 1 / PointsPerPixel}, QtTextMeasurer()).scene;
    }

    [[nodiscard]] const Chart& GetChart() const { return made_.chart; }

    [[nodiscard]] QImage Painted(const Scene& what) const {
        QImage image(static_cast<int>(made_.pixels.width), static_cast<int>(made_.pixels.height),
                     QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        PaintScene(what, painter, 1 / PointsPerPixel, PaintTarget::Raster);
        return image;
    }
    [[nodiscard]] QImage WithoutTexts() const {
        Scene bare = scene;
        std::erase_if(bare.shapes,
                      [](const Shape& shape) { return std::holds_alternative<TextLine>(shape.geometry); });
        return Painted(bare);
    }

    [[nodiscard]] std::vector<const Shape*> Texts() const {
        std::vector<const Shape*> texts;
        for (const Shape& shape : scene.shapes)
            if (std::holds_alternative<TextLine>(shape.geometry)) texts.push_back(&shape);
        return texts;
    }

    Scene scene;

private:
    Samples::RandomCase made_;
};

const TextLine& LineOf(const Shape* shape) {
    return std::get<TextLine>(shape->geometry);
}

std::string Said(const Shape* shape) {
    return '"' + LineOf(shape).text.toStdString() + "\" (part " +
           std::to_string(static_cast<int>(shape->part.code)) + ')';
}

bool IsWithin(const Box& inner, const Box& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

struct Span {
    double least;
    double greatest;
};

Span Along(const std::array<Point, 4>& corners, Point axis) {
    Span span{1e300, -1e300};
    for (const Point corner : corners) {
        const double at = corner.x * axis.x + corner.y * axis.y;
        span = {std::min(span.least, at), std::max(span.greatest, at)};
    }
    return span;
}

/// Whether two turned lines of text cover common ground: no side of either separates them.
bool Overlap(const TextLine& one, const TextLine& other) {
    const std::array<Point, 4> a = CornersOf(one);
    const std::array<Point, 4> b = CornersOf(other);
    for (const auto& corners : {a, b})
        for (std::size_t i = 0; i < 2; ++i) {
            const Point side{corners[i + 1].x - corners[i].x, corners[i + 1].y - corners[i].y};
            const double length = std::hypot(side.x, side.y);
            if (!(length > 0)) return false;
            const Point axis{side.x / length, side.y / length};
            const Span first = Along(a, axis);
            const Span second = Along(b, axis);
            if (first.greatest <= second.least + Slack || second.greatest <= first.least + Slack)
                return false;
        }
    return true;
}

/// The least contrast of a text's colour with what lies under its letters.
double LeastContrastUnder(const TextLine& text, const QImage& image) {
    constexpr double step = 0.5;
    constexpr double rim = 0.8; // where no letter reaches
    const double before = WidthBeforeOrigin(text);
    const double radians = text.angle * 3.14159265358979 / 180;
    double least = 21;
    for (double along = rim - before; along <= text.width - before - rim; along += step)
        for (double down = rim - text.ascent; down <= text.descent - rim; down += step) {
            const double x = text.origin.x + along * std::cos(radians) + down * std::sin(radians);
            const double y = text.origin.y - along * std::sin(radians) + down * std::cos(radians);
            const QPoint pixel(static_cast<int>(x / PointsPerPixel), static_cast<int>(y / PointsPerPixel));
            if (image.rect().contains(pixel))
                least = std::min(least, Contrast(text.font.VtColor, ColourOf(QColor(image.pixel(pixel)))));
        }
    return least;
}

void ExpectTextsToBeRead(const Case& tried, Complaints& complaints) {
    const std::vector<const Shape*> texts = tried.Texts();
    const Box picture = Box{0, 0, tried.scene.size.width, tried.scene.size.height}.Grown(Slack);
    const QImage image = tried.WithoutTexts();
    for (std::size_t i = 0; i < texts.size(); ++i) {
        complaints.Require(IsWithin(texts[i]->bounds, picture), Said(texts[i]) + " leaves the picture");
        for (std::size_t j = i + 1; j < texts.size(); ++j)
            complaints.Require(!Overlap(LineOf(texts[i]), LineOf(texts[j])),
                               Said(texts[i]) + " meets " + Said(texts[j]));
        const double contrast = LeastContrastUnder(LineOf(texts[i]), image);
        complaints.Require(contrast >= LeastContrast,
                           Said(texts[i]) + " has a contrast of " + std::to_string(contrast));
    }
}

void ExpectNoneToBeCovered(const Case& tried, Complaints& complaints) {
    std::vector<const Shape*> texts;
    for (const Shape& shape : tried.scene.shapes) {
        if (std::holds_alternative<TextLine>(shape.geometry)) {
            texts.push_back(&shape);
            continue;
        }
        const auto* box = std::get_if<Rectangle>(&shape.geometry);
        if (box == nullptr || shape.fill.style == BrushStyle::None) continue;
        for (const Shape* text : texts) {
            const Box& covered = text->bounds;
            const bool apart = box->box.right <= covered.left + 1 || box->box.left >= covered.right - 1 ||
                               box->box.bottom <= covered.top + 1 || box->box.top >= covered.bottom - 1;
            complaints.Require(apart, Said(text) + " is covered");
        }
    }
}

/// Flat bars, by their series: all as wide as each other, and none without a height.
void ExpectBarsToBeSeen(const Case& tried, Complaints& complaints) {
    const Chart& chart = tried.GetChart();
    if (KindOf(chart.chartType()).form != ChartForm::Flat) return;
    std::map<int, int> bars;
    double width = 0;
    for (const Shape& shape : tried.scene.shapes) {
        const auto* bar = std::get_if<Rectangle>(&shape.geometry);
        if (bar == nullptr || shape.part.code != PartCode::Series || shape.part.index2 == 0) continue;
        if (width == 0) width = bar->box.Width();
        complaints.Require(std::abs(bar->box.Width() - width) < 1e-6, "bars are of different widths");
        if (shape.crisp) {
            const auto edge = [](double at) { return std::floor(at / PointsPerPixel + 0.5 + 1e-6); };
            complaints.Require(edge(bar->box.right) - edge(bar->box.left) ==
                                   std::round(width / PointsPerPixel),
                               "bars are of different widths in pixels");
        }
        const double value = chart.SeriesValues(shape.part.index1)[shape.part.index2 - 1];
        if (value != 0 && chart.Plot.Axis(AxisId::Y).AxisScale.Type == ScaleType::Linear && !chart.Stacking) {
            complaints.Require(bar->box.Height() > 0.7, "a bar is not seen: " + std::to_string(value));
        }
        ++bars[shape.part.index1];
    }
    for (const auto& [series, count] : bars) {
        int values = 0;
        const Values all = chart.SeriesValues(series);
        for (int i = 0; i < all.count; ++i) values += std::isnan(all[i]) ? 0 : 1;
        complaints.Require(count == values, std::to_string(values - count) + " bars are missing");
    }
}

/// The numbers that a linear value axis tells, in order; empty where they are told in another way.
std::vector<double> TickNumbers(const Scene& scene, AxisId axis) {
    std::vector<double> numbers;
    for (const Shape& shape : scene.shapes) {
        const auto* text = std::get_if<TextLine>(&shape.geometry);
        if (text == nullptr || shape.part.code != PartCode::AxisLabel ||
            shape.part.index1 != static_cast<int>(axis))
            continue;
        QString digits = text->text;
        bool isNumber = false;
        numbers.push_back(
            digits.remove(QLatin1Char(',')).remove(QLatin1Char('%')).trimmed().toDouble(&isNumber));
        if (!isNumber) return {};
    }
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

/// Steps between ticks are equal and of one digit, or 2.5, and where zero lies among them it is a tick.
void ExpectRoundTicks(const Case& tried, Complaints& complaints) {
    for (const AxisId id : {AxisId::Y, AxisId::SecondaryY}) {
        if (tried.GetChart().Plot.Axis(id).AxisScale.Type == ScaleType::Logarithmic) continue;
        const std::vector<double> ticks = TickNumbers(tried.scene, id);
        if (ticks.size() < 2) continue;
        const double step = ticks[1] - ticks[0];
        const double ofOne = step / std::pow(10, std::floor(std::log10(step) + 1e-9));
        const std::string told = std::to_string(ticks[0]) + ", " + std::to_string(ticks[1]) + " ...";
        // Two alone tell where the data ends, in two digits.
        const double precise = ticks.size() == 2 ? 10 * ofOne : ofOne;
        complaints.Require(std::abs(ofOne - 2.5) < 1e-6 || std::abs(precise - std::round(precise)) < 1e-6,
                           "ticks are not round: " + told);
        for (std::size_t i = 1; i < ticks.size(); ++i)
            complaints.Require(std::abs(ticks[i] - ticks[i - 1] - step) < 1e-6 * step,
                               "ticks are not even: " + told);
        const double toZero = ticks[0] / step;
        complaints.Require(std::abs(toZero - std::round(toZero)) < 1e-6, "ticks pass zero: " + told);
    }
}

void ExpectFiniteNumbers(const Scene& scene, Complaints& complaints) {
    const auto isFinite = [](const Box& box) {
        return std::isfinite(box.left) && std::isfinite(box.top) && std::isfinite(box.right) &&
               std::isfinite(box.bottom);
    };
    bool finite = std::all_of(scene.points.begin(), scene.points.end(),
                              [](Point point) { return std::isfinite(point.x) && std::isfinite(point.y); });
    for (const Shape& shape : scene.shapes) finite = finite && isFinite(shape.bounds);
    complaints.Require(finite, "a number is not finite");
}

TEST(EveryPicture, CanBeReadAndShowsEveryValue) {
    const int count = CaseCount();
    const char* first = std::getenv("QMCHART6_FIRST_CASE");
    const auto begin = static_cast<unsigned>(first == nullptr ? 0 : std::atoi(first));
    Complaints complaints;
    for (unsigned seed = begin; seed < begin + static_cast<unsigned>(count); ++seed) {
        const Case tried(seed);
        complaints.Begin("case " + std::to_string(seed) + ", " + KindOf(tried.GetChart().chartType()).name +
                         ", " + std::to_string(std::lround(tried.scene.size.width / PointsPerPixel)) +
                         " by " + std::to_string(std::lround(tried.scene.size.height / PointsPerPixel)));
        ExpectFiniteNumbers(tried.scene, complaints);
        ExpectTextsToBeRead(tried, complaints);
        ExpectNoneToBeCovered(tried, complaints);
        ExpectBarsToBeSeen(tried, complaints);
        ExpectRoundTicks(tried, complaints);
        if (const char* folder = std::getenv("QMCHART6_TEST_PICTURES"))
            if (complaints.OfCase() > 0)
                tried.Painted(tried.scene)
                    .save(QStringLiteral("%1/case-%2.png").arg(QString::fromLocal8Bit(folder)).arg(seed));
    }
    EXPECT_EQ(complaints.Cases(), 0) << complaints.Text();
    RecordProperty("cases", count);
    std::cout << count << " cases tried\n";
}

} // namespace
} // namespace QmChart6
