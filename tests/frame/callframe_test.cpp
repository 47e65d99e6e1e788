// The call frame: level checks, keyword lookup, range and date checks, warning lines.
#include "support/harness.h"

using namespace zb;

namespace {

class CallFrame : public zbt::Fixture {};

TEST_F(CallFrame, WrongLevelWarnsAndChangesOnlyFrameFields) {
  jqqlev(0, 3, "TEST");
  Zorglb before = zg;
  EXPECT_EQ(jqqlev(1, 3, "CURVE"), 1);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   3: Incorrect level in CURVE!   (   0)"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  EXPECT_EQ(zg.nwarn, 1);
  EXPECT_EQ(zg.cproc.view(), "CURVE");
}

}  // namespace
