#include "dialogs/GraphTypesRows.h"

#include "DialogsTest.h"
#include "dialogs/ColourBox.h"
#include "dialogs/GraphTypesControls.h"
#include "support/SampleCharts.h"

using namespace QmChart6;

namespace {

class GraphTypesRowsTest : public DialogsTest {
protected:
    GraphTypesRowsTest() {
        look.chart = Samples::ChartOf(4, 3, [](int row, int column) { return row * column; });
        for (std::vector<GraphTypesRow>* more : {&settings, &labels})
            rows.insert(rows.end(), more->begin(), more->end());
    }

    /// The values that a person can choose in a control; codes of locations where the chart's kind tells
    /// them.
    static std::vector<int> ValuesOf(const QWidget& box) {
        if (qobject_cast<const QCheckBox*>(&box) != nullptr) return {1, 0, 1};
        if (qobject_cast<const ColourBox*>(&box) != nullptr) return {0x302010, 0xffffff};
        const auto* list = qobject_cast<const QComboBox*>(&box);
        const int count = list == nullptr ? 0 : list->count();
        std::vector<int> codes;
        for (int code = 0; code < (count == 0 ? 9 : count); ++code) codes.push_back(code);
        return codes;
    }

    QWidget dialog;
    GraphTypesControls form{&dialog};
    std::vector<GraphTypesRow> settings = SettingRows(form);
    std::vector<GraphTypesRow> labels = LabelRows(form);
    std::vector<GraphTypesRow> rows;
    LookState look;
};

} // namespace

TEST_F(GraphTypesRowsTest, EveryBoxAndListIsTheControlOfOneRow) {
    QList<QWidget*> boxes;
    for (const GraphTypesRow& row : rows) boxes.append(row.box);
    for (QWidget* box : dialog.findChildren<QWidget*>()) {
        const bool holdsAValue =
            box->inherits("QCheckBox") || box->inherits("QComboBox") || box->inherits("QmChart6::ColourBox");
        EXPECT_EQ(boxes.count(box), holdsAValue ? 1 : 0) << box->objectName().toStdString();
    }
    EXPECT_EQ(boxes.size(), 26);
}

TEST_F(GraphTypesRowsTest, ARowReadsOfALookWhatItGaveIt) {
    for (const GraphTypesRow& row : rows)
        for (const int value : ValuesOf(*row.box)) {
            row.operation(look, value);
            EXPECT_EQ(row.read(look), value) << row.box->objectName().toStdString();
        }
}

TEST_F(GraphTypesRowsTest, AControlHoldsWhatItIsShownAndNoHandlerAnswers) {
    int answers = 0;
    for (const GraphTypesRow& row : rows) {
        if (row.box == form.cbLabels) continue; // filled by the kind of chart
        if (auto* check = qobject_cast<QCheckBox*>(row.box))
            QObject::connect(check, &QCheckBox::toggled, [&] { ++answers; });
        if (auto* list = qobject_cast<QComboBox*>(row.box))
            QObject::connect(list, &QComboBox::currentIndexChanged, [&] { ++answers; });
        for (const int value : ValuesOf(*row.box)) {
            ShowValue(*row.box, value);
            EXPECT_EQ(ValueOf(*row.box), value) << row.box->objectName().toStdString();
        }
    }
    EXPECT_EQ(answers, 0);
}

TEST_F(GraphTypesRowsTest, AGrayBoxLeavesItsComponentAsEachSeriesHasIt) {
    const GraphTypesRow& value = labels.at(2);
    look.chart.Plot.SeriesCollection(2).DataPoints.Item(DataPoints::All).DataPointLabel.Component =
        LabelShowsValue;
    ASSERT_EQ(value.read(look), 2);
    ShowValue(*value.box, 2);
    EXPECT_EQ(ValueOf(*value.box), 2);
    const LookState before = look;
    value.operation(look, 2);
    EXPECT_EQ(look, before);
    value.operation(look, 1);
    EXPECT_EQ(value.read(look), 1);
}
