// PPM writer: binary P6 with maximum 255, rows of red, green, blue from the top.
#include <cstdio>

#include "raster/raster.h"
#include "raster/writer.h"
#include "util/fmt.h"

namespace zb {

int qqpppm(const char* path) {
  Picture pic;
  if (const int rc = fetch_picture(pic, true, false); rc != kWriteOk) return rc;
  std::FILE* f = std::fopen(path, "wb");
  if (f == nullptr) return kFileError;
  ByteSink out(f);
  out.put_text("P6\n");
  out.put_text(itoa(pic.w) + " " + itoa(pic.h) + "\n");
  out.put_text("255\n");
  out.put(pic.px, std::size_t(pic.w) * std::size_t(pic.h) * 3);
  const bool closed = std::fclose(f) == 0;
  return out.ok() && closed ? kWriteOk : kFileError;
}

}  // namespace zb
