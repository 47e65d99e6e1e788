// Entry points of the screen window and the virtual raster as the device layer calls them.
// Parts not built yet answer with the no-ops of raster/pending.cpp.
#pragma once

namespace zb {

// Screen window.
bool qqwchk();                                            // true if a display can be opened
void zori_window();                                       // opens the window
void qqwdrw(int ix, int iy, int icode);                   // buffered polyline
void qqwfll(int ix, int iy, int nw, int nh, int iclr);    // filled rectangle
void qqwclr(int iclr);                                    // drawing colour
void qqwers();                                            // clears in the current colour
void qqwsbf();                                            // makes the drawing visible
void qqwnpg();                                            // new page
void qqwfin(int imode);                                   // end of session

// Virtual raster.
void zori_raster();                                       // allocates the store
void qqvlin(int ix1, int iy1, int ix2, int iy2);          // line, both ends included
void qqvfll(int ix1, int iy1, int ix2, int iy2, int iclr);
void qqvclr(int iclr);                                    // drawing colour
void qqvers();                                            // clears to the background
void qqvfin();                                            // frees the pixels
void qqrfil(const char* path, int itype);                 // writes the raster file

}  // namespace zb
