// Test fixture: a fresh library state, a scratch folder as working directory, and the
// lines the library writes to standard output collected for checks.
#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "draw/draw.h"
#include "frame/frame.h"

namespace zbt {

class Fixture : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  // Lines written to channel 6 since the last call, and clears them.
  std::vector<std::string> take_lines();
  std::string take_text();
  std::string dir;   // scratch folder, the working directory during the test
  std::string out;   // collected channel-6 text

 private:
  std::string old_cwd;
};

std::string read_file(const std::string& name);
std::vector<std::string> read_lines(const std::string& name);
// Runs a shell command; returns its exit status and puts its output in *output.
int run(const std::string& cmd, std::string* output = nullptr);
// The fields a warning changes (cproc, cerrmsg, nwarn) copied from the live record.
zb::Zorglb with_warning_fields(zb::Zorglb before);

}  // namespace zbt
