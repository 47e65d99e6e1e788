// The one raster store of the process, shared by the files of this folder: pixels, size,
// kind, current colour and the colour table as the raster sees it.
#pragma once
#include <array>
#include <memory>
#include <new>

namespace zb {

struct RasterStore {
  std::unique_ptr<unsigned char[]> cvirt;   // rows from the top, nbytes_v bytes each
  int nwwind = 0, nhwind = 0;
  int nbytes_v = 0;                         // nwwind, or 3 nwwind for RGB
  int irgb_v = 0;                           // 0 indices, 1 red, green, blue
  int irev = 0;                             // background mode given at creation
  unsigned char ir_v = 0, ig_v = 0, ib_v = 0;
  int nclr_v = 0;
  std::array<unsigned char, 256> ivlt_r{}, ivlt_g{}, ivlt_b{};
  int nclrtb = 0;                           // 0: 9 entries, 7: 16 entries, else 256
  int nxclp = 0, nyclp = 0, nuclp = 0, nvclp = 0;   // inclusive clip limits

  bool open() const { return cvirt != nullptr; }
  bool inside(long x, long y) const { return x >= 0 && y >= 0 && x < nwwind && y < nhwind; }
  unsigned char* at(int x, int y) const {
    return cvirt.get() + std::size_t(y) * std::size_t(nbytes_v) + std::size_t(x) * (irgb_v ? 3u : 1u);
  }
};

RasterStore& raster_store();

// Memory of this folder's working blocks: null on failure, without a warning, since the
// callers report through their status; tests inject failures as for zb::alloc.
bool raster_alloc_allowed();
template <class T = unsigned char>
std::unique_ptr<T[]> raster_alloc(std::size_t n) {
  if (!raster_alloc_allowed()) return nullptr;
  return std::unique_ptr<T[]>(new (std::nothrow) T[n == 0 ? 1 : n]());
}

// True if the colour word is an explicit colour 0x01BBGGRR.
inline bool explicit_colour(int iclr) { return (unsigned(iclr) >> 24) == 1u; }

// The bytes one pixel of the store takes for a colour word: an index, or red, green, blue.
void store_colour(int iclr, unsigned char out[3]);

}  // namespace zb
