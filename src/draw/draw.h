// What other folders may call of the drawing core.
#pragma once
#include "draw/colour.h"
#include "draw/device.h"
#include "draw/fill.h"
#include "draw/line.h"
