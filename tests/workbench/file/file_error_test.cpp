#include "workbench/file/file_error.h"

#include <gtest/gtest.h>

namespace Tarvex::Workbench::FileErrorTest {
namespace {

TEST(FileError, TellsAsMuchOfThePlaceAsThereIs) {
  EXPECT_STREQ(FileError({"a.json", 12, 8, "/Elem/3/topology/0"}, "bad").what(),
               "a.json:12:8: /Elem/3/topology/0: bad");
  EXPECT_STREQ(FileError({"a.json", 1, 1, ""}, "bad").what(), "a.json:1:1: bad");
  EXPECT_STREQ(FileError({"a.json", 0, 0, "/Node/0"}, "bad").what(), "a.json: /Node/0: bad");
  EXPECT_STREQ(FileError({"a.json", 0, 0, ""}, "bad").what(), "a.json: bad");
}

}  // namespace
}  // namespace Tarvex::Workbench::FileErrorTest
