#pragma once

#include <QImage>
#include <QString>

namespace QmChart6 {

/// How far two pictures may be apart: on average over all channels (of 255), and in the share of pixels of
/// which a channel differs by more than `channelDifference`.
struct Tolerance {
    double meanDifference = 0;
    int channelDifference = 0;
    double pixelShare = 0;
};

struct Comparison {
    bool same = false;
    /// What was measured, and what is allowed.
    QString text;
};

Comparison Compare(const QImage& before, const QImage& now, const Tolerance& tolerance);

/// Old, new, and their difference, enlarged in contrast.
QImage SideBySide(const QImage& before, const QImage& now);

} // namespace QmChart6
