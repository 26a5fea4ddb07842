#include "chartcontrol/model/Drawing.h"

namespace QmChart6 {

namespace {

std::uint8_t Component(int value) {
    if (value < 0 || value > 255)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue,
                           QStringLiteral("a colour component is a number from 0 to 255, not %1").arg(value));
    return static_cast<std::uint8_t>(value);
}

} // namespace

void Colour::Set(int red, int green, int blue) {
    *this = {Component(red), Component(green), Component(blue)};
}

} // namespace QmChart6
