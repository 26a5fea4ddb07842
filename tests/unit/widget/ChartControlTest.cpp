#include "chartcontrol/widget/ChartControl.h"

#include "desktop/CurrentDesktop.h"

#include <QImage>
#include <QMimeData>

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

class ChartControlTest : public testing::Test {
protected:
    ChartControlTest() {
        chart.Model().SetGridSize(2, 2);
        chart.Model().Title.Text = QStringLiteral("before");
        chart.resize(400, 300);
    }

    [[nodiscard]] bool Shows(const QString& text) {
        for (const Shape& shape : chart.CurrentScene().shapes) {
            const auto* line = std::get_if<TextLine>(&shape.geometry);
            if (line != nullptr && line->text == text) return true;
        }
        return false;
    }

    ChartControl chart;
};

} // namespace

TEST_F(ChartControlTest, TheSceneHasTheWidgetsSizeInPoints) {
    EXPECT_EQ(chart.CurrentScene().size, (Size{300, 225}));
}

TEST_F(ChartControlTest, AChangeShowsWhenItIsRefreshed) {
    EXPECT_TRUE(Shows(QStringLiteral("before")));
    chart.Model().Title.Text = QStringLiteral("after");
    EXPECT_TRUE(Shows(QStringLiteral("before")));
    chart.Refresh();
    EXPECT_TRUE(Shows(QStringLiteral("after")));
}

TEST_F(ChartControlTest, TheSceneIsKeptUntilItIsOutOfDate) {
    chart.show(); // a hidden control hears of its size with every grab
    chart.grab();
    ASSERT_TRUE(Shows(QStringLiteral("before")));
    chart.Model().Title.Text = QStringLiteral("after");
    chart.grab();
    EXPECT_TRUE(Shows(QStringLiteral("before"))); // nobody has said that it is out of date
}

TEST_F(ChartControlTest, WhileRepaintIsOffNothingIsLaidOutAnew) {
    EXPECT_TRUE(Shows(QStringLiteral("before")));
    chart.SetRepaint(false);
    chart.Model().Title.Text = QStringLiteral("after");
    chart.Refresh();
    EXPECT_TRUE(Shows(QStringLiteral("before")));
    chart.SetRepaint(true);
    EXPECT_TRUE(Shows(QStringLiteral("after")));
}

TEST_F(ChartControlTest, ResizingLaysItOutAnew) {
    EXPECT_EQ(chart.CurrentScene().size.width, 300);
    chart.show();
    chart.resize(800, 300);
    EXPECT_EQ(chart.CurrentScene().size.width, 600);
}

TEST_F(ChartControlTest, EveryPixelIsPaintedEvenWithoutAGroundOfItsOwn) {
    chart.Model().Backdrop.Fill.Style = FillStyle::None;
    QImage image(chart.size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    chart.render(&image);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) ASSERT_EQ(qAlpha(image.pixel(x, y)), 255) << x << ',' << y;
}

TEST_F(ChartControlTest, AWidgetWithoutSizeIsPaintedWithoutHarm) {
    chart.resize(0, 0);
    EXPECT_TRUE(chart.CurrentScene().shapes.empty());
}

TEST_F(ChartControlTest, TheClipboardHoldsTheChartAsItWasWhenItWasCopied) {
    chart.CopyToClipboard();
    chart.Model().Title.Text = QStringLiteral("after");
    const QMimeData* content = CurrentDesktop().Clipboard();
    ASSERT_NE(content, nullptr);
    const QString picture = QString::fromUtf8(content->data(QStringLiteral("image/svg+xml")));
    EXPECT_TRUE(picture.contains(QStringLiteral("before")));
    EXPECT_FALSE(picture.contains(QStringLiteral("after")));
    CurrentDesktop().ClearClipboard();
}
