#include "workbench/commands/reference.h"

#include "tests/workbench/page.h"
#include "tests/workbench/run.h"

namespace Tarvex::ReferenceTest {
namespace {

using Testing::ReadSource;

TEST(Reference, ThePageInTheTreeIsFresh) {
  EXPECT_EQ(ReadSource("docs/commands.md"), Testing::RunTarvex({"reference"}).out);
}

TEST(Reference, HasARowForEachOptionWithItsPreset) {
  auto const page = Workbench::ReferencePage();
  EXPECT_NE(page.find("| `--angle DEG` | `15` |"), std::string::npos);
  EXPECT_NE(page.find("| `--kind element\\|member` | `element` |"), std::string::npos);
  EXPECT_NE(page.find("    tarvex spin MODEL [--list TEXT] [--steps N] (-o OUT"),
            std::string::npos);
}

TEST(Schema, ThePageInTheTreeIsFresh) {
  EXPECT_EQ(ReadSource("docs/model.schema.json"), Testing::RunTarvex({"schema"}).out);
}

}  // namespace
}  // namespace Tarvex::ReferenceTest
