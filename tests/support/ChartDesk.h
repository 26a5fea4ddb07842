#pragma once

#include "base/Units.h"
#include "chartcontrol/scene/HitTest.h"
#include "chartcontrol/widget/ChartControl.h"
#include "viewer/GraphForm.h"
#include "viewer/ViewerMenu.h"
#include "viewer/ViewerToolBar.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QTest>

#include <stdexcept>
#include <string>

// What a person at the desk does with a viewer, by real events. What they cannot find ends the test.

/// A place of the control where a part of the chart is met, in logical pixels.
inline QPoint PlaceOf(QmChart6::ChartControl& control, QmChart6::Part wanted) {
    using namespace QmChart6;
    const Scene scene = control.CurrentScene();
    for (const std::size_t index : Find(scene, wanted)) {
        const Shape& shape = scene.shapes[index];
        std::vector<Point> candidates{shape.bounds.Center(), {shape.bounds.left + 1, shape.bounds.top + 1}};
        if (const auto* line = std::get_if<Polyline>(&shape.geometry))
            for (const Point point : scene.PointsOf(line->points)) candidates.push_back(point);
        for (const Point point : candidates) {
            const QPoint place = QPointF(point.x / PointsPerPixel, point.y / PointsPerPixel).toPoint();
            int found = NoPart;
            int index1 = 0;
            int index2 = 0;
            int unused = 0;
            control.TwipsToChartPart(place.x() * 15, place.y() * 15, found, index1, index2, unused, unused);
            if (found == static_cast<int>(wanted.code) &&
                (wanted.index1 == AnyIndex || wanted.index1 == index1))
                return place;
        }
    }
    throw std::runtime_error("no place shows part " + std::to_string(static_cast<int>(wanted.code)));
}

/// Where nothing but the plot is.
inline QPoint PlaceOfPlot(QmChart6::ChartControl& control) {
    using namespace QmChart6;
    for (int y = 0; y < control.height(); y += 5)
        for (int x = 0; x < control.width(); x += 5) {
            int found = NoPart;
            int unused = 0;
            control.TwipsToChartPart(x * 15, y * 15, found, unused, unused, unused, unused);
            if (found == static_cast<int>(PartCode::Plot)) return {x, y};
        }
    throw std::runtime_error("no place shows the plot alone");
}

template<class Item>
Item& The(const QObject& owner, const char* name) {
    auto* item = owner.template findChild<Item*>(QLatin1String(name));
    if (item == nullptr) throw std::runtime_error(std::string("there is no ") + name);
    return *item;
}

/// Right click, and the menu is there.
inline void OpenMenu(QmChart6::GraphForm& form, const QPoint& placeInChart) {
    QTest::mouseClick(form.windowHandle(), Qt::RightButton, {}, form.ChartImage().mapTo(&form, placeInChart));
    if (!QTest::qWaitFor([&] { return The<QmChart6::ViewerMenu>(form, "mProperties").isVisible(); }))
        throw std::runtime_error("the menu does not open");
}

/// Clicks an entry of the open menu; returns once what it opens is closed again.
inline void ChooseEntry(QmChart6::GraphForm& form, const char* name) {
    auto& menu = The<QmChart6::ViewerMenu>(form, "mProperties");
    auto& entry = The<QAction>(form, name);
    if (!menu.actions().contains(&entry) || !entry.isVisible() || !entry.isEnabled())
        throw std::runtime_error(std::string("nobody can choose ") + name);
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&entry).center());
}

inline void DoubleClick(QmChart6::GraphForm& form, const QPoint& placeInChart) {
    const QPoint place = form.ChartImage().mapTo(&form, placeInChart);
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(form.windowHandle(), Qt::LeftButton, {}, place);
}

inline void ClickButton(QmChart6::GraphForm& form, QmChart6::BarButton button) {
    auto& bar = The<QmChart6::ViewerToolBar>(form, "tbControlBar");
    QTest::mouseClick(bar.widgetForAction(bar.Button(button)), Qt::LeftButton);
}

/// Opens a list and clicks an item, as the mouse does.
inline void ChooseItem(QComboBox& list, const QString& text) {
    list.showPopup(); // a click that opens it would have the next one wait for the double click
    QAbstractItemView& items = *list.view();
    const QModelIndex item = items.model()->index(list.findText(text), 0);
    if (!item.isValid() || !QTest::qWaitFor([&] { return items.isVisible(); }))
        throw std::runtime_error("nobody can choose " + text.toStdString());
    QTest::mouseClick(items.viewport(), Qt::LeftButton, {}, items.visualRect(item).center());
    if (!QTest::qWaitFor([&] { return !items.isVisible(); })) throw std::runtime_error("the list stays open");
}

inline void ChooseType(QmChart6::GraphForm& form, const QString& text) {
    ChooseItem(The<QComboBox>(form, "cbType"), text);
}

/// Clicks a button or a box of a dialog.
inline void ClickIn(QDialog& dialog, const char* name) {
    auto& button = The<QAbstractButton>(dialog, name);
    if (!button.isEnabled()) throw std::runtime_error(std::string("nobody can click ") + name);
    // A box is clicked on its mark, whatever room the layout gave it.
    const QPoint place =
        button.inherits("QCheckBox") ? QPoint(8, button.height() / 2) : QPoint(button.width() / 2, 8);
    QTest::mouseClick(static_cast<QWidget*>(&button), Qt::LeftButton, {}, place);
}

/// Types a text into a field, in place of what it holds.
inline void TypeInto(QWidget& field, const QString& text) {
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}

/// Drags with the left button and Ctrl, which turns a 3D chart.
inline void Turn(QmChart6::GraphForm& form, const QPoint& by) {
    QWidget& control = form.ChartImage();
    const QPoint start = control.rect().center();
    QTest::mousePress(&control, Qt::LeftButton, Qt::ControlModifier, start);
    QMouseEvent move(QEvent::MouseMove, start + by, control.mapToGlobal(start + by), Qt::NoButton,
                     Qt::LeftButton, Qt::ControlModifier);
    QApplication::sendEvent(&control, &move);
    QTest::mouseRelease(&control, Qt::LeftButton, Qt::ControlModifier, start + by);
}
