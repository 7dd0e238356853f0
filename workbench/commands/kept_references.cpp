#include "workbench/commands/kept_references.h"

#include <set>

#include "workbench/file/references.h"

namespace Tarvex::Workbench {

void ReportKeptReferences(CZelData const& model, KeptReferences const& kept,
                          CommandResult& result) {
  std::set<std::pair<std::string, int>> reported;
  for (auto const& each : result.undone) reported.emplace(each.table, each.number);
  ForEachReference(model, [&](ReferenceSite const& site) {
    if (site.value < 1 || site.target != kept.target || kept.mayStay(site.table)) return;
    if (!kept.isOld(site.value)) return;
    std::string const table(site.table);
    if (!reported.emplace(table, site.number).second) return;
    result.undone.push_back(
        {table, site.number,
         "it still names " + std::string(kept.label) + " " + std::to_string(site.value)});
  });
}

}  // namespace Tarvex::Workbench
