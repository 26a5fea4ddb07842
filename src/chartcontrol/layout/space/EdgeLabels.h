#pragma once

#include "chartcontrol/layout/axes/CategorySequence.h"
#include "chartcontrol/layout/space/AxisTexts.h"

#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace QmChart6 {

/// A label that has a place, or found none.
struct EdgeLabel {
    int index = 0;
    std::optional<TextLine> line;
};

/// The longest run of neighbours that all have a place and do not meet each other.
std::span<const EdgeLabel> LongestRun(const std::vector<EdgeLabel>& labels);

/// Moves a label away from its edge until it is clear.
EdgeLabel Pushed(const AxisTexts& texts, const AxisTextRoom& room, AxisId id, int index, TextLine line,
                 Point outward);

/// An edge of the floor with names along it; an index, from 0, has its place.
struct NamedEdge {
    AxisId id;
    Point from;
    Point to;
    std::function<Point(int)> place;
};

/// The most names that find a place along an edge, thinned by steps until they do not meet each other.
std::vector<EdgeLabel> ThinnedNames(const AxisTexts& texts, const NamedEdge& edge, CategorySequence names);

/// All names that find a place, those that would meet others farther away from the edge.
std::vector<EdgeLabel> StaggeredNames(const AxisTexts& texts, const NamedEdge& edge,
                                      const CategorySequence& names);

} // namespace QmChart6
