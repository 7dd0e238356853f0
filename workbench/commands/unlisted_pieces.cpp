#include "workbench/commands/unlisted_pieces.h"

#include <unordered_map>
#include <unordered_set>

#include "store/record/element.h"
#include "store/record/member.h"

namespace Tarvex::Workbench {
namespace {

std::unordered_set<int> ChildrenOf(CZelData const& model, int member) {
  std::unordered_set<int> all;
  for (auto const& [replica, children] : model.Member(member).ChildElements())
    all.insert(children.begin(), children.end());
  return all;
}

}  // namespace

void WarnOfUnlistedPieces(CZelData const& before, CZelData const& model, CommandResult& result) {
  std::unordered_map<int, std::unordered_set<int>> listed;
  for (auto const& [number, element] : model.Elem()) {
    int const n = static_cast<int>(number);
    int const member = element.ParentMember().member;
    if (n <= before.HighestElem() || member == 0 || !model.MemberExist(member)) continue;
    auto known = listed.find(member);
    if (known == listed.end()) known = listed.emplace(member, ChildrenOf(model, member)).first;
    if (!known->second.contains(n))
      result.warnings.push_back({"unlisted-piece", "Elem", n,
                                 "element " + std::to_string(n) +
                                     " is a piece of a child of member " + std::to_string(member) +
                                     ", which does not list it"});
  }
}

}  // namespace Tarvex::Workbench
