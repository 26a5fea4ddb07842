#pragma once

#include "chartcontrol/scene/Scene.h"

#include <QByteArray>

namespace QmChart6 {

/// A scene as indented JSON, one shape to a line, numbers rounded to three decimals: the form that goldens
/// are kept in. The same scene gives the same bytes on every machine.
QByteArray DumpScene(const Scene& scene);

/// The scene that a dump holds. Raises error 13, with the place, for bytes that are no dump.
Scene ReadScene(const QByteArray& json);

} // namespace QmChart6
