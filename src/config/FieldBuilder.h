#pragma once

#include "chartcontrol/model/Drawing.h"
#include "config/LookField.h"

#include <type_traits>
#include <utility>
#include <vector>

namespace QmChart6 {

// Makes the fields of a look from a look's members: either from a getter and a setter, or (the ...Member
// ones) from a function that gives a reference to the member. A number that does not fit a field's kind
// raises 6.

template<class Value, class Get, class Set>
LookField FieldOf(QString name, FieldKind kind, Get get, Set set) {
    const auto reading = [name, kind, get](const LookPart& part) {
        using Got = std::decay_t<decltype(get(part))>;
        if constexpr (std::is_same_v<Got, int>)
            return ToKind(static_cast<std::int32_t>(get(part)), kind, name);
        else if constexpr (std::is_same_v<Got, double>)
            return ToKind(static_cast<float>(get(part)), kind, name);
        else
            return ToKind(get(part), kind, name);
    };
    const auto writing = [name, kind, set](const LookPart& part, const FieldValue& value) {
        set(part, std::get<Value>(ToKind(value, kind, name)));
    };
    return {.name = name, .kind = kind, .get = reading, .set = writing};
}

template<class Get, class Set>
LookField Text(const char* name, Get get, Set set) {
    return FieldOf<QString>(QLatin1String(name), FieldKind::Text, get, set);
}
template<class Get, class Set>
LookField Boolean(const char* name, Get get, Set set) {
    return FieldOf<bool>(QLatin1String(name), FieldKind::Boolean, get, set);
}
template<class Get, class Set>
LookField Integer(const char* name, Get get, Set set) {
    return FieldOf<std::int16_t>(QLatin1String(name), FieldKind::Integer, get, set);
}
template<class Get, class Set>
LookField Long(const char* name, Get get, Set set) {
    return FieldOf<std::int32_t>(QLatin1String(name), FieldKind::Long, get, set);
}
template<class Get, class Set>
LookField Real(const char* name, Get get, Set set) {
    return FieldOf<float>(QLatin1String(name), FieldKind::Real, get, set);
}

template<class Member>
LookField TextMember(const char* name, Member member) {
    return Text(
        name, [member](const LookPart& part) -> QString { return member(part); },
        [member](const LookPart& part, const QString& text) { member(part) = text; });
}
template<class Member>
LookField BooleanMember(const char* name, Member member) {
    return Boolean(
        name, [member](const LookPart& part) -> bool { return member(part); },
        [member](const LookPart& part, bool on) { member(part) = on; });
}
template<class Member>
LookField IntegerMember(const char* name, Member member) {
    return Integer(
        name, [member](const LookPart& part) -> int { return member(part); },
        [member](const LookPart& part, std::int16_t number) { member(part) = number; });
}
template<class Member>
LookField LongMember(const char* name, Member member) {
    return Long(
        name, [member](const LookPart& part) -> int { return member(part); },
        [member](const LookPart& part, int number) { member(part) = number; });
}
template<class Member>
LookField RealMember(const char* name, Member member) {
    return Real(
        name, [member](const LookPart& part) -> double { return member(part); },
        [member](const LookPart& part, float number) { member(part) = static_cast<double>(number); });
}
/// `checked` turns a number into the enumeration's value or raises 380.
template<class Member, class Checked>
LookField Enumeration(const char* name, Member member, Checked checked) {
    return Long(
        name, [member](const LookPart& part) { return static_cast<int>(member(part)); },
        [member, checked](const LookPart& part, int number) { member(part) = checked(number); });
}

inline LookField At(Step step, LookField field) {
    field.step = step;
    return field;
}
inline std::vector<LookField> At(Step step, std::vector<LookField> fields) {
    for (LookField& field : fields) field.step = step;
    return fields;
}
inline LookField AsTitle(LookField field) {
    field.isTitle = true;
    return field;
}

inline void Append(std::vector<LookField>& fields, std::vector<LookField> more) {
    for (LookField& field : more) fields.push_back(std::move(field));
}

std::vector<LookField> ColourFields(const char* prefix,
                                    const std::function<Colour&(const LookPart&)>& colour);
std::vector<LookField> RectFields(const char* prefix,
                                  const std::function<CoordinateRect&(const LookPart&)>& rect);
std::vector<LookField> LocationFields(const char* prefix,
                                      const std::function<Location&(const LookPart&)>& location);
std::vector<LookField> FontFields(const char* prefix, const std::function<Font&(const LookPart&)>& font);

} // namespace QmChart6
