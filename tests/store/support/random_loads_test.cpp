// What the loads and constraints of random models hold, beyond that every field is filled.
#include "tests/support/random_loads.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "store/record/beam_loads.h"
#include "store/record/node_load.h"
#include "store/record/restraints.h"
#include "store/record/rigid.h"
#include "store/select/list_tokens.h"

namespace Tarvex::RandomLoadsTest {
namespace {

using Testing::ForEachRandomModel;
using Testing::Random;
using Tokens = std::set<int>;

void Add(Tokens& tokens, Data::CEntList const& list) {
  tokens.insert(list.Word().begin(), list.Word().end());
}

TEST(RandomLoads, HaveListsOfEachKindInEachForm) {
  std::map<SelType, Tokens> beams;
  std::map<SelType, Tokens> tied;
  Tokens nodes;
  Tokens stages;
  ForEachRandomModel(100, [&](CZelData& model, Random&) {
    for (auto const& load : model.BeamLoad())
      Add(beams[load.LoadedEntities().TypeOf()], load.LoadedEntities());
    for (auto const& record : model.TiedInterface())
      Add(tied[record.ConstrainedEntities().TypeOf()], record.ConstrainedEntities());
    for (auto const& load : model.NodeLoad()) Add(nodes, load.LoadedEntities());
    for (auto const& rigid : model.Rigid()) Add(stages, rigid.Stage());
  });
  for (int const token :
       {Data::kTo, Data::kOr, Data::kAnd, Data::kNot, Data::kOpen, Data::kString}) {
    EXPECT_TRUE(nodes.contains(token)) << token;
    for (auto const kind : {SelElement, SelMember})
      EXPECT_TRUE(beams[kind].contains(token)) << kind << " " << token;
    for (auto const kind : {SelNode, SelElement, SelMember})
      EXPECT_TRUE(tied[kind].contains(token)) << kind << " " << token;
  }
  for (int const token : {Data::kAll, Data::kTo, Data::kNot})
    EXPECT_TRUE(stages.contains(token)) << token;
}

TEST(RandomLoads, HaveUpToFourRecordsOfATable) {
  std::set<int> counts;
  ForEachRandomModel(100, [&](CZelData& model, Random&) { counts.insert(model.HighestRigid()); });
  EXPECT_EQ(counts, (std::set<int>{1, 2, 3, 4}));
}

}  // namespace
}  // namespace Tarvex::RandomLoadsTest
