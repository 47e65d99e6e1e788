// Character codes: the ISO 8859-1 and 8859-2 tables of qqgcod, and the national shifts of
// eushft as strsft expands them.
#include <set>
#include <string>

#include "text/text_support.h"

using namespace zb;

namespace {

class Codes : public zbt::TextSession {};

std::string bytes(std::initializer_list<int> codes) {
  std::string s;
  for (int c : codes) s += char(c);
  return s;
}

TEST_F(Codes, Iso8859Tables) {
  open();
  struct Case { const char* coding; int in, out; };
  const Case cases[] = {
      {"ISO1", 65, 65},   {"ISO1", 126, 126}, {"ISO1", 127, 32},  {"ISO1", 160, 32},  {"ISO1", 161, 185},
      {"ISO1", 162, 32},  {"ISO1", 191, 186}, {"ISO1", 192, 158}, {"ISO1", 196, 127}, {"ISO1", 197, 134},
      {"ISO1", 198, 136}, {"ISO1", 199, 142}, {"ISO1", 208, 187}, {"ISO1", 214, 128}, {"ISO1", 215, 32},
      {"ISO1", 216, 135}, {"ISO1", 220, 129}, {"ISO1", 222, 189}, {"ISO1", 223, 133}, {"ISO1", 228, 130},
      {"ISO1", 241, 141}, {"ISO1", 246, 131}, {"ISO1", 247, 32},  {"ISO1", 252, 132}, {"ISO1", 254, 190},
      {"ISO1", 255, 184}, {"ISO2", 160, 32},  {"ISO2", 161, 191}, {"ISO2", 162, 32},  {"ISO2", 163, 192},
      {"ISO2", 169, 195}, {"ISO2", 177, 201}, {"ISO2", 179, 202}, {"ISO2", 190, 209}, {"ISO2", 191, 210},
      {"ISO2", 192, 211}, {"ISO2", 193, 148}, {"ISO2", 196, 127}, {"ISO2", 200, 215}, {"ISO2", 208, 187},
      {"ISO2", 215, 32},  {"ISO2", 223, 133}, {"ISO2", 232, 230}, {"ISO2", 240, 188}, {"ISO2", 248, 237},
      {"ISO2", 249, 238}, {"ISO2", 254, 240}, {"ISO2", 255, 32},
  };
  for (const auto& c : cases) {
    chacod(c.coding);
    EXPECT_EQ(qqgcod(c.in), c.out) << c.coding << " " << c.in;
  }
  // Together both codings reach every letter 127..240 of the complex roman alphabet once or more.
  std::set<int> reached;
  for (const char* coding : {"ISO1", "ISO2"}) {
    chacod(coding);
    for (int code = 0; code < 256; ++code) {
      const int out = qqgcod(code);
      if (code > 126) EXPECT_TRUE(out == 32 || (out >= 127 && out <= 240)) << coding << " " << code;
      if (out >= 127) reached.insert(out);
    }
  }
  EXPECT_EQ(reached.size(), 114u);
}

TEST_F(Codes, IsoLettersDrawLikeTheirInternalCodes) {
  open();
  complx();
  chacod("ISO2");
  const float iso = advance(0xEF);   // d with caron
  chacod("STAN");
  EXPECT_FLOAT_EQ(iso, advance(233));
  EXPECT_GT(advance(233), advance('d'));   // its apostrophe stands right of the stem
}

TEST_F(Codes, NationalShifts) {
  open();
  eushft("GERM", "!");
  eushft("ACUT", "#");
  struct Case { std::string in, out; };
  const Case cases[] = {
      {"!a!o!u!s!A!O!U", bytes({130, 131, 132, 133, 127, 128, 129}) + std::string(7, ' ')},
      {"Stra!se", "Stra" + bytes({133}) + "e "},
      {"a!!b", "a!b "},     // a doubled shift is the character itself
      {"ab!", "ab!"},       // a shift in the last position stays
      {"!!!", "!! "},
      {"#e#U", bytes({154, 152}) + "  "},
      {"", ""},
  };
  for (const auto& c : cases) {
    std::string s = c.in;
    strsft(s);
    EXPECT_EQ(s, c.out) << c.in;
  }
  EXPECT_TRUE(take_text().empty());
  chacod("ISO1");   // the letters then come as ISO 8859-1 codes, which alfcha converts
  std::string s = "!a#E";
  strsft(s);
  EXPECT_EQ(s, bytes({228, 201}) + "  ");
}

TEST_F(Codes, EveryModeAndLetter) {
  open();
  struct Mode { const char* key; const char* letters; int first; };
  const Mode modes[] = {{"GERM", "AOUaous", 127}, {"DANI", "AOEaoe", 134}, {"SPAN", "Nn", 140},
                        {"FREN", "CcEIei", 142}, {"ACUT", "AEIOUaeiou", 148}, {"GRAV", "AEIOUaeiou", 158},
                        {"CIRC", "AEIOUaeiou", 168}};
  for (const auto& m : modes) {
    reset("EUSH");
    eushft(m.key, "&");
    EXPECT_EQ(getshf(m.key), "&");
    const std::string letters = m.letters;
    for (std::size_t k = 0; k < letters.size(); ++k) {
      std::string s = std::string("&") + letters[k];
      strsft(s);
      EXPECT_EQ(int(static_cast<unsigned char>(s[0])), m.first + int(k)) << m.key << " " << letters[k];
    }
  }
}

TEST_F(Codes, IncorrectCharacterAfterTheShift) {
  open();
  eushft("SPAN", "~");
  messag("x~z ok", 100, 100);
  EXPECT_EQ(take_text(), " <<<< Warning  18: Incorrect character after the EUSHFT operator in MESSAG!   (~z ok)\n");
  std::string s = "x~z";
  strsft(s);
  EXPECT_EQ(s, "x~z");   // the shift character stays
}

TEST_F(Codes, OneCharacterForOneModeOnly) {
  open();
  eushft("GERM", "!");
  EXPECT_EQ(getshf("DANI"), " ");   // the first call cleared all seven
  const Zorglb before = zg;
  eushft("FREN", "!");
  EXPECT_EQ(take_text(), " <<<< Warning  57: Control characters must be different in EUSHFT!\n");
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  eushft("GERM", "!");   // the same mode again is no conflict
  eushft("FREN", "%");
  EXPECT_EQ(getshf("FREN"), "%");
  EXPECT_EQ(getshf("GERM"), "!");
  const Zorglb before2 = zg;
  eushft("BRIT", "?");
  EXPECT_EQ(take_text(), " <<<< Warning   2: Incorrect parameter in EUSHFT!   (BRIT)\n");
  EXPECT_EQ(zg, zbt::with_warning_fields(before2));
}

}  // namespace
