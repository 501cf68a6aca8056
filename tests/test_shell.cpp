// Help and about outside Windows: no viewer and no dialog, only the guarded
// frame's result. A host that calls them on any system gets 1 and no error.
#include <gtest/gtest.h>

#include "kvtcore.h"

TEST(HelpAndAbout, ReturnOneAndClearTheErrorCode) {
  for (auto* show : {&kvtSHOWKVTHELP, &kvtSHOWABOUT}) {
    for (int32_t window : {0, 12345, -1}) {
      kvtSETLASTERROR(5);
      EXPECT_EQ(show(window), 1.0);
      EXPECT_EQ(kvtGETLASTERROR(), 0);
    }
  }
}
