// Stroke alphabets: loading of the font sets, the character settings, and the drawing of one
// character from the glyph tables. Strings are built on these in text_draw.cpp.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace zb {

// Font sets (public).
void zoralf();
void complx();
void simplx();
void duplx();
void triplx();
void gothic();
void comgot();
void helve();
void helves();
void helvet();
void serif();

// Character settings (public).
void basalf(std::string_view calph);
void smxalf(std::string_view calph, std::string_view cstr1, std::string_view cstr2, int n);
void gmxalf(std::string_view calph, std::string& cstr1, std::string& cstr2, int& n);
std::string getalf();
void eushft(std::string_view cnat, std::string_view cshf);
std::string getshf(std::string_view cnat);
void chacod(std::string_view copt);
void chawth(float xfac);
void chaspc(float xspc);
void chaang(float angle);
void fixspc(float xfac);
void iangle(int ndeg);
void shdcha();

// Loading (internal).
void lcinit(int ifont);
void lcsets(const int16_t* packed, int n);
void lcomro();
void lcomgr();
void lcmath();
void lcomit();
void lcital();
void lcomsc();
void lcomcy();
void lgroma();
void lgital();
void lgscri();
void load_default_font();   // zoralf without the call frame, for resall

// Drawing of one character (internal).
void alfcha(int ich);
void salfpa(int ialf);
void gmxcln(int n, int ipos, float xscl, float& xw);
void gconpa(int ipos, int& icur, float xscl, int& istart, int& npts, float& xoff, float& yoff);
void alfcon(const int16_t* xsec, const int16_t* ysec, int npts, float xoff, float yoff, float xscl, float yscl);
void shdcon(const int16_t* xsec, const int16_t* ysec, int npts, float xoff, float yoff, float xscl, float yscl,
            int& nbuf);
void shdfll(int nbuf);
void gcspec(int& idx, int& iflag);
int qqgcod(int ich);
// Expands the national shifts of a string in place; its length stays, the end filled with blanks.
void strsft(std::string& cstr);
// The shift machine: true if it consumed the code; it may change ialf.
bool smixal(int ich, int& ialf);
// Loads the working set of a string from the settings; the start of qqmess and nlmess.
void begin_string();

}  // namespace zb
