// Entry points of the vector-format drivers as the device layer calls them. A driver not
// built yet answers with the no-op of formats/pending.cpp.
#pragma once

namespace zb {

void drwcgm(float x, float y, int icode);                 // CGM pen operation
void inicgm(int icode);                                   // CGM head (1) or new picture (2)
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
void zori_svg();                                          // SVG head
void qqsvg2(float x, float y, int icode);                 // SVG path operations
void qqsvg3(int r, int g, int b);                         // SVG colour
void qqsvg4(float x, float y, float w, float h, int r, int g, int b);

}  // namespace zb
