// CGM driver: a binary Computer Graphics Metafile (ISO 8632-3) of one picture per page,
// holding polylines, line colours and the background. Every byte goes through the output
// record, which the device layer writes as 80-byte records.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "draw/device.h"
#include "formats/drivers.h"
#include "frame/frame.h"

namespace zb {

namespace {

constexpr int kMaxPoints = 50;
int npt = 0;
std::array<int, kMaxPoints> ipx{}, ipy{};
int ixk = 0, iyk = 0;   // kept point: where a later draw goes on

void put_u8(int v) {
  const char c = char(v & 0xFF);
  qqsbuf(&c, 1);
}

// 16-bit values are big-endian in the file on every host.
void put_u16(int v) {
  const char b[2] = {char((v >> 8) & 0xFF), char(v & 0xFF)};
  qqsbuf(b, 2);
}

void put_bytes(std::initializer_list<int> bytes) {
  for (int b : bytes) put_u8(b);
}

// A device coordinate as a VDC value: rounded, and held to the 16 bits of the file.
int vdc(float v) {
  const float r = v + 0.5f;
  if (std::isnan(r)) return 0;
  return int(std::clamp(r, -32768.0f, 32767.0f));
}

void write_polyline() {
  put_bytes({0x40, 0x3F});   // POLYLINE, long form
  put_u16(4 * npt);
  for (int i = 0; i < npt; ++i) {
    put_u16(ipx[std::size_t(i)]);
    put_u16(ipy[std::size_t(i)]);
  }
}

// Size of the picture in device units: width, height.
void extent(float& w, float& h) {
  const float s = zg.devscl;
  if (zg.ipgmod == 1) {
    w = float(zg.nypag) * s;
    h = float(zg.nxpag) * s;
  } else {
    w = float(zg.nxpag) * s;
    h = float(zg.nypag) * s;
  }
}

// The metafile description: profile, source and version, date as yyyymmdd, colour class.
std::string description() {
  std::string date, time;
  clock_strings(date, time);   // dd.mm.yyyy
  std::string d = zg.icgmver == 1 ? "\"ProfileId:CALS\"" : "\"ProfileId:WebCGM\"";
  d += ",\"ProfileEd:1.0\",\"Source:ZORBEL";
  d += fmt_f(kVersion, 4, 1);
  d += "\",\"Date:";
  d += date.substr(6, 4) + date.substr(3, 2) + date.substr(0, 2);
  d += "\",\"ColourClass:colour\"";
  return d;
}

void picture_head() {
  if (zg.icgmpc == 0) zg.ccgmnam = "Picture " + itoa(zg.ncgmpic);
  put_bytes({0x00, 0x7F});   // BEGIN PICTURE, long form
  qqcgm1(zg.ccgmnam.view());
  if (zg.icgmver != 1) {
    // SCALING MODE: metric, 0.05 mm per unit as the float of bits 3D4CCCC8.
    put_bytes({0x20, 0x26, 0x00, 0x01, 0x3D, 0x4C, 0xCC, 0xC8});
  }
  put_bytes({0x20, 0x42, 0x00, 0x01});   // COLOUR SELECTION MODE: direct
  float w, h;
  extent(w, h);
  put_bytes({0x20, 0xC8});               // VDC EXTENT
  put_u16(0);
  put_u16(0);
  put_u16(vdc(w));
  put_u16(vdc(h));
  if (zg.icgmbg == 0) zg.icgmr = zg.icgmg = zg.icgmb = 255;
  put_bytes({0x20, 0xE4, zg.icgmr, zg.icgmg, zg.icgmb, 0x00});   // BACKGROUND COLOUR, pad
  put_bytes({0x00, 0x80});               // BEGIN PICTURE BODY
}

}  // namespace

void inicgm(int imode) {
  if (imode == 1) {
    npt = 0;
    ixk = iyk = 0;
    float w, h;
    extent(w, h);
    // The file holds 16-bit coordinates: a larger page is cut at the edge of that range.
    if (w + 0.5f > 32767.0f || h + 0.5f > 32767.0f) warnin(39);
    put_bytes({0x00, 0x3F});   // BEGIN METAFILE, long form
    qqcgm1(zg.cplotfl.view());
    put_bytes({0x10, 0x22});   // METAFILE VERSION
    put_u16(zg.icgmver);
    put_bytes({0x10, 0x5F});   // METAFILE DESCRIPTION, long form
    qqcgm1(description());
    put_bytes({0x11, 0x66, 0x00, 0x01, 0xFF, 0xFF, 0x00, 0x01});   // ELEMENT LIST: -1, 1
    zg.ncgmpic = 1;
  } else if (imode == 2) {
    drwcgm(0.0f, 0.0f, 999);   // the page's last polyline ends in its own picture
    put_bytes({0x00, 0xA0});   // END PICTURE
    ++zg.ncgmpic;
  } else {
    return;
  }
  picture_head();
}

// A string parameter: the long-form length word, the count byte and the characters, and a
// zero byte that keeps the element even. From 255 characters on the count is 255 and a
// 16-bit count follows, as the standard's long strings have it.
void qqcgm1(std::string_view cstr) {
  std::size_t n = cstr.size();
  while (n > 0 && cstr[n - 1] == ' ') --n;
  n = std::min<std::size_t>(n, 32000);
  const int len = int(n);
  if (len < 255) {
    put_u16(len + 1);
    put_u8(len);
  } else {
    put_u16(len + 3);
    put_u8(255);
    put_u16(len);
  }
  qqsbuf(cstr.data(), len);
  if (len % 2 == 0) put_u8(0);
}

void drwcgm(float x, float y, int icode) {
  if (icode == 2) {
    if (npt == 0) {
      ipx[0] = ixk;
      ipy[0] = iyk;
      npt = 1;
    }
    ipx[std::size_t(npt)] = vdc(x);
    ipy[std::size_t(npt)] = vdc(y);
    ++npt;
    if (npt < kMaxPoints) return;
  }
  if (npt > 0) write_polyline();
  if (icode == 999) {
    if (npt > 0) {
      ixk = ipx[std::size_t(npt - 1)];
      iyk = ipy[std::size_t(npt - 1)];
    }
    npt = 0;
    return;
  }
  // A move starts the next list; a full list goes on from its last point, the one given.
  npt = 1;
  ipx[0] = vdc(x);
  ipy[0] = vdc(y);
}

void cgmbgd(float xr, float xg, float xb) {
  if (jqqlev(0, 3, "CGMBGD")) return;
  const float lo = -zg.eps, hi = 1.0f + zg.eps;
  for (float v : {xr, xg, xb}) {
    if (!(v >= lo && v <= hi)) {
      warnin(2);
      return;
    }
  }
  zg.icgmr = int(xr * 255.0f + 0.5f);
  zg.icgmg = int(xg * 255.0f + 0.5f);
  zg.icgmb = int(xb * 255.0f + 0.5f);
  zg.icgmbg = 1;
}

void cgmpic(std::string_view cstr) {
  if (jqqlev(0, 3, "CGMPIC")) return;
  zg.ccgmnam = cstr;
  zg.icgmpc = 1;
}

void cgmver(int nver) {
  if (jqqlev(0, 0, "CGMVER")) return;
  if (nver != 1 && nver != 4) {
    warni1(2, nver);
    return;
  }
  zg.icgmver = nver;
}

// Reading a CGM file back, word by word from its 80-byte records.
namespace {
std::array<unsigned char, 80> rec_in{};
int rec_len = 0, rec_pos = 0;

int next_byte(int ilun) {
  if (rec_pos >= rec_len) {
    std::FILE* f = lun_file(ilun);
    rec_len = f == nullptr ? 0 : int(std::fread(rec_in.data(), 1, rec_in.size(), f));
    rec_pos = 0;
    if (rec_len <= 0) {
      lun_write(6, "<<<< The CGM file is not complete!");
      std::fflush(nullptr);
      std::exit(1);
    }
  }
  return rec_in[std::size_t(rec_pos++)];
}
}  // namespace

void gbyte2(int ilun, std::int16_t& iword, int& ifirst) {
  if (ifirst == 1) {
    if (std::FILE* f = lun_file(ilun)) std::fseek(f, 0, SEEK_SET);
    rec_len = rec_pos = 0;
    ifirst = 0;
  }
  const int hi = next_byte(ilun);
  const int lo = next_byte(ilun);
  iword = std::int16_t(std::uint16_t((hi << 8) | lo));
}

}  // namespace zb
