// Support of the primitive tests: a session on the HPGL output read back as pen strokes in
// plot coordinates (HPGL keeps 0.25 plot units per step and never splits a command), and
// the body of a PostScript file as one text.
#pragma once
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "axes/axes.h"
#include "draw/draw.h"
#include "draw/prims.h"
#include "support/harness.h"

namespace zbt {

struct Pt {
  float x, y;
};
using Stroke = std::vector<Pt>;

inline float dist(Pt a, Pt b) { return std::hypot(a.x - b.x, a.y - b.y); }

// Pen strokes of an HPGL file: each PU starts a stroke, PD continues it. A PU to the point
// where the pen stands continues the stroke (the stroke buffer restarts there after 100
// points). Strokes of a single point are dropped.
inline std::vector<Stroke> hpgl_strokes(const std::string& file, float scale, int nypag,
                                        bool merge = true) {
  std::string text;
  for (const auto& l : read_lines(file)) text += l;
  std::vector<Stroke> out;
  Stroke cur;
  Pt pen{-1e9f, -1e9f};
  std::size_t at = 0;
  while (at < text.size()) {
    std::size_t end = text.find(';', at);
    if (end == std::string::npos) end = text.size();
    const std::string cmd = text.substr(at, end - at);
    at = end + 1;
    if (cmd.size() < 3 || (cmd.rfind("PU", 0) != 0 && cmd.rfind("PD", 0) != 0)) continue;
    const std::size_t comma = cmd.find(',');
    if (comma == std::string::npos) continue;
    const Pt p{float(std::stoi(cmd.substr(2, comma - 2))) / scale,
               float(nypag) - float(std::stoi(cmd.substr(comma + 1))) / scale};
    if (cmd[1] == 'U' && !(merge && p.x == pen.x && p.y == pen.y)) {
      if (cur.size() > 1) out.push_back(cur);
      cur.clear();
    }
    if (cur.empty() || cmd[1] == 'D') cur.push_back(p);
    pen = p;
  }
  if (cur.size() > 1) out.push_back(cur);
  return out;
}

// Stroked paths ("x y u ... x y d ... p") and filled polygons ("... eofill") of a
// PostScript body, in device units; paths of a single point are left out.
struct PsShapes {
  std::vector<Stroke> paths, fills;
};
inline PsShapes ps_shapes(const std::string& body) {
  PsShapes out;
  std::vector<float> num;
  Stroke cur;
  std::string text = body;
  for (char& c : text)
    if (c == '\n') c = ' ';
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    const std::string t = text.substr(at, end - at);
    at = end + 1;
    if (t.empty()) continue;
    if ((t == "u" || t == "d") && num.size() >= 2) {
      if (t == "u") cur.clear();
      cur.push_back({num[num.size() - 2], num.back()});
    } else if (t == "p" || t == "eofill") {
      if (cur.size() > 1) (t == "p" ? out.paths : out.fills).push_back(cur);
      cur.clear();
    } else if (t.find_first_not_of("-.0123456789") == std::string::npos) {
      num.push_back(std::stof(t));
      continue;
    }
    num.clear();
  }
  return out;
}

// Fixture: sessions on HPGL and PostScript.
class PrimsFixture : public Fixture {
 protected:
  // Draws on the HPGL output and returns the strokes.
  // merge false: every move starts a stroke, also where the pen stands.
  std::vector<Stroke> strokes(const std::function<void()>& draw, bool merge = true) {
    zb::metafl("HPGL");
    zb::zorini();
    draw();
    zb::zorfin();
    return hpgl_strokes(zb::zg.cplotfl.str(), zb::zg.devscl, zb::zg.nypag, merge);
  }
  // Draws on PostScript (POST) and returns everything behind the head's scale line, the
  // records joined by newlines.
  std::string ps_body(const std::function<void()>& draw, const char* fmt = "POST") {
    zb::metafl(fmt);
    zb::zorini();
    draw();
    zb::zorfin();
    ps_file = zb::zg.cplotfl.str();
    std::string body;
    bool in = false;
    for (const auto& l : read_lines(ps_file)) {
      if (in) body += l + "\n";
      if (l.find(" scale") != std::string::npos && l.find("translate") != std::string::npos)
        in = true;
    }
    return body;
  }
  // A 2-D axis system: x 0..10 over 1001 units from nxa = 500, y 0..10 over 1001 units up
  // from nya = 1800, nothing drawn. 100 plot units per user unit on both axes.
  static void axes() {
    zb::axspos(500, 1800);
    zb::axslen(1001, 1001);
    zb::nograf();
    float xa = 0, xe = 10, xo = 0, xs = 2, ya = 0, ye = 10, yo = 0, ys = 2;
    zb::graf(xa, xe, xo, xs, ya, ye, yo, ys);
  }
  std::string ps_file;
};

// Renders a PostScript file with ghostscript to a null device; true if it has no error.
inline bool ghostscript_accepts(const std::string& file, std::string* log = nullptr) {
  std::string out;
  const int rc = run("gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=nullpage " + file, &out);
  if (log) *log = out;
  return rc == 0 && out.find("Error") == std::string::npos;
}

}  // namespace zbt
