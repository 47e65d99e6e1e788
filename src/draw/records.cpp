// The output record cobuf: text and binary bytes gathered into records of lobuf bytes and
// written to the plot file (or standard output for the character terminals).
#include "draw/device.h"
#include "frame/frame.h"

namespace zb {

namespace {

bool is_cgm() { return zg.idev == 211; }

void append(const char* c, int n) {
  for (int i = 0; i < n; ++i) zg.cobuf.c[std::size_t(zg.nobuf + i)] = c[i];
  zg.nobuf += n;
}

// A terminal record starts with the full current address.
void start_terminal_record() {
  const int n = zg.idev == 161 ? 6 : 5;
  append(zg.ctek.data(), n);
}

}  // namespace

void write_record() {
  const int lun = zg.lunplt;
  std::FILE* f = lun_file(lun);
  if (f != nullptr) {
    if (is_cgm()) {
      // CGM records are fixed 80-byte direct-access records.
      std::fwrite(zg.cobuf.c.data(), 1, std::size_t(zg.nobuf), f);
      for (int i = zg.nobuf; i < 80; ++i) std::fputc(0, f);
      ++zg.nrec;
    } else {
      std::fwrite(zg.cobuf.c.data(), 1, std::size_t(zg.nobuf), f);
      std::fputc('\n', f);
    }
  }
  zg.nobuf = 0;
  zg.cobuf = "";
}

void qqsbuf(const char* cbuf, int n) {
  if (n <= 0 || cbuf == nullptr) return;
  if (zg.nobuf + n <= zg.lobuf) {
    append(cbuf, n);
    return;
  }
  const int d = zg.idev;
  if (d < 101 || d >= 201) {
    if (zg.nobuf != zg.lobuf && d < 301) {
      // Metafile, CGM and WMF fill the record and break the bytes across records.
      int k = 0;
      while (k < n) {
        const int room = zg.lobuf - zg.nobuf;
        const int take = std::min(room, n - k);
        append(cbuf + k, take);
        k += take;
        if (k < n) write_record();
      }
      return;
    }
    write_record();
    // A piece longer than a record still goes out whole, a record at a time.
    int k = 0;
    while (n - k > zg.lobuf) {
      append(cbuf + k, zg.lobuf);
      write_record();
      k += zg.lobuf;
    }
    append(cbuf + k, n - k);
    return;
  }
  // Terminals: the record goes out as it is, led by a blank below 151.
  if (d < 151) {
    std::string rec = " " + std::string(zg.cobuf.c.data(), std::size_t(zg.nobuf));
    zg.nobuf = 0;
    lun_write(zg.lunplt == 0 ? 6 : zg.lunplt, rec);
  } else {
    write_record();
  }
  start_terminal_record();
  const int room = zg.lobuf - zg.nobuf;
  append(cbuf, std::min(n, room));
}

void qpsbuf(const char* cbuf, int n) {
  if (n == -1) {
    write_record();
    return;
  }
  if (n <= 0 || cbuf == nullptr) return;
  int i = 0;
  while (i < n) {
    int j = i;
    while (j < n - 1 && cbuf[j] != ' ') ++j;
    // Token is cbuf[i..j], its blank included.
    int len = j - i + 1;
    if (len == 1 && cbuf[i] == ' ' && j != n - 1) {
      i = j + 1;
      continue;
    }
    if (len > zg.lobuf) len = zg.lobuf;
    if (zg.nobuf + len > zg.lobuf) write_record();
    append(cbuf + i, len);
    i = j + 1;
  }
}

}  // namespace zb
