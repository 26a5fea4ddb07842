#pragma once

#include "chartcontrol/model/Chart.h"
#include "chartcontrol/scene/Geometry.h"

namespace QmChart6::Samples {

/// A chart of a random kind, table, look and size, from 120 by 90 to 3000 by 2000 pixels; the same for the
/// same seed.
struct RandomCase {
    Chart chart;
    Size pixels;
};
RandomCase RandomCaseOf(unsigned seed);

} // namespace QmChart6::Samples
