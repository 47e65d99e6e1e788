// The shift machine of smxalf, and the instruction alphabet: letters with an optional
// argument, read inside an instruction shift, that move the pen, change height, spacing,
// alphabet and colour, or draw underlines and symbols within a string.
#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "draw/draw.h"
#include "draw/prims.h"
#include "frame/frame.h"
#include "text/strings.h"
#include "text/text.h"

namespace zb {

namespace {

constexpr int kInsBuffer = 20;

// The argument of an instruction.
struct Arg {
  enum Kind { kNone, kDefault, kInt, kReal, kBad } kind = kNone;
  float v = 0.0f;
};

// "X" is the default of the string; a number is digits with an optional leading "-" and at
// most one "."; with "." it is real.
Arg parse_arg(std::string_view a) {
  Arg r;
  if (a.empty()) return r;
  if (a[0] == 'X' || a[0] == 'x') {
    r.kind = a.size() == 1 ? Arg::kDefault : Arg::kBad;
    return r;
  }
  int digits = 0, points = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const char c = a[i];
    if (c >= '0' && c <= '9') ++digits;
    else if (c == '.') ++points;
    else if (!(c == '-' && i == 0)) digits = -1000;
  }
  if (digits <= 0 || points > 1) {
    r.kind = Arg::kBad;
    return r;
  }
  double v = 0.0;
  const char* first = a.data() + (a[0] == '-' ? 1 : 0);
  const auto res = std::from_chars(first, a.data() + a.size(), v);
  if (res.ec != std::errc() || !(std::fabs(v) <= 1.0e9)) {
    r.kind = Arg::kBad;
    return r;
  }
  r.v = float(a[0] == '-' ? -v : v);
  r.kind = points != 0 ? Arg::kReal : Arg::kInt;
  return r;
}

// Pen along the baseline, measured from the string start.
float along() { return (zg.xchr - zg.xstr0) * zg.xcos - (zg.ychr - zg.ystr0) * zg.xsin; }

void move_along(float d) {
  zg.xchr += d * zg.xcos;
  zg.ychr -= d * zg.xsin;
}

void pen_to(float t) { move_along(t - along()); }

// A line parallel to the baseline at distance d, from t along the string start to the pen.
void rule(float t, float d) {
  const float x1 = zg.xstr0 + t * zg.xcos - d * zg.xsin, y1 = zg.ystr0 - t * zg.xsin - d * zg.xcos;
  const float x2 = zg.xchr - zg.xcgap * zg.xcos - d * zg.xsin;
  const float y2 = zg.ychr + zg.xcgap * zg.xsin - d * zg.xcos;
  lineqq(nint(x1) - zg.nxorg, nint(y1) - zg.nyorg, nint(x2) - zg.nxorg, nint(y2) - zg.nyorg);
}

// A symbol of the character height, turned with the text, centred half a height along and
// above the (shifted) baseline.
void text_symbol(int nsym) {
  const float nh = float(zg.nhchar), up = nh / 2.0f + zg.xbshft + zg.xoffs;
  const float cx = zg.xchr + nh / 2.0f * zg.xcos - up * zg.xsin;
  const float cy = zg.ychr - nh / 2.0f * zg.xsin - up * zg.xcos;
  const int hs = zg.hsym;
  const float rot = zg.xsymang;
  zg.hsym = zg.nhchar;
  zg.xsymang = float(zg.nangle % 360);
  dsymbl(nsym, nint(cx) - zg.nxorg, nint(cy) - zg.nyorg);
  qqstrk();
  zg.hsym = hs;
  zg.xsymang = rot;
}

// Width the pen moves for one blank of the string's alphabet, gap included.
float blank_step() {
  salfpa(zg.istralf);
  const float w = zg.ifixstr != 0 ? zg.xfixstr * zg.xfixmul * zg.xwthstr * float(zg.nhchar - 1)
                                  : float(zg.nblank) * zg.xcscl;
  return w + zg.xcgap;
}

class Command {
 public:
  Command(std::string_view text, Arg arg) : text_(text), a_(arg) {}
  void run(char letter);

 private:
  // Warnings are given while drawing only; measuring is silent.
  void warn(int code) const {
    if (zg.imeasr == 0) warnc1(code, text_);
  }
  bool none() const { return a_.kind == Arg::kNone; }
  bool dflt() const { return a_.kind == Arg::kDefault; }
  // An integer argument: warning 45 for a real one, 45 also for "X" where X means nothing.
  bool integer() const {
    if (a_.kind == Arg::kInt) return true;
    warn(a_.kind == Arg::kBad ? 43 : 45);
    return false;
  }
  // Tab number 1 .. 20 (none: 1), or -1 after a warning.
  int tab() const {
    if (none()) return 1;
    if (!integer()) return -1;
    if (a_.v < 1.0f || a_.v > 20.0f) {
      warn(44);
      return -1;
    }
    return int(a_.v);
  }
  // Commands that take no argument: warning 43 for any.
  bool no_argument() const {
    if (none()) return true;
    warn(43);
    return false;
  }
  void lines(float step, int k1, int k2);
  void height_cmd();
  void shift_cmd(float sign);
  void slant_cmd();

  std::string_view text_;
  Arg a_;
};

void Command::lines(float step, int k1, int k2) {
  const int k = tab();
  if (k < 0 || zg.imeasr != 0) return;
  const float t = none() ? 0.0f : zg.xtab[std::size_t(k - 1)];
  for (int i = k1; i <= k2; ++i) rule(t, float(i) * step + zg.xbshft + zg.xoffs);
}

void Command::height_cmd() {
  const float nh = float(zg.nhchar), nhs = float(zg.nhstr);
  if (none()) set_text_height(0.6f * nh);
  else if (dflt()) set_text_height(nhs);
  else if (a_.kind == Arg::kBad) warn(43);
  else set_text_height(a_.v > 0.0f ? a_.v * nh : std::fabs(a_.v) * nhs);
}

// "U" (sign 1) and "D" (sign -1): the baseline shift.
void Command::shift_cmd(float sign) {
  const float nh = float(zg.nhchar), nhs = float(zg.nhstr);
  if (none()) zg.xbshft = sign * nhs;
  else if (dflt()) zg.xbshft = 0.0f;
  else if (a_.kind == Arg::kBad) warn(43);
  else zg.xbshft = sign * (a_.v > 0.0f ? a_.v * nhs : std::fabs(a_.v) * nh);
}

void Command::slant_cmd() {
  if (none()) {
    zg.xslnstr = 0.0f;
  } else if (dflt()) {
    zg.xslnstr = zg.xchang;
  } else if (a_.kind == Arg::kBad || a_.v < -60.0f || a_.v > 60.0f) {
    warn(43);
  } else {
    zg.xslnstr = std::fabs(a_.v) < 0.5f ? 0.0f
                                         : float(1.0 / std::tan((90.0 - double(a_.v)) * double(zg.xpi) / 180.0));
  }
}

void Command::run(char letter) {
  const float nh = float(zg.nhchar), nhs = float(zg.nhstr);
  switch (letter) {
    case 'P': {
      if (dflt()) return warn(45);
      const int k = tab();
      if (k > 0) zg.xtab[std::size_t(k - 1)] = along();
      return;
    }
    case 'G': {
      if (dflt()) return warn(45);
      const int k = tab();
      if (k > 0) pen_to(zg.xtab[std::size_t(k - 1)]);
      return;
    }
    case 'T':
      if (none()) pen_to(0.0f);
      else if (integer()) pen_to(a_.v);
      return;
    case 'A':
      if (none()) move_along(nh);
      else if (a_.kind == Arg::kBad) warn(43);
      else if (!dflt()) move_along(a_.v * nh);
      return;
    case 'C':
      salfpa(zg.istralf);
      if (none()) move_along(zg.xcgap);
      else if (integer()) move_along(a_.v * zg.xcgap);
      return;
    case 'F':
      if (none()) move_along(blank_step());
      else if (integer()) move_along(a_.v * blank_step());
      return;
    case 'U': return shift_cmd(1.0f);
    case 'D': return shift_cmd(-1.0f);
    case 'I':
    case 'E':
      if (dflt()) {
        zg.xbshft = 0.0f;
        set_text_height(nhs);
      } else if (no_argument()) {
        zg.xbshft += letter == 'I' ? -0.35f * nh : 0.75f * nh;
        set_text_height(0.6f * nh);
      }
      return;
    case 'R':
      if (no_argument()) {
        zg.xbshft = 0.0f;
        set_text_height(nhs);
      }
      return;
    case 'H': return height_cmd();
    case 'K':
      if (none()) {
        zg.ifixstr = 1;
        zg.xfixstr = 0.8f;
      } else if (dflt()) {
        zg.ifixstr = 0;
      } else if (a_.kind == Arg::kBad || !(a_.v > 0.0f)) {
        return warn(43);
      } else {
        zg.ifixstr = 1;
        zg.xfixstr = a_.v;
      }
      zg.icuralf = 0;
      return;
    case 'L':
      if (dflt()) return warn(45);
      return lines(-0.2f * nh, 1, 1);
    case 'J':
      if (dflt()) return warn(45);
      return lines(-0.2f * nh, 1, 2);
    case 'V':
      if (dflt()) return warn(45);
      return lines(0.5f * nh, 1, 1);
    case 'O':
      if (none()) zg.xoffs = nh;
      else if (dflt()) zg.xoffs = 0.0f;
      else if (a_.kind == Arg::kBad) warn(43);
      else zg.xoffs = a_.v * nh;
      return;
    case 'S': {
      int nsym = 0;
      if (!none()) {
        if (!integer()) return;
        if (a_.v < 0.0f || a_.v > 21.0f) return warn(43);
        nsym = int(a_.v);
      }
      if (zg.imeasr == 0) text_symbol(nsym);
      move_along(nh + zg.xcgap);
      return;
    }
    case 'M':
      if (none()) zg.istralf = 1;
      else if (dflt()) zg.istralf = zg.ibasalf;
      else if (integer()) {
        if (a_.v < 1.0f || a_.v > 6.0f) return warn(43);
        zg.istralf = int(a_.v);
      }
      return;
    case 'N': {
      int c = 1;
      if (dflt()) {
        c = zg.istrclr;
      } else if (!none()) {
        if (!integer()) return;
        if (a_.v < 0.0f || a_.v > 255.0f) return warn(43);
        c = int(a_.v);
      }
      if (zg.imeasr == 0) {
        qqstrk();
        qqsclr(c);
      }
      return;
    }
    case 'W':
      if (none()) zg.xwthstr = 1.0f;
      else if (dflt()) zg.xwthstr = zg.xchwth;
      else if (a_.kind == Arg::kBad || !(a_.v > 0.0f)) return warn(43);
      else zg.xwthstr = a_.v;
      zg.icuralf = 0;
      return;
    case 'Y':
      if (none()) zg.xspcstr = 0.0f;
      else if (dflt()) zg.xspcstr = zg.xchspc;
      else if (a_.kind == Arg::kBad) return warn(43);
      else zg.xspcstr = a_.v;
      zg.icuralf = 0;
      return;
    case 'Z': return slant_cmd();
    default: return warn(46);
  }
}

// An instruction shift collects its characters: blanks are ignored, argument characters
// join the buffer, any other character is a command letter that first carries out the
// command waiting in the buffer.
void instruction_char(int ich) {
  if (ich == ' ') return;
  const bool arg = (ich >= '0' && ich <= '9') || ich == '.' || ich == '-' || ich == 'X' || ich == 'x';
  if (!arg) {
    if (zg.ninsbuf > 0) inscmd(zg.cinsbuf.full(), zg.ninsbuf);
    zg.ninsbuf = 0;
  }
  if (zg.ninsbuf < kInsBuffer) ++zg.ninsbuf;
  zg.cinsbuf.c[std::size_t(zg.ninsbuf - 1)] = char(ich);
}

}  // namespace

void inscmd(std::string_view ccmd, int n) {
  n = std::min(n, int(ccmd.size()));
  if (n <= 0) return;
  const std::string text(ccmd.substr(0, std::size_t(n)));
  Command(text, parse_arg(std::string_view(text).substr(1))).run(upper(text[0]));
}

bool smixal(int ich, int& ialf) {
  if (zg.ismxalf == 0) return false;
  if (zg.ismxcur == 0) {
    for (std::size_t k = 0; k < 6; ++k)
      if (zg.ismxtab[k] != 0 && zg.ismxin[k] == ich) {
        zg.ismxcur = int(k) + 1;
        if (zg.ismxtab[k] == 7) {
          zg.ninsbuf = 0;
          zg.cinsbuf = "";
        } else {
          ialf = zg.ismxtab[k];
        }
        return true;
      }
    return false;
  }
  const std::size_t k = std::size_t(zg.ismxcur - 1);
  if (ich == zg.ismxout[k]) {
    zg.ismxcur = 0;
    if (zg.ismxtab[k] == 7 && zg.ninsbuf > 0) inscmd(zg.cinsbuf.full(), zg.ninsbuf);
    zg.ninsbuf = 0;
    ialf = zg.istralf;
    return true;
  }
  if (zg.ismxtab[k] != 7) return false;
  instruction_char(ich);
  return true;
}

}  // namespace zb
