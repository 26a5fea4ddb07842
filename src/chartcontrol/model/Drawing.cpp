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

QByteArray ColourText(Colour colour) {
    constexpr const char* digits = "0123456789abcdef";
    QByteArray text("#");
    for (const std::uint8_t component : {colour.Red, colour.Green, colour.Blue}) {
        text += digits[component >> 4];
        text += digits[component & 15];
    }
    return text;
}

} // namespace QmChart6
