#include "chartcontrol/paint/PaintScene.h"

#include "chartcontrol/paint/ScenePainter.h"

namespace QmChart6 {

void PaintScene(const Scene& scene, QPainter& painter, double scale, PaintTarget target) {
    ScenePainter(scene, painter, scale, target).Paint();
}

} // namespace QmChart6
