// Character codes: ISO 8859-1 and 8859-2 to the internal codes of the alphabets (127 to 190
// Latin letters, 191 to 240 further letters of 8859-2), and the national shifts of eushft.
#include <array>

#include "frame/frame.h"
#include "text/alphabet.h"

namespace zb {

namespace {

// ISO 8859-1, codes 191 to 255 (0: no glyph, a blank).
constexpr std::array<unsigned char, 65> kIso1 = {
    186, 158, 148, 168, 178, 127, 134, 136, 142, 159, 149, 169, 144, 160, 150, 170, 145,
    187, 140, 161, 151, 171, 180, 128, 0,   135, 162, 152, 172, 129, 182, 189, 133, 163,
    153, 173, 179, 130, 137, 139, 143, 164, 154, 174, 146, 165, 155, 175, 147, 188, 141,
    166, 156, 176, 181, 131, 0,   138, 167, 157, 177, 132, 183, 190, 184};

// ISO 8859-2, codes 160 to 255.
constexpr std::array<unsigned char, 96> kIso2 = {
    0,   191, 0,   192, 0,   193, 194, 0,   0,   195, 196, 197, 198, 0,   199, 200,
    0,   201, 0,   202, 0,   203, 204, 0,   0,   205, 206, 207, 208, 0,   209, 210,
    211, 148, 168, 212, 127, 213, 214, 142, 215, 149, 216, 144, 217, 150, 170, 218,
    187, 219, 220, 151, 171, 221, 128, 0,   222, 223, 152, 224, 129, 182, 225, 133,
    226, 153, 173, 227, 130, 228, 229, 143, 230, 154, 231, 146, 232, 155, 175, 233,
    188, 234, 235, 156, 176, 236, 131, 0,   237, 238, 157, 239, 132, 183, 240, 0};

// National modes: the letters after the shift and, for each, the internal and the ISO 8859-1 code.
struct Mode {
  std::string_view letters;
  int first;                      // internal code of the first letter; the others follow
  std::array<unsigned char, 10> iso1;
};
constexpr std::array<Mode, 7> kModes = {{
    {"AOUaous", 127, {196, 214, 220, 228, 246, 252, 223}},
    {"AOEaoe", 134, {197, 216, 198, 229, 248, 230}},
    {"Nn", 140, {209, 241}},
    {"CcEIei", 142, {199, 231, 203, 207, 235, 239}},
    {"AEIOUaeiou", 148, {193, 201, 205, 211, 218, 225, 233, 237, 243, 250}},
    {"AEIOUaeiou", 158, {192, 200, 204, 210, 217, 224, 232, 236, 242, 249}},
    {"AEIOUaeiou", 168, {194, 202, 206, 212, 219, 226, 234, 238, 244, 251}},
}};

}  // namespace

int qqgcod(int ich) {
  if (ich <= 126) return ich;
  int code = 0;
  if (zg.ichcod == 1) {
    if (ich == 161) code = 185;
    else if (ich >= 191 && ich <= 255) code = kIso1[std::size_t(ich - 191)];
  } else if (zg.ichcod == 2) {
    if (ich >= 160 && ich <= 255) code = kIso2[std::size_t(ich - 160)];
  }
  return code == 0 ? 32 : code;
}

void strsft(std::string& cstr) {
  if (zg.ieushf == 0) return;
  const std::size_t n = cstr.size();
  std::string out;
  out.reserve(n);
  std::size_t i = 0;
  while (i < n) {
    const int c = static_cast<unsigned char>(cstr[i]);
    int mode = -1;
    if (i + 1 < n)
      for (int m = 0; m < 7; ++m)
        if (zg.inatsh[std::size_t(m)] != 0 && zg.inatsh[std::size_t(m)] == c) mode = m;
    if (mode < 0) {
      out += cstr[i++];
      continue;
    }
    const char next = cstr[i + 1];
    if (static_cast<unsigned char>(next) == c) {   // a doubled shift is the character itself
      out += cstr[i];
      i += 2;
      continue;
    }
    const Mode& m = kModes[std::size_t(mode)];
    const std::size_t at = m.letters.find(next);
    if (at == std::string_view::npos) {
      warnc1(18, std::string_view(cstr).substr(i));
      out += cstr[i++];
      continue;
    }
    const int code = zg.ichcod != 0 ? m.iso1[at] : m.first + int(at);
    out += char(code);
    i += 2;
  }
  out.resize(n, ' ');
  cstr = out;
}

}  // namespace zb
