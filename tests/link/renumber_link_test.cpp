// Renumbering and tidying, as an application links them.
#include <gtest/gtest.h>

#include <utility>

#include "store/model/zel_data.h"
#include "store/record/node.h"
#include "store/record/section.h"
#include "tarvex/tarvex.h"
#include "tests/link/linked.h"
#include "tests/support/builders.h"

namespace Tarvex::RenumberLinkTest {
namespace {

using Testing::AreLinked;
using Testing::Function;
using Testing::Member;

/// Reaches what applications may use by deriving.
class Steps : public CRenumber {
 public:
  static bool AreLinkedSteps() {
    return AreLinked(&Steps::IsModule, &Steps::HighestItem, &Steps::ItemExist, &Steps::GoCases,
                     &Steps::MapList, &Steps::MapWord, &Steps::Word, &Steps::String,
                     &Steps::ListPreconversion) &&
           AreLinked(&Steps::RenumberGetReplacement);
  }
};

class TidySteps : public CUpdateProp {
 public:
  static bool AreLinkedSteps() {
    return AreLinked(&TidySteps::_Init, &TidySteps::_Index, &TidySteps::_Post,
                     &TidySteps::BlankUnused, &TidySteps::DeleteBlank, &TidySteps::TidyRef,
                     &TidySteps::UpdateList, &TidySteps::UpdateRef);
  }
};

TEST(RenumberLink, EveryMemberIsThere) {
  using Map = std::map<int, std::vector<int>>;
  using Numbers = std::vector<int>;
  EXPECT_TRUE(AreLinked(
      &CRenumber::SetData, &CRenumber::SetRefOnly, &CRenumber::IndexItem, &CRenumber::IndexItems,
      &CRenumber::MapItem, &CRenumber::Go, &CRenumber::AdjustCaseRefs, &CRenumber::MapCaseDesc,
      Member<void(CModule::ModuleId)>(&CRenumber::Index),
      Member<void(CModule::ModuleId, unsigned int, int)>(&CRenumber::Index),
      Member<void(SelType, Vec3<double> const&)>(&CRenumber::Index),
      Member<void(Data::CEntList const&, CModule::ModuleId)>(&CRenumber::Index),
      Member<void(CModule::ModuleId, std::map<int, int> const&)>(&CRenumber::Index),
      Function<Numbers(int, Map const&)>(&CRenumber::Renumber),
      Function<std::vector<Numbers>(Numbers const&, Map const&)>(&CRenumber::Renumber),
      Function<std::vector<Numbers>(Numbers const&, std::vector<std::pair<int, int>> const&)>(
          &CRenumber::Renumber),
      &CRenumber::RenumberGetCompressedScheme));
  EXPECT_TRUE(Steps::AreLinkedSteps());
}

TEST(RenumberLink, IsMadeCopiedAssignedRunAndDestroyed) {
  CZelData model;
  model.CreateNode(5, {0, 0, 0}, 0, Vbool6());
  CRenumber renumber;
  renumber.SetData(&model);
  renumber.SetRefOnly(false);
  renumber.Index(CModule::Node);
  CRenumber copy(renumber);
  CRenumber moved(std::move(copy));
  CRenumber assigned;
  assigned = moved;
  EXPECT_TRUE(assigned.Go(false));
  EXPECT_TRUE(model.NodeExist(1));
}

TEST(TidyLink, EveryMemberIsThere) {
  EXPECT_TRUE(AreLinked(&CIndexProp::IndexUsed, &CIndexProp::IndexDefined, &CIndexProp::IndexStage,
                        &CIndexProp::IsMatAnalUsed, &CIndexProp::IsMatSteelUsed,
                        &CIndexProp::IsMatConcreteUsed, &CIndexProp::IsMatAluminiumUsed,
                        &CIndexProp::IsMatGlassUsed, &CIndexProp::IsMatFrpUsed,
                        &CIndexProp::IsMatTimberUsed, &CIndexProp::IsMatFabricUsed,
                        &CIndexProp::IsMatGenericUsed, &CIndexProp::IsMatRebarUsed));
  EXPECT_TRUE(AreLinked(&CIndexProp::IsSectionUsed, &CIndexProp::IsProp2DUsed,
                        &CIndexProp::IsSpringUsed, &CIndexProp::IsDamperUsed,
                        &CIndexProp::IsMassUsed, &CIndexProp::IsLinkUsed, &CIndexProp::IsCableUsed,
                        &CIndexProp::IsSpacerUsed, &CIndexProp::IsProp3DUsed));
  EXPECT_TRUE(AreLinked(&CUpdateProp::SetNoSection, &CUpdateProp::Update));
  EXPECT_TRUE(AreLinked(&CUpdateProp::Check2dProperties, &CUpdateProp::IsValidProperty,
                        &CUpdateProp::Update2dElementProperties));
  EXPECT_TRUE(TidySteps::AreLinkedSteps());
}

TEST(TidyLink, IsMadeCopiedRunAndDestroyedThroughItsBase) {
  CZelData model;
  model.SetSection(4, Data::CSection());
  CUpdateProp tidy(model);
  CUpdateProp copy(tidy);
  EXPECT_TRUE(copy.Update(CUpdateProp::kDeleteBlank));
  EXPECT_TRUE(model.SectionExist(1));
  std::unique_ptr<CIndexProp> const base = std::make_unique<CUpdateProp>(copy);
  CIndexProp const index(*base);
  EXPECT_TRUE(index.IsSectionUsed(4));
}

}  // namespace
}  // namespace Tarvex::RenumberLinkTest
