#include "chartcontrol/layout/text/BackdropLayout.h"

namespace QmChart6 {

namespace {

/// The thick line of a double frame is this many times the frame's width; the gap between its lines as wide
/// as the frame is.
constexpr double ThickFactor = 2;
constexpr double GapFactor = 2;

struct FrameLines {
    double outer = 0;
    double inner = 0;
};

FrameLines LinesOf(const Frame& frame) {
    switch (frame.Style) {
    case FrameStyle::None:
        return {};
    case FrameStyle::Single:
        return {frame.Width, 0};
    case FrameStyle::Double:
        return {frame.Width, frame.Width};
    case FrameStyle::ThickInner:
        return {frame.Width, ThickFactor * frame.Width};
    case FrameStyle::ThickOuter:
        return {ThickFactor * frame.Width, frame.Width};
    }
    return {};
}

void AddFrameLine(SceneBuilder& builder, Part part, const Frame& frame, const Box& box, double outside,
                  double width) {
    if (width > 0)
        builder.AddRectangle(part, box.Grown(-(outside + width / 2)), {},
                             {PenStyle::Solid, width, frame.FrameColor});
}

} // namespace

void LayOutBackdrop(SceneBuilder& builder, Part part, const Backdrop& backdrop, const Box& box) {
    if (backdrop.Fill.Style == FillStyle::Brush && backdrop.Fill.Brush.Style != BrushStyle::None)
        builder.AddRectangle(part, box, FillOf(backdrop.Fill.Brush));
    const FrameLines lines = LinesOf(backdrop.Frame);
    AddFrameLine(builder, part, backdrop.Frame, box, 0, lines.outer);
    AddFrameLine(builder, part, backdrop.Frame, box, lines.outer + GapFactor * backdrop.Frame.Width,
                 lines.inner);
}

double FrameDepth(const Frame& frame) {
    const FrameLines lines = LinesOf(frame);
    return lines.inner > 0 ? lines.outer + GapFactor * frame.Width + lines.inner : lines.outer;
}

} // namespace QmChart6
