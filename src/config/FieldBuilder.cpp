#include "config/FieldBuilder.h"

#include <utility>

namespace QmChart6 {

namespace {

using Part = const LookPart&;

std::string Name(const char* prefix, const char* rest) {
    return std::string(prefix) + rest;
}

LookField Component(const std::string& name, const std::function<std::uint8_t&(Part)>& component) {
    return Integer(
        name.c_str(), [component](Part part) -> int { return component(part); },
        [component](Part part, std::int16_t number) {
            Colour checked;
            checked.Set(number, 0, 0);
            component(part) = checked.Red;
        });
}

} // namespace

std::vector<LookField> ColourFields(const char* prefix, const std::function<Colour&(Part)>& colour) {
    std::vector<LookField> fields{
        Component(Name(prefix, "Red"), [colour](Part part) -> auto& { return colour(part).Red; }),
        Component(Name(prefix, "Green"), [colour](Part part) -> auto& { return colour(part).Green; }),
        Component(Name(prefix, "Blue"), [colour](Part part) -> auto& { return colour(part).Blue; }),
    };
    fields.front().together = static_cast<int>(fields.size());
    return fields;
}

std::vector<LookField> RectFields(const char* prefix, const std::function<CoordinateRect&(Part)>& rect) {
    return {
        RealMember(Name(prefix, "MinX").c_str(), [rect](Part part) -> auto& { return rect(part).Min.X; }),
        RealMember(Name(prefix, "MinY").c_str(), [rect](Part part) -> auto& { return rect(part).Min.Y; }),
        RealMember(Name(prefix, "MaxX").c_str(), [rect](Part part) -> auto& { return rect(part).Max.X; }),
        RealMember(Name(prefix, "MaxY").c_str(), [rect](Part part) -> auto& { return rect(part).Max.Y; }),
    };
}

std::vector<LookField> LocationFields(const char* prefix, const std::function<Location&(Part)>& location) {
    std::vector<LookField> fields{Enumeration(
        Name(prefix, "LocationType").c_str(),
        [location](Part part) -> auto& { return location(part).LocationType; }, ToLocationType)};
    std::vector<LookField> rect =
        RectFields(prefix, [location](Part part) -> auto& { return location(part).Rect; });
    // What is kept is told for a chart as large as the look makes it, whatever this one's was told for.
    for (LookField& field : rect)
        field.set = [location, set = field.set](Part part, const FieldValue& value) {
            set(part, value);
            location(part).Within = {};
        };
    Append(fields, std::move(rect));
    return fields;
}

std::vector<LookField> FontFields(const char* prefix, const std::function<Font&(Part)>& font) {
    std::vector<LookField> fields{
        TextMember(Name(prefix, "FontName").c_str(), [font](Part part) -> auto& { return font(part).Name; }),
        RealMember(Name(prefix, "FontSize").c_str(), [font](Part part) -> auto& { return font(part).Size; }),
        IntegerMember(Name(prefix, "FontStyle").c_str(),
                      [font](Part part) -> auto& { return font(part).Style; }),
        IntegerMember(Name(prefix, "FontEffect").c_str(),
                      [font](Part part) -> auto& { return font(part).Effect; }),
    };
    Append(fields, ColourFields(Name(prefix, "FontColor").c_str(),
                                [font](Part part) -> auto& { return font(part).VtColor; }));
    return fields;
}

} // namespace QmChart6
