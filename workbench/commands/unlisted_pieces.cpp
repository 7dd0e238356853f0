#include "workbench/commands/unlisted_pieces.h"

#include <algorithm>

#include "store/record/element.h"
#include "store/record/member.h"

namespace Tarvex::Workbench {

void WarnOfUnlistedPieces(CZelData const& before, CZelData const& model, CommandResult& result) {
  for (auto const& [number, element] : model.Elem()) {
    int const n = static_cast<int>(number);
    int const member = element.ParentMember().member;
    if (n <= before.HighestElem() || member == 0 || !model.MemberExist(member)) continue;
    bool listed = false;
    for (auto const& [replica, children] : model.Member(member).ChildElements())
      listed = listed || std::find(children.begin(), children.end(), n) != children.end();
    if (!listed)
      result.warnings.push_back({"unlisted-piece", "Elem", n,
                                 "element " + std::to_string(n) +
                                     " is a piece of a child of member " + std::to_string(member) +
                                     ", which does not list it"});
  }
}

}  // namespace Tarvex::Workbench
