// Colour: the colour table, explicit RGB values 0x01BBGGRR, selection of the pen colour,
// colour scales and the cycles of curve attributes.
#pragma once
#include <string>
#include <string_view>

namespace zb {

// Tables.
void setvlt(std::string_view ctab);
std::string getvlt();                            // five characters, "RGREY", "TEMP " ...
void myvlt(const float* xr, const float* xg, const float* xb, int n);
void setind(int i, float xr, float xg, float xb);
void getind(int i, float& xr, float& xg, float& xb);
void revscr();
void clrmod(std::string_view cmod);
void vltfil(std::string_view cfil, std::string_view cmod);
void shwvlt();                                   // tells the screen or raster store of the table

// Current colour.
void color(std::string_view cname);
void setclr(int iclr);                           // pen colour: index or explicit RGB
void getclr(int& iclr);
void setrgb(float xr, float xg, float xb);
void getrgb(float& xr, float& xg, float& xb);
int intrgb(float xr, float xg, float xb);        // explicit value, -1 if a part is out of range
int indrgb(float xr, float xg, float xb);        // nearest table index
void hsvrgb(float xh, float xs, float xv, float& xr, float& xg, float& xb);
void rgbhsv(float xr, float xg, float xb, float& xh, float& xs, float& xv);

// Colour range and scales.
void colran(int nlow, int nhigh);
void getran(int& nlow, int& nhigh);
int ncolor(float z);
int ncollg(float z);
// Colour of z on the scale zpa..zpe (logarithms if logscale), zlow..zhigh ascending in
// user values, zcfac colours per unit: what ncolor and ncollg apply to the scale of setzpa.
int scale_colour(float z, bool logscale, float zpa, float zpe, float zlow, float zhigh, float zcfac);

// Cycles of the curve attributes.
void clrcyc(int i, int iclr);
void lincyc(int i, int ityp);
void patcyc(int i, int ipat);
void default_clrcyc();                           // iclrcy from the keyword colours

// Internal.
void qqgrgb(int iclr, int& r, int& g, int& b);   // bytes 0..255 of a colour value
void qqgrgb(int iclr, float& xr, float& xg, float& xb);   // the same divided by 255
int qqgidx(int r, int g, int b);                 // nearest table index
void gbyt03(int iv, int& i1, int& i2, int& i3);  // three low bytes, highest first
int active_vlt_length();                         // 9 for SMAL, 16 for VGA, else 256

// Colour tables of the screen and the raster store. Their drivers define these; until they
// are linked in, a weak empty default stands in.
void qqwvlt(int itab, const int* tab);
void qqvvlt(int itab, const int* tab);

}  // namespace zb
