#include "tests/support/stored_fields.h"

#include "store/model/undo_step.h"
#include "tests/support/matchers.h"
#include "workbench/file/model_reader.h"
#include "workbench/file/model_writer.h"

namespace Tarvex::Testing {

void ExpectStored(StoredChange const& change) {
  SCOPED_TRACE(change.difference);
  CZelData model;
  change.store(model);
  CZelData const before(model);
  {
    CUndoStep step(model, false);
    change.replace(model);
    step.Accept();
  }
  CZelData const after(model);
  EXPECT_EQ(Differences(after, before), std::vector<std::string>{change.difference});
  EXPECT_FALSE(after == before);
  EXPECT_TRUE(model.Undo());
  EXPECT_TRUE(IsUnchanged(model, before));
  EXPECT_TRUE(model.Redo());
  EXPECT_TRUE(IsUnchanged(model, after));
  CZelData read;
  Workbench::ReadModelText(Workbench::WriteModelText(after), "m.json", read);
  EXPECT_TRUE(IsUnchanged(read, after));
}

}  // namespace Tarvex::Testing
