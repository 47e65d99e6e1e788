// The PDF writer as the rest of the library calls it: the file, text in the base fonts,
// image data, ready content as a form, bookmarks and the buffer of a finished file. The
// pen, colour and box entries stand in formats/drivers.h with the other drivers.
#pragma once
#include <string_view>

namespace zb {

// Opens a file (or, with bit 1 of imode, a buffer in memory) of pages nw by nh points,
// each turned by /Rotate 90 with irot 1. Bit 0 of imode deflates the content.
// ierr: 0 done, -1 the file cannot be opened, -2 no memory.
void qqpdf1(const char* path, int nw, int nh, int imode, int irot, int& ierr);
// One character of base font ifnt (0..34) at ipts tenths of a point: mat is the text
// matrix, iang 0 and 90 use the short forms of it.
void qqpdf5(int ic, const float mat[6], int iang, int ifnt, int ipts);
// Copies the buffered file out. nmax 0 asks for its size. Result: the size, or -1 the
// buffer could not grow, -2 nothing buffered, -3 nmax too small. The buffer is freed
// after a copy.
int qqpdf6(char* cbuf, int nmax);
// Pixel bytes (red, green, blue) of the image opened by code 10 of qqpdf2.
void qqpdf7(const unsigned char* p, int n);
// Ready content p[0..n) with the bounding box (x, y, w, h) as a form, drawn into the box
// (xp, yp, wp, hp) of the page, turned with irot 1; icomp 1 deflates it. ierr 0 done,
// 1 refused (no file open, no data, empty box).
void qqpdf8(const unsigned char* p, int n, float x, float y, float w, float h, float xp, float yp,
            float wp, float hp, int icomp, int irot, int& ierr);
// Stores a bookmark of level 0..4 for the current page. ierr: 0 done, 1 bad level,
// 2 a lower level has no mark yet, 3 no memory, 4 no file open.
void qqpdf9(const char* title, int level, int& ierr);
// True while the file being written (or the last one) goes to memory.
bool pdf_buffered();

// Public routines.
void pdfmod(std::string_view copt, std::string_view ckey);
void pdfmrk(std::string_view cstr, std::string_view copt);
void pdfbuf(char* cbuf, int nmax, int& nlen);

}  // namespace zb
