// Drawing of one axis: the line, the ticks, the labels beside it and the name, each in its
// own colour; single axes anywhere on the page; the frame around an axis system.
#include <cmath>

#include "axes/axes.h"
#include "axes/internal.h"
#include "draw/colour.h"
#include "draw/line.h"
#include "frame/frame.h"
#include "text/text.h"

namespace zb {

namespace {

AxisTextSink g_sink = nullptr;

// Truncation toward zero that cannot overflow.
int trunc_int(float v) {
  if (v != v) return 0;
  if (v > 2.0e9f) return 2000000000;
  if (v < -2.0e9f) return -2000000000;
  return int(v);
}

int nint(float v) { return trunc_int(v < 0.0f ? v - 0.5f : v + 0.5f); }

// Label justifications of labjus.
enum : int { kAuto = 0, kLeft, kRight, kOutward, kInward };

int justification(int ilog, int iaxis) {
  const std::size_t ax = std::size_t(iaxis - 1);
  if (zg.ilabjs[ax] != kAuto) return zg.ilabjs[ax];
  if (zg.ilabtp[ax] == 12) return zg.irgtlb != 0 ? kRight : kLeft;
  return power_label(ilog, iaxis) ? kLeft : kAuto;
}

// Across distance of labels from the axis line without sign: label distance and the part
// of the ticks on the label side.
int tick_part(std::size_t ax) {
  if (zg.nticks[ax] == 0) return 0;
  if (zg.iticps[ax] == 0) return zg.ntcmaj;
  if (zg.iticps[ax] == 2) return zg.ntcmaj / 2;
  return 0;
}

// Draws the labels; returns the room they take across the axis.
int labelx(float xa, float xe, float xor_, float xstp, int nlen, int nx, int ny, int idir,
           int ilog, int iaxis) {
  const std::size_t ax = std::size_t(iaxis - 1);
  if (zg.ilabtp[ax] == 0) return 0;
  const bool horizontal = iaxis == 1;
  const bool vert = zg.ilabor[ax] == 1;
  const int nh = zg.nhchar;
  const float f = raised_factor();
  const bool raised = raised_label(ilog, iaxis);
  const bool cpow = centred_power(ilog, iaxis);
  const int js = justification(ilog, iaxis);
  const int d = (horizontal ? ny : nx) + zg.isgdir * (zg.nlabds[ax] + tick_part(ax));
  const float s = float(nlen - 1) / (xe - xa);
  const int nmax = label_room(xa, xe, xor_, xstp, ilog, iaxis);
  const float q = cpow ? float(nh) - f * float(nh) / 2.0f : float(nh) / 2.0f;
  const int raised_at = trunc_int(float(d) + (f - 1.0f) * float(nh));
  const ForcedMix mix(forced_mix(ilog, iaxis));
  for_each_label(xe, xor_, xstp, iaxis, [&](int i, float v) {
    const std::string text = glabxy(v, i, ilog, iaxis);
    const int l = nlmess(text);
    const float lc = float(cpow ? nlmess("10") : l);
    const float p = horizontal ? float(nx) + 0.5f + (v - xa) * s : float(ny) - 0.5f - (v - xa) * s;
    int x = 0, y = 0, ang = 0;
    if (horizontal && !vert) {
      x = trunc_int(p - lc / 2.0f);
      y = idir == 0 ? (raised ? raised_at : d) : d - nh;
    } else if (horizontal) {
      ang = 90;
      x = trunc_int(p - q);
      if (idir == 0) y = (js == kLeft || js == kOutward) ? d + nmax : d + l;
      else y = (js == kLeft || js == kInward) ? d : d - nmax + l;
    } else if (!vert) {
      y = trunc_int(p - q);
      if (idir == 0) x = (js == kLeft || js == kInward) ? d : d + nmax - l;
      else x = (js == kLeft || js == kOutward) ? d - nmax : d - l;
    } else {
      y = trunc_int(p + lc / 2.0f);
      ang = 90;
      if (idir == 1) {
        x = d - nh;
      } else if (zg.irvynm == 0) {
        ang = 270;
        x = d + nh;
        y -= l;
      } else {
        x = raised ? raised_at : d;
      }
    }
    if (zg.ilabps[ax] == 2) {
      // Labels at the ends pushed inside the span of the axis.
      const bool along = horizontal ? ang == 0 : ang != 0;
      const int w = along ? l : nh;
      if (horizontal && ang != 270) {
        if (x < nx) x = nx;
        if (x + w > nx + nlen) x = nx + nlen - w;
      } else if (horizontal) {
        if (x - nh < nx) x = nx + nh;
        if (x > nx + nlen) x = nx + nlen;
      } else if (ang == 90) {
        if (y > ny) y = ny;
        if (y - w < ny - nlen) y = ny - nlen + w;
      } else {
        if (y + w > ny) y = ny - w;
        if (y < ny - nlen) y = ny - nlen;
      }
    }
    axis_text(text, x, y, ang, nh);
  });
  return nmax;
}

void namex(std::string_view cname, int nlen, int nx, int ny, int nmax, int idir, int iaxis) {
  std::size_t n = cname.size();
  while (n > 0 && cname[n - 1] == ' ') --n;
  if (n == 0) return;
  const std::string_view name = cname.substr(0, n);
  const std::size_t ax = std::size_t(iaxis - 1);
  const int d = zg.isgdir * (zg.nnamds[ax] + tick_part(ax) + (zg.ilabtp[ax] != 0 ? zg.nlabds[ax] : 0));
  const int hn = zg.nhname;
  int h = hn, e = 0, l = 0;
  measure_text(name, hn, h, e, l);
  int off = (nlen - l) / 2;
  if (zg.inamjs[ax] == 1) off = 0;
  else if (zg.inamjs[ax] == 2) off = nlen - l;
  if (iaxis == 1) {
    const int y = idir == 0 ? ny + d + nmax + h - hn : ny + d - hn - nmax - e;
    axis_text(name, nx + off, y, 0, hn);
  } else if (idir == 0 && zg.irvynm == 0) {
    axis_text(name, nx + d + nmax + h, ny - nlen + 1 + off, 270, hn);
  } else if (idir == 0) {
    axis_text(name, nx + d + nmax + e, ny - off, 90, hn);
  } else {
    axis_text(name, nx + d - nmax - h, ny - off, 90, hn);
  }
}

// One stage of an axis in its colour of axclrs, the current colour restored after it.
template <class F>
void in_colour(std::size_t ax, int stage, F&& draw) {
  const int c = zg.iaxclr[ax * 4 + std::size_t(stage)];
  const int noted = zg.ipenclr;
  if (c != -1) setclr(c);
  draw();
  if (c != -1) setclr(noted);
}

}  // namespace

void set_axis_text_sink(AxisTextSink sink) { g_sink = sink; }

void axis_text(std::string_view text, int nx, int ny, int nang, int nh) {
  if (g_sink != nullptr) g_sink(text, nx, ny, nang, nh);
  dtext(text, nx, ny, nang, nh);
}

void settic(int idir, int ireve) {
  zg.isgdir = idir == 0 ? 1 : -1;
  const int sign = ireve != 0 ? -zg.isgdir : zg.isgdir;
  zg.ntmajs = sign * zg.ntcmaj;
  zg.ntmins = sign * zg.ntcmin;
}

void rvline(int x1, int y1, int x2, int y2) {
  if (zg.irvtgl == 0) {
    strtqq(float(x1), float(y1));
    connqq(float(x2), float(y2));
  } else {
    strtqq(float(x2), float(y2));
    connqq(float(x1), float(y1));
  }
  zg.irvtgl = 1 - zg.irvtgl;
}

void tick_marks(float xa, float xe, float xor_, float xstp, int nlen, int ntic, int nx, int ny,
                int ilog, int iaxis, const std::function<void(int, bool)>& fn) {
  if (ntic <= 0 || !(xe != xa) || !std::isfinite(xstp) || xstp == 0.0f) return;
  const float s = float(nlen - 1) / (xe - xa);
  int n = ntic;
  float step = xstp;
  bool decade = false;
  if (ilog != 0 && n > 1) {
    const float k = std::round(xor_);
    const float ks = zg.ilogtc == 0 ? 1.0f : std::fabs(std::round(xstp));
    if (std::fabs(k - xor_) < 0.0001f && std::fabs(std::fabs(xstp) - ks) < 0.0001f) {
      decade = true;
      step = xstp < 0.0f ? -1.0f : 1.0f;
      n = 1;
    }
  }
  const float t = step / float(n);
  const long nb = trunc_int((xor_ - xa) / t + 0.0001f);
  const long na = trunc_int((xe - xor_) / t + 0.0001f);
  // Ticks closer than a quarter unit would only blacken the axis.
  const long limit = 4L * std::labs(long(nlen)) + 100;
  if (na + nb > limit) return;
  const bool horizontal = iaxis == 1;
  const float c = horizontal ? float(nx) + 0.5f + (xor_ - xa) * s : float(ny) + 0.5f - (xor_ - xa) * s;
  for (long i = -nb; i <= na; ++i) {
    const float along = float(i) * s * t;
    fn(trunc_int(horizontal ? c + along : c - along), i % n == 0);
  }
  if (!decade) return;
  // Decades get minor ticks at 2 .. 9 times their value.
  const long nb2 = trunc_int((xor_ - xa) / step + 1.0001f);
  const long na2 = trunc_int((xe - xor_) / step + 1.0001f);
  if (na2 + nb2 > limit) return;
  const float lo = std::min(xa, xe), hi = std::max(xa, xe);
  for (long i = -nb2; i <= na2; ++i) {
    const float dec = xor_ + float(i) * step;
    for (int j = 2; j <= 9; ++j) {
      const float p = std::log10(float(j)) + dec;
      if (p < lo || p > hi) continue;
      const int off = nint((p - xa) * s);
      fn(horizontal ? nx + off : ny - off, false);
    }
  }
}

void markx(float xa, float xe, float xor_, float xstp, int nlen, int nmaj, int nmin, int ntic,
           int nx, int ny, int ilog, int itcps, int iaxis) {
  const bool horizontal = iaxis == 1;
  const int b = horizontal ? ny : nx;
  const int bmaj = itcps == 2 ? b - nmaj / 2 : b;
  const int bmin = itcps == 2 ? b - nmin / 2 : b;
  zg.irvtgl = 0;
  tick_marks(xa, xe, xor_, xstp, nlen, ntic, nx, ny, ilog, iaxis, [&](int pos, bool major) {
    const int b0 = major ? bmaj : bmin;
    const int len = major ? nmaj : nmin;
    if (horizontal) rvline(pos, b0, pos, b0 + len);
    else rvline(b0, pos, b0 + len, pos);
  });
}

void daxis(float xa, float xe, float xor_, float xstp, int nlen, std::string_view cname, int idir,
           int nx, int ny, int ilog, int iaxis) {
  if (iaxis < 1 || iaxis > 3) return;
  const std::size_t ax = std::size_t(iaxis - 1);
  const bool horizontal = iaxis == 1;
  settic(idir, zg.iticps[ax] == 1 ? 1 : 0);
  if (zg.iaxlin[ax] != 0) {
    in_colour(ax, 0, [&] {
      strtqq(float(nx), float(ny));
      if (horizontal) connqq(float(nx + nlen - 1), float(ny));
      else connqq(float(nx), float(ny - nlen + 1));
    });
  }
  in_colour(ax, 1, [&] {
    markx(xa, xe, xor_, xstp, nlen, zg.ntmajs, zg.ntmins, zg.nticks[ax], nx, ny, ilog,
          zg.iticps[ax], iaxis);
  });
  int nmax = 0;
  in_colour(ax, 2, [&] { nmax = labelx(xa, xe, xor_, xstp, nlen, nx, ny, idir, ilog, iaxis); });
  // A crossed or polar system names the part of the axis beyond the crossing point.
  int mx = nx, my = ny, mlen = nlen;
  if (crossed_system()) {
    if (horizontal) {
      mx = zg.nxcros;
      mlen = nlen - (zg.nxcros - zg.nxa);
    } else {
      my = zg.nycros;
      mlen = nlen - (zg.nya - zg.nycros);
    }
  }
  in_colour(ax, 3, [&] { namex(cname, mlen, mx, my, nmax, idir, iaxis); });
  settic(0, 0);
}

namespace {

void single_axis(std::string_view cname, float xa, float xe, float xor_, float xstp, int nlen,
                 std::string_view cstr, int it, int nx, int ny, int ilog, int iaxis) {
  if (jqqlev(1, 3, cname)) return;
  if (jqqval(it, 0, 1)) return;
  const int py = jqqyvl(ny);
  int ierr = 0;
  erraxs(xa, xe, xor_, xstp, nlen, nx, py, ierr);
  if (ierr != 0) return;
  daxis(xa, xe, xor_, xstp, nlen, cstr, it, nx, py, ilog, iaxis);
}

}  // namespace

void xaxis(float xa, float xe, float xor_, float xstp, int nlen, std::string_view cstr, int it,
           int nx, int ny) {
  single_axis("XAXIS", xa, xe, xor_, xstp, nlen, cstr, it, nx, ny, 0, 1);
}
void yaxis(float xa, float xe, float xor_, float xstp, int nlen, std::string_view cstr, int it,
           int nx, int ny) {
  single_axis("YAXIS", xa, xe, xor_, xstp, nlen, cstr, it, nx, ny, 0, 2);
}
void xaxlg(float xa, float xe, float xor_, float xstp, int nlen, std::string_view cstr, int it,
           int nx, int ny) {
  single_axis("XAXLG", xa, xe, xor_, xstp, nlen, cstr, it, nx, ny, 1, 1);
}
void yaxlg(float xa, float xe, float xor_, float xstp, int nlen, std::string_view cstr, int it,
           int nx, int ny) {
  single_axis("YAXLG", xa, xe, xor_, xstp, nlen, cstr, it, nx, ny, 1, 2);
}

void dframe(int nx, int ny, int nw, int nh, int nthk, float xang) {
  if (nthk == 0) return;
  const int noted = zg.ipenclr;
  if (zg.ifrmcl != -1) setclr(zg.ifrmcl);
  const float x0 = float(nx + zg.nxorg), y0 = float(ny + zg.nyorg);
  const bool turn = std::fabs(xang) > 0.001f;
  const float cs = std::cos(xang * zg.fpi), sn = std::sin(xang * zg.fpi);
  // Counter-clockwise on the page, whose y axis points down.
  auto put = [&](float px, float py, bool first) {
    float x = px, y = py;
    if (turn) {
      x = px * cs + py * sn;
      y = py * cs - px * sn;
    }
    if (first) qqmove(x0 + x, y0 + y);
    else qqdraw(x0 + x, y0 + y);
  };
  int m = trunc_int(float(std::abs(nthk)) * zg.unitfac + 0.5f);
  if (m < 1) m = 1;
  for (int k = 0; k < m && k < 10000; ++k) {
    float d = float(k) / zg.unitfac;
    if (nthk < 0) d = -d;
    const float r = float(nw - 1) + d, b = float(nh - 1) + d;
    put(-d, -d, true);
    put(r, -d, false);
    put(r, b, false);
    put(-d, b, false);
    put(-d, -d, false);
  }
  qqstrk();
  if (zg.ifrmcl != -1) setclr(noted);
}

}  // namespace zb
