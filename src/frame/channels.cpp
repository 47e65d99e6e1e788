// Text channels behind the numbers of the record: 6 is standard output, 15 the plot file,
// 17 the error file; any other number a caller gives to unit writes to "fort.<n>".
#include <array>
#include <cstdlib>
#include <sys/stat.h>

#include "frame/frame.h"

namespace zb {

namespace {
std::array<std::FILE*, 1001> g_files{};
std::array<std::string, 1001> g_names{};
std::string* g_capture = nullptr;   // tests: lines of channel 6 go here
}

void capture_stdout(std::string* sink) { g_capture = sink; }

std::FILE* lun_file(int lun) {
  if (lun < 0 || lun > 1000) return nullptr;
  if (lun == 6) return stdout;
  if (g_files[std::size_t(lun)] == nullptr && lun != 15 && lun != 16 && lun != 17 && lun != 0) {
    const std::string name = "fort." + itoa(lun);
    g_files[std::size_t(lun)] = std::fopen(name.c_str(), "a");
    g_names[std::size_t(lun)] = name;
  }
  return g_files[std::size_t(lun)];
}

void lun_write(int lun, std::string_view line) {
  if (lun == 6 && g_capture != nullptr) {
    g_capture->append(line);
    g_capture->push_back('\n');
    return;
  }
  std::FILE* f = lun_file(lun);
  if (f == nullptr) return;
  std::fwrite(line.data(), 1, line.size(), f);
  std::fputc('\n', f);
  if (f == stdout) std::fflush(f);
}

bool lun_open(int lun, const std::string& name, const char* mode) {
  if (lun < 1 || lun > 1000 || lun == 6) return false;
  lun_close(lun);
  g_files[std::size_t(lun)] = std::fopen(name.c_str(), mode);
  g_names[std::size_t(lun)] = name;
  return g_files[std::size_t(lun)] != nullptr;
}

void lun_close(int lun, bool remove) {
  if (lun < 0 || lun > 1000 || lun == 6) return;
  std::FILE*& f = g_files[std::size_t(lun)];
  if (f != nullptr) std::fclose(f);
  f = nullptr;
  if (remove && !g_names[std::size_t(lun)].empty()) std::remove(g_names[std::size_t(lun)].c_str());
  g_names[std::size_t(lun)].clear();
}

bool file_exists(const std::string& name) {
  struct stat st {};
  return ::stat(name.c_str(), &st) == 0;
}

void qqstop(std::string_view l1, std::string_view l2) {
  lun_write(6, "     " + std::string(l1));
  lun_write(6, "     " + std::string(l2));
  for (int lun : {15, 17}) lun_close(lun);
  std::fflush(nullptr);
  std::exit(1);
}

}  // namespace zb
