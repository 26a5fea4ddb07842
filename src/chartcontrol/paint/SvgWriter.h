#pragma once

#include "chartcontrol/scene/Scene.h"

#include <QByteArray>
#include <QString>

namespace QmChart6 {

/// The scene as SVG 1.1: sizes in logical pixels outside and points inside, text as text, shapes in groups
/// named after the chart's parts. The same scene gives the same bytes.
QByteArray EncodeSvg(const Scene& scene, const QString& title);

} // namespace QmChart6
