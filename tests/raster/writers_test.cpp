// The raster file writers: exact header bytes of PNG, GIF, TIFF, BMP and PPM, the PNG CRC
// and zlib stream decoded back, row padding, the clip rectangle, and real readers that
// decode every file to the pixels of the store.
#include <random>

#include "raster/raster_support.h"

using namespace zb;

namespace {

class Writers : public zbt::Fixture {
 protected:
  // Opens a raster session of w x h pixels on the output fmt with the test table.
  void open(const char* fmt, int w, int h, const char* mode = "INDE", const char* file = "pic") {
    metafl(fmt);
    imgfmt(mode);
    winsiz(w, h);
    setfil(file);
    zorini();
    const auto t = zbt::test_table();
    qqvvlt(8, t.data());
    std::copy(t.begin(), t.end(), zg.ivlt.begin());
  }
  // An asymmetric picture: index 2 everywhere, a column of 200 at x 0, a row of 100 at y 0.
  void draw_f() {
    int w, h, rgb;
    qqvinf(w, h, rgb);
    qqvfll(0, 0, w - 1, h - 1, 2);
    qqvfll(0, 0, 0, h - 1, 200);
    qqvfll(0, 0, w - 1, 0, 100);
  }
  std::string finish() {
    zorfin();
    return zbt::read_file(zg.cplotfl.str());
  }
};

TEST_F(Writers, PngChunksBytesAndCrc) {
  EXPECT_EQ(png_crc(reinterpret_cast<const unsigned char*>("IEND"), 4), 0xAE426082u);
  struct Case { const char* mode; bool tran; int ctype; std::vector<std::string> order; std::string trns; };
  const Case cases[] = {
      {"INDE", false, 3, {"IHDR", "PLTE", "IDAT", "IEND"}, ""},
      {"INDE", true, 3, {"IHDR", "PLTE", "tRNS", "IDAT", "IEND"}, std::string(1, '\0')},
      {"RGB", false, 2, {"IHDR", "IDAT", "IEND"}, ""},
      {"RGB", true, 2, {"IHDR", "tRNS", "IDAT", "IEND"}, std::string("\0\xFF\0\xFF\0\xFF", 6)},
  };
  for (const auto& c : cases) {
    pngmod(c.tran ? "ON" : "OFF", "TRAN");
    open("PNG", 5, 3, c.mode);
    draw_f();
    qqvwpx(4, 2, 0x01030201);
    const zbt::Image want = zbt::store_image();
    const std::string f = finish();
    ASSERT_GT(f.size(), 8u);
    EXPECT_EQ(f.substr(0, 8), std::string("\x89PNG\r\n\x1A\n", 8));
    const auto chunks = zbt::png_chunks(f);
    std::vector<std::string> order;
    for (const auto& ch : chunks) {
      order.push_back(ch.type);
      const std::string td = ch.type + ch.data;
      EXPECT_EQ(ch.crc, crc32(0, reinterpret_cast<const Bytef*>(td.data()), uInt(td.size()))) << ch.type;
    }
    EXPECT_EQ(order, c.order) << c.mode;
    EXPECT_EQ(chunks[0].data, std::string("\0\0\0\x05\0\0\0\x03\x08", 9) + char(c.ctype) + std::string(3, '\0'));
    for (const auto& ch : chunks) {
      if (ch.type == "PLTE") {
        ASSERT_EQ(ch.data.size(), 768u);
        EXPECT_EQ(ch.data.substr(3 * 200, 3), "\xC8\x37\x78");   // entry 200: 200, 55, 1400 mod 256
      }
      if (ch.type == "tRNS") EXPECT_EQ(ch.data, c.trns);
    }
    const zbt::Image got = zbt::decode_png(f);
    EXPECT_EQ(got.w, 5);
    EXPECT_EQ(got.rgb, want.rgb) << c.mode;
    const std::string out = "chk.png";
    std::FILE* p = std::fopen(out.c_str(), "wb");
    std::fwrite(f.data(), 1, f.size(), p);
    std::fclose(p);
    std::string log;
    EXPECT_EQ(zbt::run("pngcheck " + out, &log), 0) << log;
  }
}

TEST_F(Writers, PngIntoABuffer) {
  open("VIRT", 7, 4);
  draw_f();
  int n = -1;
  rbfpng(nullptr, 0, n);
  ASSERT_GT(n, 0);
  std::vector<char> buf(std::size_t(n) + 5, 'x');
  int m = -1;
  rbfpng(buf.data(), int(buf.size()), m);
  EXPECT_EQ(m, n);
  EXPECT_EQ(zg.iimgop, 0);   // the image opened for the call is closed again
  rpng("same.png");
  EXPECT_EQ(zbt::read_file("same.png"), std::string(buf.data(), std::size_t(n)));
  EXPECT_EQ(buf[std::size_t(n)], 'x');
  take_lines();
  rbfpng(buf.data(), n - 1, m);
  EXPECT_EQ(m, 0);
  EXPECT_EQ(take_lines().back(), " <<<< Warning 101: Buffer too small for PNG file in RBFPNG!");
  zorfin();
  EXPECT_FALSE(file_exists("pic"));   // VIRT writes no file
}

TEST_F(Writers, BmpHeaderAndRowPadding) {
  struct Case { const char* mode; int w; int rowbytes; };
  const Case cases[] = {{"RGB", 1, 4}, {"RGB", 2, 8}, {"RGB", 3, 12}, {"RGB", 5, 16},
                        {"INDE", 1, 4}, {"INDE", 3, 4}, {"INDE", 5, 8}};
  for (const auto& c : cases) {
    open("BMP", c.w, 3, c.mode);
    draw_f();
    const zbt::Image want = zbt::store_image();
    std::vector<unsigned char> store(qqvptr(), qqvptr() + raster_store().nbytes_v * 3);
    const std::string copy = "copy" + std::to_string(c.w) + c.mode + ".bmp";
    rbmp(copy);
    EXPECT_EQ(std::vector<unsigned char>(qqvptr(), qqvptr() + store.size()), store);   // unchanged
    const std::string f = finish();
    const bool rgb = c.mode[0] == 'R';
    const std::uint32_t np = rgb ? 0 : 256;
    ASSERT_EQ(f.size(), 54 + 4 * np + std::size_t(c.rowbytes) * 3) << c.w;
    EXPECT_EQ(f.substr(0, 2), "BM");
    const std::uint32_t want_fields[] = {std::uint32_t(f.size()), 0, 54 + 4 * np, 40, std::uint32_t(c.w), 3};
    const std::size_t at[] = {2, 6, 10, 14, 18, 22};
    for (int k = 0; k < 6; ++k) EXPECT_EQ(zbt::le32(f, at[k]), want_fields[k]) << c.w << " field " << at[k];
    EXPECT_EQ(zbt::le16(f, 26), 1u);
    EXPECT_EQ(zbt::le16(f, 28), rgb ? 24u : 8u);
    const std::uint32_t tail[] = {0, std::uint32_t(c.rowbytes * 3), 2500, 2500, np, np};
    for (int k = 0; k < 6; ++k) EXPECT_EQ(zbt::le32(f, 30 + 4 * std::size_t(k)), tail[k]);
    if (!rgb) EXPECT_EQ(f.substr(54 + 4 * 200, 4), std::string("\x78\x37\xC8\0", 4));   // blue, green, red, 0
    // The first row in the file is the bottom row; its padding is zero.
    const std::size_t data = 54 + 4 * np;
    const int used = c.w * (rgb ? 3 : 1);
    for (int k = used; k < c.rowbytes; ++k) EXPECT_EQ(f[data + std::size_t(k)], 0);
    if (rgb) EXPECT_EQ(f.substr(data, 3), "\x78\x37\xC8");   // bottom left: 200 as blue, green, red
    EXPECT_EQ(zbt::decode_with("bmptopnm", zg.cplotfl.str()).rgb, want.rgb) << c.mode << " " << c.w;
    EXPECT_EQ(zbt::read_file(copy), f);
  }
}

TEST_F(Writers, GifHeadAndSmallestLzw) {
  for (bool tran : {false, true}) {
    gifmod(tran ? "ON" : "OFF", "TRAN");
    open("GIF", 1, 1);
    const std::string f = finish();
    const std::string head = std::string(tran ? "GIF89a" : "GIF87a") + std::string("\x01\0\x01\0\xF7\0\0", 7);
    EXPECT_EQ(f.substr(0, 13), head);
    ASSERT_EQ(f.size(), 13 + 768 + (tran ? 8 : 0) + 10 + 8u);
    EXPECT_EQ(f.substr(13 + 3 * 200, 3), "\xC8\x37\x78");
    std::size_t p = 13 + 768;
    if (tran) {
      EXPECT_EQ(f.substr(p, 8), std::string("\x21\xF9\x04\x01\0\0\0\0", 8));
      p += 8;
    }
    EXPECT_EQ(f.substr(p, 10), std::string("\x2C\0\0\0\0\x01\0\x01\0\0", 10));
    // Clear, the pixel 0, end: three 9-bit codes in four bytes, then the terminator.
    EXPECT_EQ(f.substr(p + 10), std::string("\x08\x04\x00\x01\x04\x04\x00\x3B", 8));
  }
  gifmod("OFF", "TRAN");
}

// Noise fills the LZW table many times over; every reader gets the pixels back.
TEST_F(Writers, RealReadersDecodeThePixels) {
  struct Case { const char* fmt; const char* mode; const char* tool; };
  const Case cases[] = {
      {"GIF", "INDE", "giftopnm"}, {"GIF", "RGB", "giftopnm"},   {"TIFF", "INDE", "tifftopnm"},
      {"TIFF", "RGB", "tifftopnm"}, {"BMP", "INDE", "bmptopnm"}, {"BMP", "RGB", "bmptopnm"},
      {"PNG", "INDE", "pngtopnm"}, {"PNG", "RGB", "pngtopnm"},   {"PPM", "INDE", "cat"},
  };
  for (const auto& c : cases) {
    open(c.fmt, 203, 157, c.mode);
    std::mt19937 rng(11);
    // 255 table colours and one more: the quantiser of RGB pictures keeps all 256.
    std::uniform_int_distribution<int> colour(0, 254);
    for (int y = 0; y < 157; ++y)
      for (int x = 0; x < 203; ++x) qqvwpx(x, y, (y < 60 || x > 150) ? colour(rng) : 7);
    qqvfll(10, 70, 140, 150, 0x01204080);
    const zbt::Image want = zbt::store_image();
    zorfin();
    const zbt::Image got = zbt::decode_with(c.tool, zg.cplotfl.str());
    EXPECT_EQ(got.w, 203) << c.fmt << " " << c.mode;
    EXPECT_EQ(got.h, 157) << c.fmt << " " << c.mode;
    EXPECT_TRUE(got.rgb == want.rgb) << c.fmt << " " << c.mode;
  }
}

TEST_F(Writers, TiffDirectoryAndLayout) {
  tifmod(300, "CM", "RESO");
  struct Case { const char* mode; int w, h; unsigned e, photometric, rowbytes, tables; };
  const Case cases[] = {{"INDE", 3, 4, 14, 3, 3, 1536}, {"RGB", 3, 4, 13, 2, 9, 6}, {"BILE", 9, 4, 13, 1, 2, 0}};
  for (const auto& c : cases) {
    open("TIFF", c.w, c.h, c.mode);
    draw_f();
    const zbt::Image want = zbt::store_image();
    const std::string f = finish();
    EXPECT_EQ(f.substr(0, 8), std::string("II*\0\x08\0\0\0", 8));
    ASSERT_EQ(zbt::le16(f, 8), c.e);
    const unsigned t = 14 + 12 * c.e, h = unsigned(c.h);
    const unsigned pixels = t + 6 * h + 16 + c.tables;
    ASSERT_EQ(f.size(), pixels + c.rowbytes * h) << c.mode;
    struct Entry { unsigned tag, type, count, value; };
    const bool rgb = c.mode[0] == 'R', pal = c.mode[0] == 'I';
    std::vector<Entry> dir = {
        {254, 4, 1, 0}, {256, 3, 1, unsigned(c.w)}, {257, 3, 1, h},
        {258, 3, rgb ? 3u : 1u, rgb ? t + 6 * h + 16 : pal ? 8u : 1u}, {259, 3, 1, 1},
        {262, 3, 1, c.photometric}, {273, 4, h, t}, {277, 3, 1, rgb ? 3u : 1u}, {278, 3, 1, 1},
        {279, 3, h, t + 4 * h}, {282, 5, 1, t + 6 * h}, {283, 5, 1, t + 6 * h + 8}, {296, 3, 1, 3}};
    if (pal) dir.push_back({320, 3, 768, t + 6 * h + 16});
    for (std::size_t i = 0; i < dir.size(); ++i) {
      const std::size_t at = 10 + 12 * i;
      EXPECT_EQ(zbt::le16(f, at), dir[i].tag) << c.mode << " entry " << i;
      EXPECT_EQ(zbt::le16(f, at + 2), dir[i].type) << dir[i].tag;
      EXPECT_EQ(zbt::le32(f, at + 4), dir[i].count) << dir[i].tag;
      EXPECT_EQ(zbt::le32(f, at + 8), dir[i].value) << dir[i].tag;
    }
    EXPECT_EQ(zbt::le32(f, 10 + 12 * c.e), 0u);
    for (unsigned y = 0; y < h; ++y) {
      EXPECT_EQ(zbt::le32(f, t + 4 * y), pixels + y * c.rowbytes);
      EXPECT_EQ(zbt::le16(f, t + 4 * h + 2 * y), c.rowbytes);
    }
    EXPECT_EQ(zbt::le32(f, t + 6 * h), 300u);
    EXPECT_EQ(zbt::le32(f, t + 6 * h + 4), 1u);
    if (pal) {
      EXPECT_EQ(zbt::le16(f, t + 6 * h + 16 + 2 * 200), 200u * 257);           // red of 200
      EXPECT_EQ(zbt::le16(f, t + 6 * h + 16 + 512 + 2 * 255), 65535u);        // green of 255
    }
    if (rgb) EXPECT_EQ(f.substr(t + 6 * h + 16, 6), std::string("\x08\0\x08\0\x08\0", 6));
    if (c.mode[0] == 'B') {
      // Black background: a pixel's bit is 1 unless it is black; 9 pixels take 2 bytes.
      EXPECT_EQ(f.substr(pixels, 4), std::string("\xFF\x80\xFF\x80", 4));
    } else {
      EXPECT_EQ(zbt::decode_with("tifftopnm", zg.cplotfl.str()).rgb, want.rgb) << c.mode;
    }
    std::string log;
    EXPECT_EQ(zbt::run("tiffinfo -D " + zg.cplotfl.str(), &log), 0) << log;
    EXPECT_EQ(log.find("rror"), std::string::npos) << log;
  }
  // One row: the strip's offset and count stand in the entries themselves.
  open("TIFF", 4, 1, "RGB");
  draw_f();
  const zbt::Image want = zbt::store_image();
  zorfin();
  EXPECT_EQ(zbt::decode_with("tifftopnm", zg.cplotfl.str()).rgb, want.rgb);
}

TEST_F(Writers, PpmFromBothStores) {
  for (const char* mode : {"INDE", "RGB"}) {
    open("PPM", 3, 2, mode);
    EXPECT_EQ(raster_store().irgb_v, 1);   // PPM always draws in RGB
    EXPECT_EQ(zg.ndepth, 24);
    draw_f();
    const std::string f = finish();
    EXPECT_EQ(f.substr(0, 11), "P6\n3 2\n255\n");
    ASSERT_EQ(f.size(), 11u + 18);
    EXPECT_EQ(f.substr(11, 9), "\x64\x9B\xBC\x64\x9B\xBC\x64\x9B\xBC");   // top row: 100
    EXPECT_EQ(f.substr(20, 9), "\xC8\x37\x78\x02\xFD\x0E\x02\xFD\x0E");   // 200, 2, 2
  }
}

TEST_F(Writers, ClipRectangleOfEveryWriter) {
  open("VIRT", 9, 7);
  draw_f();
  imgclp(0, 0, 4, 2);
  struct Case { void (*dump)(std::string_view); const char* name; };
  const Case cases[] = {{rpng, "c.png"}, {rgif, "c.gif"}, {rtiff, "c.tif"}, {rbmp, "c.bmp"}, {rppm, "c.ppm"}};
  for (const auto& c : cases) c.dump(c.name);
  EXPECT_EQ(zbt::be32(zbt::read_file("c.png"), 16), 4u);
  EXPECT_EQ(zbt::le16(zbt::read_file("c.gif"), 6), 4u);
  EXPECT_EQ(zbt::le32(zbt::read_file("c.bmp"), 18), 4u);
  EXPECT_EQ(zbt::read_file("c.ppm").substr(0, 7), "P6\n4 2\n");
  const zbt::Image tif = zbt::decode_with("tifftopnm", "c.tif");
  EXPECT_EQ(tif.w * 10 + tif.h, 42);
  EXPECT_EQ(tif.at(0, 1)[0], 200);
  EXPECT_EQ(tif.at(1, 1)[0], 2);
  EXPECT_EQ(zg.iimgcl, 1);   // stays for the next write
  reset("IMGCLP");
  EXPECT_EQ(zg.iimgcl, 0);
  rgif("d.gif");
  EXPECT_EQ(zbt::le16(zbt::read_file("d.gif"), 6), 9u);
  zorfin();
}

TEST_F(Writers, FailuresGiveWarnings) {
  open("VIRT", 5, 5);
  take_lines();
  Zorglb before = zg;
  rpng("/no/such/dir/x.png");
  rgif("/no/such/dir/x.gif");
  detail::alloc_fail_after = 0;
  rpng("t.png");
  rbmp("t.bmp");
  rppm("t.ppm");
  detail::alloc_fail_after = -1;
  imgfmt("RGB");   // level 0 only
  pngmod("ON", "TRANS");
  EXPECT_EQ(take_lines(), (std::vector<std::string>{
                              " <<<< Warning  36: File error in RPNG!",
                              " <<<< Warning  36: File error in RGIF!",
                              " <<<< Warning  53: Not enough memory in RPNG!",
                              " <<<< Warning  53: Not enough memory in RBMP!",
                              " <<<< Warning  53: Not enough memory in RPPM!",
                              " <<<< Warning   3: Incorrect level in IMGFMT!   (   1)",
                              " <<<< Warning   3: Incorrect level in PNGMOD!   (   1)"}));
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  zorfin();
  // Level-0 options: unknown keys and units keep the fields.
  take_lines();
  before = zg;
  pngmod("ON", "TRAX");
  gifmod("MAYBE", "TRAN");
  tifmod(0, "INCH", "RESO");
  tifmod(100, "MM", "RESO");
  tifmod(100, "INCH", "RES");
  EXPECT_EQ(take_lines().size(), 5u);
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  // The dumps need a raster or a screen.
  metafl("POST");
  zorini();
  take_lines();
  before = zg;
  rpng("x.png");
  int n = 5;
  rbfpng(nullptr, 0, n);
  EXPECT_EQ(n, 0);
  EXPECT_EQ(take_lines(), (std::vector<std::string>{
                              " <<<< Warning  40: Fileformat and output device are incompatible in RPNG!",
                              " <<<< Warning  40: Fileformat and output device are incompatible in RBFPNG!"}));
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  EXPECT_FALSE(file_exists("x.png"));
  zorfin();
}

}  // namespace
