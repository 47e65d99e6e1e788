// Entry points of the vector-format drivers as the device layer calls them. A driver not
// built yet answers with the no-op of formats/pending.cpp.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace zb {

// CGM (formats/cgm.cpp): binary elements through the output record.
void drwcgm(float x, float y, int icode);                 // pen operation, device units
void inicgm(int icode);                                   // file head (1) or next picture (2)
void qqcgm1(std::string_view cstr);                       // long-form string parameter
void gbyte2(int ilun, std::int16_t& iword, int& ifirst);  // next word of a CGM file read in
void cgmbgd(float xr, float xg, float xb);
void cgmpic(std::string_view cstr);
void cgmver(int nver);

void qqwmf1();                                            // WMF file and head
void qqwmf2();                                            // WMF end
void qqwmf3(int ir, int ig, int ib);                      // WMF pen colour
void qqwmf4(int ix, int iy, int icode);                   // WMF move or line
void qqwmf5(int ix, int iy, int nw, int nh, int ir, int ig, int ib);
void qqwmf6(int ix, int iy, int icode);                   // WMF polygon phases
void zori_pdf();                                          // PDF file and first page
void qqpdf2(float x, float y, int icode);                 // PDF path and page operations
void qqpdf3(int r, int g, int b, int ifill);              // PDF colour
void qqpdf4(float x, float y, float w, float h);          // PDF filled rectangle
int pdf_end();                                            // PDF end; 1 if the file is named

// SVG (formats/svg.cpp): text lines to the plot file, device units are pixels, y down.
void zori_svg();                                          // head and background
void qqsvg1(int imode);                                   // group: 0 close, 1 stroke, 2 text
void qqsvg2(float x, float y, int icode);                 // 1 head, 2 draw, 3 move, 6 width,
                                                          // 9 flush, 999 end
void qqsvg3(int r, int g, int b);                         // colour
void qqsvg4(float x, float y, float w, float h, int r, int g, int b);   // filled rectangle
// One character at plot coordinates. The device-font text path calls it; the font index
// is its ifntix (Times until device fonts exist).
void qqsvg5(int ic, float x, float y);
std::string qqsvg6(int r, int g, int b);                  // "rrggbb", lower case
void svg_polygon(float x, float y, int icode);            // 1 begin, 2 point, 9 end

}  // namespace zb
