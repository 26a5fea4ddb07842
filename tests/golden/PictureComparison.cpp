#include "PictureComparison.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace QmChart6 {

namespace {

struct Channels {
    int red = 0;
    int green = 0;
    int blue = 0;

    [[nodiscard]] int Sum() const { return red + green + blue; }
    [[nodiscard]] int Largest() const { return std::max({red, green, blue}); }
};

Channels Difference(QRgb one, QRgb other) {
    return {std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
            std::abs(qBlue(one) - qBlue(other))};
}

} // namespace

Comparison Compare(const QImage& before, const QImage& now, const Tolerance& tolerance) {
    if (before.size() != now.size())
        return {false, QStringLiteral("was %1 by %2, is %3 by %4")
                           .arg(before.width())
                           .arg(before.height())
                           .arg(now.width())
                           .arg(now.height())};
    double sum = 0;
    double apart = 0;
    for (int y = 0; y < now.height(); ++y)
        for (int x = 0; x < now.width(); ++x) {
            const Channels difference = Difference(before.pixel(x, y), now.pixel(x, y));
            sum += difference.Sum();
            if (difference.Largest() > tolerance.channelDifference) ++apart;
        }
    const double pixels = static_cast<double>(now.width()) * now.height();
    const double mean = sum / (3 * pixels);
    const double share = apart / pixels;
    return {mean <= tolerance.meanDifference && share <= tolerance.pixelShare,
            QStringLiteral("mean difference %1 (allowed %2), pixels apart %3 (allowed %4)")
                .arg(mean)
                .arg(tolerance.meanDifference)
                .arg(share)
                .arg(tolerance.pixelShare)};
}

QImage SideBySide(const QImage& before, const QImage& now) {
    constexpr int gap = 8;
    constexpr int contrast = 4;
    const int width = std::max(before.width(), now.width());
    const int height = std::max(before.height(), now.height());
    QImage difference(width, height, QImage::Format_RGB32);
    difference.fill(Qt::black);
    for (int y = 0; y < std::min(before.height(), now.height()); ++y)
        for (int x = 0; x < std::min(before.width(), now.width()); ++x) {
            const Channels apart = Difference(before.pixel(x, y), now.pixel(x, y));
            difference.setPixel(x, y,
                                qRgb(std::min(255, contrast * apart.red),
                                     std::min(255, contrast * apart.green),
                                     std::min(255, contrast * apart.blue)));
        }
    QImage panel(3 * width + 2 * gap, height, QImage::Format_RGB32);
    panel.fill(Qt::gray);
    QPainter painter(&panel);
    painter.drawImage(0, 0, before);
    painter.drawImage(width + gap, 0, now);
    painter.drawImage(2 * (width + gap), 0, difference);
    return panel;
}

} // namespace QmChart6
