// Entry points of the screen window and the virtual raster as the device layer calls them.
// The screen's entries answer with the no-ops of raster/pending.cpp until its driver comes.
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
int qqwimg(int imode);                                    // opens (0) or closes (1) the image; 0 ok
void qqwrdr(unsigned char* buf, int ix, int iy, int nw, int nh, int iflag);   // reads pixels
void qqwfil(const char* path, int iread, int& ierr);      // Bitmap file of the screen

// Virtual raster.
void zori_raster();                                       // allocates the store
void qqvlin(int ix1, int iy1, int ix2, int iy2);          // line, both ends included
void qqvfll(int ix1, int iy1, int ix2, int iy2, int iclr);
void qqvclr(int iclr);                                    // drawing colour
void qqvers();                                            // clears to the background
void qqvfin();                                            // frees the pixels
void qqrfil(const char* path, int itype);                 // writes the raster file

}  // namespace zb
