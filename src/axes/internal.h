// Shared between the scaling, the label texts and axis drawing inside this folder.
#pragma once
#include <functional>
#include <string_view>

namespace zb {

// A power label shows "10" with a raised exponent on a logarithmic axis; raised text is
// a power label or an "EXP" label; a centred power ("CLOG") is centred on its "10".
bool power_label(int ilog, int iaxis);
bool raised_label(int ilog, int iaxis);
bool centred_power(int ilog, int iaxis);
// Height of raised text as a fraction of the character height: shift plus exponent height.
float raised_factor();
// Labels whose texts hold control characters (powers, "EXP", maps): they are measured and
// drawn with the control characters on and formulas off.
bool forced_mix(int ilog, int iaxis);
// True inside a crossed or polar axis system.
bool crossed_system();
// Calls fn(i, v) for each label of an axis that labelx draws, with the value v of label i.
void for_each_label(float xe, float xor_, float xstp, int iaxis,
                    const std::function<void(int, float)>& fn);

// Calls fn(pos, major) for each tick of an axis in the order markx draws them: pos is
// the plot coordinate along the axis. ntic ticks per label interval.
void tick_marks(float xa, float xe, float xor_, float xstp, int nlen, int ntic, int nx, int ny,
                int ilog, int iaxis, const std::function<void(int, bool)>& fn);

// Every label and name goes through axis_text to dtext. Tests may watch the placements.
using AxisTextSink = void (*)(std::string_view text, int nx, int ny, int nang, int nh);
void set_axis_text_sink(AxisTextSink sink);
void axis_text(std::string_view text, int nx, int ny, int nang, int nh);

}  // namespace zb
