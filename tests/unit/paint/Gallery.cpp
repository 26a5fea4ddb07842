#include "unit/paint/Gallery.h"

#include "chartcontrol/paint/QtTextMeasurer.h"
#include "chartcontrol/scene/SceneBuilder.h"

#include <cmath>

namespace QmChart6 {

namespace {

const Colour Blue{31, 104, 178};
const Colour Pale{226, 236, 247};
const Colour Grey{140, 147, 157};

class Gallery {
public:
    Scene Make() {
        scene_.size = {600, 450};
        builder_.AddRectangle({PartCode::Chart}, {0, 0, 600, 450}, SolidFill({255, 255, 255}),
                              {PenStyle::Solid, 0.75, Grey});
        Brushes();
        Markers();
        Pens();
        Texts();
        Slices();
        Clips();
        return scene_;
    }

private:
    void Text(Point at, const QString& words, double angle = 0, TextAnchor anchor = TextAnchor::Start,
              Font font = {}) {
        TextLine line;
        line.text = words;
        line.font = font;
        line.origin = at;
        line.angle = angle;
        line.anchor = anchor;
        const TextExtent extent = measurer_.Measure(words, font);
        line.width = extent.width;
        line.ascent = extent.ascent;
        line.descent = extent.descent;
        builder_.AddText({PartCode::AxisLabel, 1, 1}, line);
    }

    void Brushes() {
        for (int brush = 0; brush < PatternCount + HatchCount; ++brush) {
            const double left = 12 + 48 * (brush % 12);
            const double top = 12 + 62 * std::floor(brush / 12.0);
            const bool hatch = brush >= PatternCount;
            const int index = hatch ? brush - PatternCount : brush;
            const SceneFill fill{hatch ? BrushStyle::Hatch : BrushStyle::Pattern, index, Pale, Blue};
            builder_.AddRectangle({PartCode::DataPoint, 1, brush + 1}, {left, top, left + 42, top + 42}, fill,
                                  {PenStyle::Solid, 0.75, Blue});
            Text({left + 21, top + 52},
                 QStringLiteral("%1 %2")
                     .arg(hatch ? QStringLiteral("hatch") : QStringLiteral("pattern"))
                     .arg(index),
                 0, TextAnchor::Middle);
        }
    }

    void Markers() {
        for (int style = 1; style <= 8; ++style) {
            for (int row = 0; row < 3; ++row) builder_.AddPoint({20.0 + 22 * style, 150.0 + 16 * row});
            builder_.AddMarkers({PartCode::Series, 2}, static_cast<MarkerStyle>(style), 8, SolidFill(Blue));
            builder_.AddPoint({20.0 + 22 * style, 200});
            builder_.AddMarkers({PartCode::Series, 2}, static_cast<MarkerStyle>(style), 6,
                                SolidFill({255, 255, 255}), {PenStyle::Solid, 1, Blue});
        }
        for (int at = 0; at < 40; ++at) builder_.AddPoint({20.0 + 5 * at, 216 + 4 * std::sin(at * 0.4)});
        builder_.AddMarkers({PartCode::Series, 3}, MarkerStyle::Circle, 4, SolidFill({200, 60, 40}));
    }

    void Pens() {
        int row = 0;
        for (const double width : {0.75, 1.0, 1.5, 3.0}) {
            for (int style = 1; style <= 3; ++style) {
                const double y = 146 + 6.3 * row++;
                builder_.AddLine({PartCode::Axis, 1, 1}, {250, y}, {340, y},
                                 {static_cast<PenStyle>(style), width, Blue});
                for (int at = 0; at <= 18; ++at)
                    builder_.AddPoint({350 + 5.0 * at, y + 2 * std::sin(at * 0.7)});
                builder_.AddPolyline({PartCode::Series, 4},
                                     {static_cast<PenStyle>(style), width, {200, 60, 40}});
            }
        }
        for (int at = 0; at <= 600; ++at)
            builder_.AddPoint({460 + 0.2 * at, 180 + 30 * std::sin(at * 0.1) * std::cos(at * 0.013)});
        builder_.AddPolyline({PartCode::Series, 5}, {PenStyle::Solid, 1.5, Blue});
    }

    void Texts() {
        for (int turn = 0; turn < 8; ++turn)
            Text({80, 300}, QStringLiteral("   turned %1").arg(turn * 45), turn * 45);
        Font title{QStringLiteral("Arial"), 16, FontBold, 0, {40, 44, 52}};
        Text({300, 250}, QStringLiteral("Sales <& Costs> 2026"), 0, TextAnchor::Middle, title);
        Text({300, 266}, QStringLiteral("\u00dcbergr\u00f6\u00dfe, \u20ac 1\u202f234,50"), 0,
             TextAnchor::Middle, {QStringLiteral("Times New Roman"), 11, FontItalic, FontUnderline, {}});
        Text({300, 282}, QStringLiteral("struck out"), 0, TextAnchor::End,
             {QStringLiteral("Courier New"), 10, 0, FontStrikethrough, {}});
        Text({310, 286}, QStringLiteral("outlined"), 0, TextAnchor::Start,
             {QStringLiteral("Arial"), 18, FontBold | FontOutline, 0, Blue});
        for (int row = 0; row < 4; ++row)
            Text({200, 300.0 + 12 * row}, QStringLiteral("Size %1 The quick brown fox").arg(7 + row * 1.25),
                 0, TextAnchor::Start, {QStringLiteral("Arial"), 7 + row * 1.25, 0, 0, {}});
    }

    void Slices() {
        const Box pie{180, 350, 280, 440};
        double start = 20;
        int index = 0;
        for (const double span : {70.0, 120.0, 50.0, 90.0, 30.0}) {
            const SceneFill fill{index == 0 ? BrushStyle::Solid : BrushStyle::Pattern, 5 + 3 * index,
                                 index == 0 ? Blue : Pale, Blue};
            builder_.AddSlice({PartCode::DataPoint, index + 1, 1}, {pie, start, span}, fill,
                              {PenStyle::Solid, 1.5, {255, 255, 255}});
            start += span;
            ++index;
        }
        builder_.AddSlice({PartCode::DataPoint, 1, 2}, {{300, 350, 420, 420}, 0, 360},
                          {BrushStyle::Hatch, 5, Pale, Blue}, {PenStyle::Dashed, 1, Blue});
        for (const Point point : {Point{440, 440}, Point{440, 380}, Point{470, 330}, Point{490, 390},
                                  Point{540, 350}, Point{580, 440}})
            builder_.AddPoint(point);
        builder_.AddPolygon({PartCode::Series, 6}, {BrushStyle::Pattern, 4, Pale, Blue},
                            {PenStyle::Solid, 1, Blue});
    }

    void Clips() {
        builder_.SetClip(Box{470, 230, 570, 300});
        builder_.AddSlice({PartCode::Series, 7}, {{430, 220, 610, 330}, 0, 360},
                          {BrushStyle::Pattern, 9, Pale, {200, 60, 40}}, {PenStyle::Solid, 2, {200, 60, 40}});
        Text({450, 270}, QStringLiteral("clipped at both its ends"), 0, TextAnchor::Start,
             {QStringLiteral("Arial"), 14, FontBold, 0, {}});
        builder_.SetClip({});
    }

    Scene scene_;
    SceneBuilder builder_{scene_};
    QtTextMeasurer measurer_;
};

} // namespace

Scene GalleryScene() {
    return Gallery().Make();
}

} // namespace QmChart6
