// The raster folder as other folders call it: the pixel store with its drawing and pixel
// operations, the image calls, and the file writers.
#pragma once
#include <cstdint>
#include <string_view>

namespace zb {

// Store. Pixels row after row from the top, no padding: one index byte per pixel, or red,
// green, blue. Positions outside the store are ignored by every operation here.
void qqvini(int nxpag, int nypag, int& nw, int& nh, int isize, int irev, int irgb, int& ierr);
unsigned char* qqvptr();                 // null if no store is open
void qqvinf(int& nw, int& nh, int& irgb); // size and kind of the open store, zeros if none
void qqvers();
void qqvclr(int iclr);
void qqvvlt(int itab, const int* tab);
void qqvfin();
int qqgind(int r, int g, int b);          // nearest entry of the store's colour table

void qqvlin(int ix1, int iy1, int ix2, int iy2);
void qqvfll(int ix1, int iy1, int ix2, int iy2, int iclr);
void qqvftr(const int* x, const int* y, int iclr);
void qqtri1(int a, int b, int c, int& ilow, int& imid, int& ihigh);
void qqvwpx(int ix, int iy, int iclr);
void qqvrow(const unsigned char* row, int ix, int iy, int n, int iflag);
void qqvrpx(int ix, int iy, int& iclr, int iflag);
void qqvrdr(unsigned char* buf, int ix, int iy, int nw, int nh, int iflag);
void qqvfil(const char* path, int iread, int& ierr);

// Image calls.
void imgini();
void imgfin();
void imgbox(int nx, int ny, int nw, int nh);
void imgclp(int nx, int ny, int nw, int nh);
void imgsiz(int nw, int nh);
void imgfmt(std::string_view copt);
void imgmod(std::string_view copt);
void window(int nx, int ny, int nw, int nh);
void winsiz(int nw, int nh);

// File writers.
void rtiff(std::string_view cfil);
void rpng(std::string_view cfil);
void rppm(std::string_view cfil);
void rbmp(std::string_view cfil);
void rgif(std::string_view cfil);
void rbfpng(char* cbuf, int nmax, int& nlen);
void pngmod(std::string_view copt, std::string_view ckey);
void gifmod(std::string_view copt, std::string_view ckey);
void tifmod(int n, std::string_view cunit, std::string_view ckey);
void qqrfil(const char* path, int itype);
void qqpclp(int nx, int ny, int nw, int nh, int iflag);
std::uint32_t png_crc(const unsigned char* data, std::size_t n);

// Octree quantiser: 256 palette entries and one index per pixel; false if out of memory.
bool qqquant(const unsigned char* rgb, int nw, int nh, unsigned char* idx, unsigned char* r,
             unsigned char* g, unsigned char* b);

}  // namespace zb
