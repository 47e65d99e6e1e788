// The one state record of the library: plain fields, statically allocated, owned field by
// field by the folders whose state headers are gathered here. A field name used twice
// fails to compile at its first use.
#pragma once
#include "axes/state.h"
#include "charts/state.h"
#include "contour/state.h"
#include "draw/colour_state.h"
#include "draw/device_state.h"
#include "draw/fill_state.h"
#include "draw/line_state.h"
#include "draw/prims_state.h"
#include "formats/state.h"
#include "frame/state.h"
#include "graph3d/state.h"
#include "logo/state.h"
#include "maps/state.h"
#include "raster/state.h"
#include "shield/state.h"
#include "text/state.h"
#include "widgets/state.h"

namespace zb {

struct Zorglb : FrameState, DeviceState, LineState, ColourState, FillState, PrimsState,
                FormatsState, RasterState, TextState, AxesState, ChartsState, ContourState,
                Graph3dState, MapsState, ShieldState, WidgetsState, LogoState {
  bool operator==(const Zorglb&) const = default;
};

extern Zorglb zg;

}  // namespace zb
