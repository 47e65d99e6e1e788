// Test fixture implementation.
#include "support/harness.h"

#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace zbt {

void Fixture::SetUp() {
  char buf[4096];
  old_cwd = getcwd(buf, sizeof buf) ? buf : "/tmp";
  char tmpl[] = "/tmp/zbtest.XXXXXX";
  dir = mkdtemp(tmpl);
  if (chdir(dir.c_str()) != 0) FAIL() << "cannot enter " << dir;
  zb::reset_process_state();
  zb::capture_stdout(&out);
}

void Fixture::TearDown() {
  zb::reset_process_state();
  zb::capture_stdout(nullptr);
  if (chdir(old_cwd.c_str()) != 0) return;
  if (!HasFailure()) std::filesystem::remove_all(dir);
}

std::vector<std::string> Fixture::take_lines() {
  std::vector<std::string> lines;
  std::istringstream in(out);
  for (std::string l; std::getline(in, l);) lines.push_back(l);
  out.clear();
  return lines;
}

std::string Fixture::take_text() {
  std::string t = out;
  out.clear();
  return t;
}

std::string read_file(const std::string& name) {
  std::ifstream in(name, std::ios::binary);
  std::ostringstream ss;
  ss << in.rdbuf();
  return ss.str();
}

std::vector<std::string> read_lines(const std::string& name) {
  std::vector<std::string> lines;
  std::ifstream in(name);
  for (std::string l; std::getline(in, l);) lines.push_back(l);
  return lines;
}

int run(const std::string& cmd, std::string* output) {
  std::FILE* p = popen((cmd + " 2>&1").c_str(), "r");
  if (!p) return -1;
  std::string text;
  std::array<char, 4096> buf{};
  while (std::size_t n = std::fread(buf.data(), 1, buf.size(), p)) text.append(buf.data(), n);
  const int rc = pclose(p);
  if (output) *output = text;
  return WIFEXITED(rc) ? WEXITSTATUS(rc) : -1;
}

zb::Zorglb with_warning_fields(zb::Zorglb before) {
  before.cproc = zb::zg.cproc;
  before.cerrmsg = zb::zg.cerrmsg;
  before.nwarn = zb::zg.nwarn;
  return before;
}

}  // namespace zbt
