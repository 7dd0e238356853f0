#include "workbench/report/model_changes.h"

#include "store/model/registry.h"

namespace Tarvex::Workbench {

std::vector<TableChange> FindChanges(CZelData const& before, CZelData const& after) {
  std::vector<TableChange> changes;
  ForEachOneOff([&](auto const& row) {
    if (!((before.*row.get)() == (after.*row.get)())) changes.push_back({row.stem, {}, {}, {0}});
  });
  ForEachTable([&](auto const& row) {
    TableChange change{row.stem, {}, {}, {}};
    ForEachDifference((before.*row.all)(), (after.*row.all)(),
                      [&](int n, auto const* a, auto const* b) {
                        if (a == nullptr)
                          change.added.push_back(n);
                        else if (b == nullptr)
                          change.removed.push_back(n);
                        else if (!(*a == *b))
                          change.changed.push_back(n);
                      });
    if (!change.added.empty() || !change.removed.empty() || !change.changed.empty())
      changes.push_back(std::move(change));
  });
  return changes;
}

}  // namespace Tarvex::Workbench
