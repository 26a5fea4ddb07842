#pragma once

#include "chartcontrol/layout/Layout.h"
#include "chartcontrol/scene/HitTest.h"
#include "chartcontrol/scene/SceneBuilder.h"
#include "support/SampleCharts.h"
#include "support/StubTextMeasurer.h"

#include <variant>
#include <vector>

namespace QmChart6 {

/// The chart laid out with the stub font, in points.
inline LaidOutChart LaidOutWhole(const Chart& chart, Size size = {480, 315},
                                 double pixelsPerPoint = 4.0 / 3.0) {
    return LayOut(chart, {size, pixelsPerPoint}, StubTextMeasurer());
}

inline Scene LaidOut(const Chart& chart, Size size = {480, 315}, double pixelsPerPoint = 4.0 / 3.0) {
    return LaidOutWhole(chart, size, pixelsPerPoint).scene;
}

/// The shapes of one kind of geometry that show a part.
template<class Kind>
std::vector<Shape> ShapesOf(const Scene& scene, PartCode code) {
    std::vector<Shape> shapes;
    for (const Shape& shape : scene.shapes)
        if (shape.part.code == code && std::holds_alternative<Kind>(shape.geometry)) shapes.push_back(shape);
    return shapes;
}

inline std::vector<TextLine> TextsOf(const Scene& scene, PartCode code) {
    std::vector<TextLine> texts;
    for (const Shape& shape : ShapesOf<TextLine>(scene, code))
        texts.push_back(std::get<TextLine>(shape.geometry));
    return texts;
}

inline Box BoxOfPlot(const Scene& scene) {
    return std::get<Rectangle>(ShapesOf<Rectangle>(scene, PartCode::Plot).front().geometry).box;
}

} // namespace QmChart6
