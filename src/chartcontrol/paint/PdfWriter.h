#pragma once

#include "chartcontrol/scene/Scene.h"

#include <QByteArray>
#include <QString>

namespace QmChart6 {

/// The scene as a PDF of one page of its size (whole points, rounded up), text as text.
QByteArray EncodePdf(const Scene& scene, const QString& title);

} // namespace QmChart6
