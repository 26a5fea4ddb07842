#include "support/SampleKit.h"

namespace QmChart6::Samples {

namespace {

/// A size by its name.
struct Extent {
    const char* name;
    int width;
    int height;
};

constexpr std::array Extents{Extent{"small", 120, 90}, Extent{"modest", 200, 150}};

void AddEveryKind(std::vector<Sample>& samples) {
    for (const Extent& extent : Extents)
        for (const auto& [name, type] : Kinds)
            samples.push_back({extent.name + ('-' + std::string(name)), extent.width, extent.height,
                               [type = type] { return OfKind(type); }});
}

} // namespace

std::vector<Sample> Sizes() {
    using T = ChartType;
    using L = LabelLocation;
    std::vector<Sample> samples{
        {"wide-bar", 1600, 400, [] { return Sales(4); }},
        {"wide-line", 1600, 400, [] { return Sales(4, T::Line2D); }},
        {"wide-area-stacked", 1600, 400, [] { return Stacked(T::Area2D, false); }},
        {"wide-pie", 1600, 400, [] { return Pies(7, 4, L::Outside); }},
        {"wide-xy", 1600, 400, [] { return Scatter(2); }},
        {"wide-bar-3d", 1600, 400, [] { return Space(T::Bar3D); }},
        {"tall-bar", 300, 800, [] { return Sales(4); }},
        {"tall-line-labels", 300, 800, [] { return Labelled(T::Line2D, L::AbovePoint); }},
        {"tall-area-shares", 300, 800, [] { return Stacked(T::Area2D, true); }},
        {"tall-pie", 300, 800, [] { return Pies(3, 5, L::Outside); }},
        {"tall-xy", 300, 800, [] { return Scatter(2); }},
        {"tall-bar-3d", 300, 800, [] { return Space(T::Bar3D); }},
    };
    AddEveryKind(samples);
    return samples;
}

} // namespace QmChart6::Samples
