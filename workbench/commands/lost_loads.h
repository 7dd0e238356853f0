// Loads that no piece of an element got.
#pragma once

#include <map>
#include <vector>

#include "store/model/zel_data.h"
#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// Marks the loads of plates and solids by their numbers, so that what a mapping makes of each can
/// be told. The marks stand in the place of the identifiers, which copies of a load take along.
class LoadMarks {
 public:
  /// Marks the loads of a model.
  explicit LoadMarks(CZelData& model);
  /// Gives the loads the identifiers of those that they were made of.
  void TakeOff(CZelData& model) const;

  /// Reports each load that is on an element before and on no piece of it afterwards. Both models
  /// bear the marks.
  static void ReportLost(CZelData const& before, CZelData const& after,
                         std::map<int, std::vector<int>> const& pieces, CommandResult& result);

 private:
  CZelData m_unmarked;
};

}  // namespace Tarvex::Workbench
