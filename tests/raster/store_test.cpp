// The raster store: creation, lines with both end points, boxes with inclusive limits,
// triangles, nearest colours, pixel and row access, and the Bitmap file.
#include <random>

#include "raster/raster_support.h"

using namespace zb;

namespace {

class Store : public zbt::Fixture {
 protected:
  void TearDown() override {
    qqvfin();
    zbt::Fixture::TearDown();
  }
  // A store of w x h pixels, indexed, drawing in index 1.
  void grid(int w, int h) {
    zbt::open_store(w, h, 0);
    qqvclr(1);
  }
};

using Rows = std::vector<std::string>;

TEST_F(Store, Creation) {
  int w = 0, h = 0, ierr = -1;
  qqvini(2969, 2099, w, h, 0, 0, 0, ierr);
  EXPECT_EQ(ierr, 0);
  EXPECT_EQ(w, 853);
  EXPECT_EQ(h, 603);
  int nw, nh, rgb;
  qqvinf(nw, nh, rgb);
  EXPECT_EQ(raster_store().nbytes_v, 853);   // no padding
  qqvini(2099, 2969, w, h, 0, 0, 1, ierr);
  EXPECT_EQ(w * 100 + h, 603 * 100 + 853);
  EXPECT_EQ(raster_store().nbytes_v, 3 * 603);
  EXPECT_EQ(raster_store().nuclp, 602);
  EXPECT_EQ(raster_store().nvclp, 852);
  // Background: 255 only for an RGB store with irev 2; BILE is an indexed store.
  struct Case { int irev, irgb; int nbytes; unsigned char fill; };
  const Case cases[] = {{2, 1, 9, 255}, {0, 1, 9, 0}, {2, 0, 3, 0}, {2, 2, 3, 0}, {3, 1, 9, 0}};
  for (const auto& c : cases) {
    w = 3, h = 2;
    qqvini(0, 0, w, h, 1, c.irev, c.irgb, ierr);
    ASSERT_EQ(ierr, 0);
    EXPECT_EQ(raster_store().nbytes_v, c.nbytes);
    for (int i = 0; i < c.nbytes * 2; ++i) EXPECT_EQ(qqvptr()[i], c.fill) << c.irev << " " << c.irgb;
  }
}

TEST_F(Store, CreationRefusesBadSizesAndFailedMemory) {
  struct Case { int w, h, irgb; };
  const Case cases[] = {{0, 10, 0}, {10, 0, 1}, {-5, 10, 0}, {100000, 10, 0}, {30000, 30000, 1}};
  for (const auto& c : cases) {
    int w = c.w, h = c.h, ierr = 0;
    qqvini(0, 0, w, h, 1, 0, c.irgb, ierr);
    EXPECT_EQ(ierr, 1) << c.w << " x " << c.h;
    EXPECT_EQ(qqvptr(), nullptr);
  }
  int w = 10, h = 10, ierr = 0;
  detail::alloc_fail_after = 0;
  qqvini(0, 0, w, h, 1, 0, 0, ierr);
  detail::alloc_fail_after = -1;
  EXPECT_EQ(ierr, 1);
  EXPECT_EQ(qqvptr(), nullptr);
  // Drawing without a store is a no-op.
  qqvlin(0, 0, 5, 5);
  qqvfll(0, 0, 5, 5, 1);
  const int x[3] = {0, 5, 2}, y[3] = {0, 1, 5};
  qqvftr(x, y, 1);
  int v = 7;
  qqvrpx(0, 0, v, 0);
  EXPECT_EQ(v, 0);
}

TEST_F(Store, LinesSetExactPixelsWithBothEnds) {
  struct Case { int x1, y1, x2, y2; Rows rows; };
  const Case cases[] = {
      {0, 0, 4, 2, {"##.....", "..##...", "....#..", ".......", "......."}},   // e starts at -2
      // Back from (4,2) e also starts at -2: the pixels differ from the forward walk.
      {4, 2, 0, 0, {"#......", ".##....", "...##..", ".......", "......."}},
      {0, 0, 2, 4, {"#......", "#......", ".#.....", ".#.....", "..#...."}},
      {3, 3, 3, 3, {".......", ".......", ".......", "...#...", "......."}},
      {6, 4, 6, 1, {".......", "......#", "......#", "......#", "......#"}},
      {5, 0, 1, 0, {".#####.", ".......", ".......", ".......", "......."}},
      {0, 4, 6, 0, {"......#", "....##.", "...#...", ".##....", "#......"}},
  };
  for (const auto& c : cases) {
    grid(7, 5);
    qqvlin(c.x1, c.y1, c.x2, c.y2);
    EXPECT_EQ(zbt::store_rows(), c.rows) << c.x1 << "," << c.y1 << " " << c.x2 << "," << c.y2;
  }
}

// A line leaving the store sets exactly those pixels of its whole walk that lie inside:
// the same line drawn inside a large store, seen through the window of the small one.
TEST_F(Store, ClippedLinesFollowTheFullWalk) {
  std::mt19937 rng(7);
  std::uniform_int_distribution<int> coord(-40, 60);
  const int w = 20, h = 15, off = 50;
  for (int n = 0; n < 400; ++n) {
    const int x1 = coord(rng), y1 = coord(rng), x2 = coord(rng), y2 = coord(rng);
    grid(150, 150);
    qqvlin(x1 + off, y1 + off, x2 + off, y2 + off);
    Rows want;
    for (const auto& r : zbt::store_rows())
      if (want.size() < std::size_t(h + off)) want.push_back(r.substr(off, w));
    want.erase(want.begin(), want.begin() + off);
    grid(w, h);
    qqvlin(x1, y1, x2, y2);
    ASSERT_EQ(zbt::store_rows(), want) << x1 << "," << y1 << " " << x2 << "," << y2;
  }
  // Far ends: the walk starts where it enters the store; one pixel per column.
  grid(w, h);
  qqvlin(-2000000000, 5, 2000000000, 9);
  int set = 0;
  for (const auto& r : zbt::store_rows()) set += int(std::count(r.begin(), r.end(), '#'));
  EXPECT_EQ(set, w);
  EXPECT_EQ(zbt::store_rows()[7], std::string(std::size_t(w), '#'));
}

TEST_F(Store, BoxLimitsAreInclusiveAndClipped) {
  struct Case { int x1, y1, x2, y2; Rows rows; };
  const Case cases[] = {
      {1, 1, 3, 2, {"......", ".###..", ".###..", "......"}},
      {2, 0, 2, 0, {"..#...", "......", "......", "......"}},
      {-5, 2, 99, 99, {"......", "......", "######", "######"}},
      {3, 1, 1, 2, {"......", "......", "......", "......"}},   // reversed: nothing
      {-9, -9, -1, 3, {"......", "......", "......", "......"}},
  };
  for (const auto& c : cases) {
    grid(6, 4);
    qqvfll(c.x1, c.y1, c.x2, c.y2, 9);
    EXPECT_EQ(zbt::store_rows(), c.rows) << c.x1 << "," << c.y1 << " " << c.x2 << "," << c.y2;
    EXPECT_EQ(raster_store().nclr_v, 1);   // the box's colour is its own
  }
  // Colour words: an index modulo 256, an explicit colour as its nearest index; on an RGB
  // store an explicit colour as it is and an index through the table.
  grid(2, 1);
  qqvfll(0, 0, 0, 0, 257);
  qqvfll(1, 0, 1, 0, 0x01FFFFFF);
  EXPECT_EQ(qqvptr()[0], 1);
  EXPECT_EQ(qqvptr()[1], 255);
  zbt::open_store(2, 1, 1);
  qqvfll(0, 0, 0, 0, 0x01332211);
  qqvfll(1, 0, 1, 0, 2);
  const unsigned char want[6] = {0x11, 0x22, 0x33, 2, 253, 14};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(qqvptr()[i], want[i]) << i;
}

TEST_F(Store, TriangleOrderTable) {
  struct Case { int a, b, c, lo, mid, hi; };
  const Case cases[] = {
      {5, 3, 7, 1, 0, 2}, {5, 3, 5, 1, 0, 2}, {5, 3, 4, 1, 2, 0}, {5, 3, 3, 2, 1, 0},
      {3, 3, 3, 2, 1, 0}, {3, 5, 7, 0, 1, 2}, {3, 5, 5, 0, 1, 2}, {3, 5, 4, 0, 2, 1},
      {3, 5, 3, 2, 0, 1}, {3, 5, 1, 2, 0, 1},
  };
  for (const auto& c : cases) {
    int lo, mid, hi;
    qqtri1(c.a, c.b, c.c, lo, mid, hi);
    EXPECT_EQ(lo * 100 + mid * 10 + hi, c.lo * 100 + c.mid * 10 + c.hi) << c.a << " " << c.b << " " << c.c;
  }
}

TEST_F(Store, TrianglesFillSpansAndOutline) {
  struct Case { std::array<int, 3> x, y; Rows rows; };
  const Case cases[] = {
      {{0, 4, 0}, {0, 4, 4}, {"#.....", "##....", "###...", "####..", "#####.", "......"}},
      {{1, 5, 3}, {2, 2, 2}, {"......", "......", ".#####", "......", "......", "......"}},
      // Flat top: rows yb .. yc from the two upper points.
      {{0, 5, 2}, {1, 1, 5}, {"......", "######", "#####.", ".####.", ".###..", "..#..."}},
  };
  for (const auto& c : cases) {
    grid(6, 6);
    qqvftr(c.x.data(), c.y.data(), 3);
    EXPECT_EQ(zbt::store_rows(), c.rows);
    EXPECT_EQ(raster_store().nclr_v, 3);   // the triangle sets the current colour
  }
  // Partly outside: the window of the same triangle drawn whole in a larger store.
  const int x[3] = {-4, 12, 4}, y[3] = {-4, 4, 12};
  const int xo[3] = {6, 22, 14}, yo[3] = {6, 14, 22};
  grid(40, 40);
  qqvftr(xo, yo, 1);
  Rows want;
  for (int r = 10; r < 18; ++r) want.push_back(zbt::store_rows()[std::size_t(r)].substr(10, 8));
  grid(8, 8);
  qqvftr(x, y, 1);
  EXPECT_EQ(zbt::store_rows(), want);
  // Far away points neither crash nor take long.
  const int fx[3] = {-2000000000, 2000000000, 3}, fy[3] = {-2000000000, 5, 2000000000};
  qqvftr(fx, fy, 1);
}

TEST_F(Store, NearestColour) {
  auto table = zbt::test_table();
  zbt::open_store(1, 1, 0);
  EXPECT_EQ(qqgind(0, 0, 0), 0);
  EXPECT_EQ(qqgind(255, 255, 255), 255);
  EXPECT_EQ(qqgind(10, 245, 70), 10);
  // White at entry 0 and black at the last entry.
  std::swap(table[0], table[255]);
  qqvvlt(8, table.data());
  EXPECT_EQ(qqgind(0, 0, 0), 255);
  EXPECT_EQ(qqgind(255, 255, 255), 0);
  // Ties: lowest index with blue, highest without.
  std::array<int, 256> t{};
  t.fill(0x808080);
  t[3] = 0x100000;
  t[7] = 0x000010;
  qqvvlt(8, t.data());
  EXPECT_EQ(qqgind(8, 0, 8), 3);   // distance 16 to both
  t[3] = 0x100000;
  t[7] = 0x001000;
  qqvvlt(8, t.data());
  EXPECT_EQ(qqgind(8, 8, 0), 7);
  // A table of 9 entries ends at 8: black there is found for black.
  std::array<int, 256> small{};
  small.fill(0x123456);
  small[0] = 0xFFFFFF;
  small[8] = 0;
  qqvvlt(0, small.data());
  EXPECT_EQ(qqgind(0, 0, 0), 8);
  EXPECT_EQ(raster_store().nclrtb, 0);
}

TEST_F(Store, PixelsRowsAndRectangles) {
  const auto t = zbt::test_table();
  for (int irgb : {0, 1}) {
    zbt::open_store(4, 3, irgb);
    qqvwpx(1, 1, 20);
    qqvwpx(-1, 1, 20);   // outside: ignored
    qqvwpx(4, 0, 20);
    int v = -1;
    qqvrpx(1, 1, v, 0);
    EXPECT_EQ(v, 20) << irgb;
    qqvrpx(1, 1, v, 1);
    EXPECT_EQ(v, 0x01000000 | ((7 * 20) << 16) | (235 << 8) | 20) << irgb;
    for (int f : {0, 1}) {
      qqvrpx(-1, 0, v, f);
      EXPECT_EQ(v, 0);
      qqvrpx(0, 3, v, f);
      EXPECT_EQ(v, 0);
    }
    // Rows in both forms, clipped at the right edge.
    const unsigned char idx[3] = {5, 6, 7};
    qqvrow(idx, 2, 0, 3, 0);
    const unsigned char rgb[6] = {8, 247, 56, 9, 246, 63};
    qqvrow(rgb, 0, 2, 2, 1);
    unsigned char back[12];
    qqvrdr(back, 1, 0, 3, 1, 0);
    EXPECT_EQ(back[0] * 10000 + back[1] * 100 + back[2], 0 * 10000 + 5 * 100 + 6) << irgb;
    qqvrdr(back, 0, 2, 2, 1, 1);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(back[i], rgb[i]) << irgb << " " << i;
    // A rectangle packs rows without gaps; outside pixels read as 0.
    qqvrdr(back, 3, 0, 2, 2, 0);
    EXPECT_EQ(back[0], 6);
    EXPECT_EQ(back[1], 0);
    EXPECT_EQ(back[2], 0);
    EXPECT_EQ(back[3], 0);
  }
  (void)t;
}

TEST_F(Store, ColourOfTheStore) {
  zbt::open_store(1, 1, 0);
  qqvclr(0x01FFFFFF);
  EXPECT_EQ(raster_store().nclr_v, 255);
  qqvclr(-1);   // an index, modulo 256
  EXPECT_EQ(raster_store().nclr_v, 255);
  qqvclr(300);
  EXPECT_EQ(raster_store().nclr_v, 44);
  EXPECT_EQ(raster_store().ir_v, 44);
  zbt::open_store(1, 1, 1);
  qqvclr(0x01030201);
  EXPECT_EQ(raster_store().ir_v * 10000 + raster_store().ig_v * 100 + raster_store().ib_v, 10203);
}

TEST_F(Store, BitmapFileHeadAndRoundTrip) {
  zbt::open_store(5, 3, 1);
  qqvfll(0, 0, 4, 2, 0x01030201);
  qqvwpx(4, 2, 0x01FFFFFF);
  int ierr = -1;
  qqvfil("pic.img", 0, ierr);
  ASSERT_EQ(ierr, 0);
  const std::string f = zbt::read_file("pic.img");
  ASSERT_EQ(f.size(), 80u + 15 * 3);
  EXPECT_EQ(f.substr(0, 80), "!Bitmap ZORBEL VIRT     5     3     8    15    24    32     0     1     0       ");
  // Into an indexed store: each triple becomes its nearest index.
  zbt::open_store(5, 3, 0);
  qqvfil("pic.img", 1, ierr);
  EXPECT_EQ(ierr, 0);
  EXPECT_EQ(qqvptr()[14], 255);
  EXPECT_EQ(qqvptr()[0], qqgind(1, 2, 3));
  qqvfil("missing.img", 1, ierr);
  EXPECT_EQ(ierr, 1);
  qqvfil("/no/such/dir/x.img", 0, ierr);
  EXPECT_EQ(ierr, 1);
}

TEST_F(Store, BitmapFileReadsForeignLayouts) {
  auto write = [](const std::string& name, const std::string& head, const std::string& data) {
    std::string h = head;
    h.resize(80, ' ');
    std::FILE* f = std::fopen(name.c_str(), "wb");
    std::fwrite(h.data(), 1, 80, f);
    std::fwrite(data.data(), 1, data.size(), f);
    std::fclose(f);
  };
  // 8 bits with field 8 = 0 and base 16: 16 -> 0, 17 -> 1, 18 -> 3.
  write("shift.img", "!Bitmap ZORBEL XWIN     3     1     8     3     8    32     0     0    16",
        std::string("\x10\x11\x12", 3));
  zbt::open_store(3, 1, 0);
  int ierr = -1;
  qqvfil("shift.img", 1, ierr);
  EXPECT_EQ(ierr, 0);
  EXPECT_EQ(qqvptr()[0] * 10000 + qqvptr()[1] * 100 + qqvptr()[2], 0 * 10000 + 1 * 100 + 3);
  // 32 bits: blue, green, red, unused; into a smaller indexed store through qqgind.
  write("deep.img", "!Bitmap ZORBEL XWIN     3     2     8    12    32    32     0     1     0",
        std::string("\x00\x00\x00\x00\xFF\xFF\xFF\x00\x38\xF7\x08\x09", 12) + std::string(12, '\xFF'));
  zbt::open_store(2, 1, 0);
  qqvfil("deep.img", 1, ierr);
  EXPECT_EQ(ierr, 0);
  EXPECT_EQ(qqvptr()[0], 0);
  EXPECT_EQ(qqvptr()[1], 255);
  // Bad heads and depths.
  write("bad.img", "!Bitmoo", "");
  qqvfil("bad.img", 1, ierr);
  EXPECT_EQ(ierr, 3);
  write("bad.img", "!Bitmap ZORBEL VIRT     3     1     8     3    16    32     0     1     0", "abc");
  qqvfil("bad.img", 1, ierr);
  EXPECT_EQ(ierr, 3);
  write("bad.img", "!Bitmap ZORBEL VIRT 99999 99999     8 999999999 8", "abc");
  qqvfil("bad.img", 1, ierr);
  EXPECT_EQ(ierr, 3);
}

}  // namespace
