#include "store/record/load_base.h"

#include <gtest/gtest.h>

#include "store/record/beam_loads.h"
#include "store/record/node_load.h"

namespace Tarvex::Data::LoadBaseTest {
namespace {

TEST(EntityList, TakesElementsAndMembersAndNothingElse) {
  EntityList list;
  EXPECT_EQ(list.TypeOf(), SelElement);
  list.Put(CEntList(SelMember, L"3 to 9"));
  EXPECT_EQ(list.TypeOf(), SelMember);
  EXPECT_EQ(list.String(), L"3 to 9");
  for (auto const kind : {SelNone, SelNode}) {
    EXPECT_THROW(list.Put(CEntList(kind, CString(L"1"))), std::invalid_argument);
    EXPECT_EQ(list.String(), L"3 to 9");
  }
  list.Put(CEntList());
  EXPECT_TRUE(list.IsEmpty());
  EXPECT_EQ(list.TypeOf(), SelElement);
}

TEST(EntityList, TellsAKindThatAFileMayNotHold) {
  EntityList list;
  EXPECT_EQ(list.Fault(), L"");
  list.SetType(SelMember);
  EXPECT_EQ(list.Fault(), L"");
  list.SetType(SelNode);
  EXPECT_EQ(list.Fault(), L"a list of another kind than elements (2) and members (3)");
}

TEST(LoadBase, LeadsToCaseAndListOfEveryLoad) {
  CBeamLoad beam;
  CNodeLoad node;
  std::vector<CLoadBase*> const loads{&beam, &node};
  for (auto* load : loads) load->SetLoadCase(4);
  beam.SetLoadedEntities(CEntList(SelMember, L"1"));
  loads[1]->SetLoadedEntities(CEntList(SelNode, L"2"));
  EXPECT_EQ(beam.LoadCase(), 4);
  EXPECT_EQ(node.LoadCase(), 4);
  EXPECT_EQ(loads[0]->LoadedEntities().String(), L"1");
  EXPECT_EQ(loads[1]->LoadedEntities().String(), L"2");
}

}  // namespace
}  // namespace Tarvex::Data::LoadBaseTest
