// Tables of loads on nodes and entities, as an application links them.
#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/face_loads.h"
#include "store/record/node_load.h"
#include "tests/link/linked.h"

namespace Tarvex::LoadTablesLinkTest {
namespace {

using Testing::AreLinked;
using Testing::Member;
using T = LoadTables;

Data::CEntList const kNodes(SelNode, L"1 2");
Data::CEntList const kElements(SelElement, L"1 2");

TEST(LoadTablesLink, NodeLoadOperations) {
  using R = Data::CNodeLoad;
  EXPECT_TRUE(AreLinked(&T::NodeLoadExist, Member<R const&(int) const>(&T::NodeLoad),
                        Member<std::vector<R> const&() const>(&T::NodeLoad), &T::HighestNodeLoad,
                        &T::SetNodeLoad, &T::DeleteNodeLoad, &T::SetNodeLoadItem));
  CZelData model;
  model.SetNodeLoad(1, R());
  EXPECT_TRUE(model.NodeLoadExist(1));
  EXPECT_EQ(model.HighestNodeLoad(), 1);
  EXPECT_EQ(&model.NodeLoad()[0], &model.NodeLoad(1));
  model.SetNodeLoadItem(1, kNodes);
  EXPECT_EQ(model.NodeLoad(1).LoadedEntities().String(), L"1 2");
  model.DeleteNodeLoad(1, 1);
  EXPECT_FALSE(model.NodeLoadExist(1));
}

TEST(LoadTablesLink, AppliedDisplacementOperations) {
  using R = Data::CNodeLoad;
  EXPECT_TRUE(AreLinked(&T::AppliedDisplacementExist,
                        Member<R const&(int) const>(&T::AppliedDisplacement),
                        Member<std::vector<R> const&() const>(&T::AppliedDisplacement),
                        &T::HighestAppliedDisplacement, &T::SetAppliedDisplacement,
                        &T::DeleteAppliedDisplacement, &T::SetAppliedDisplacementItem));
  CZelData model;
  model.SetAppliedDisplacement(1, R());
  EXPECT_TRUE(model.AppliedDisplacementExist(1));
  EXPECT_EQ(model.HighestAppliedDisplacement(), 1);
  EXPECT_EQ(&model.AppliedDisplacement()[0], &model.AppliedDisplacement(1));
  model.SetAppliedDisplacementItem(1, kNodes);
  EXPECT_EQ(model.AppliedDisplacement(1).LoadedEntities().String(), L"1 2");
  model.DeleteAppliedDisplacement(1, 1);
  EXPECT_FALSE(model.AppliedDisplacementExist(1));
}

TEST(LoadTablesLink, SettlementOperations) {
  using R = Data::CNodeLoad;
  EXPECT_TRUE(AreLinked(&T::SettlementExist, Member<R const&(int) const>(&T::Settlement),
                        Member<std::vector<R> const&() const>(&T::Settlement),
                        &T::HighestSettlement, &T::SetSettlement, &T::DeleteSettlement,
                        &T::SetSettlementItem));
  CZelData model;
  model.SetSettlement(1, R());
  EXPECT_TRUE(model.SettlementExist(1));
  EXPECT_EQ(model.HighestSettlement(), 1);
  EXPECT_EQ(&model.Settlement()[0], &model.Settlement(1));
  model.SetSettlementItem(1, kNodes);
  EXPECT_EQ(model.Settlement(1).LoadedEntities().String(), L"1 2");
  model.DeleteSettlement(1, 1);
  EXPECT_FALSE(model.SettlementExist(1));
}

TEST(LoadTablesLink, BeamLoadOperations) {
  using R = Data::CBeamLoad;
  EXPECT_TRUE(AreLinked(&T::BeamLoadExist, Member<R const&(int) const>(&T::BeamLoad),
                        Member<std::vector<R> const&() const>(&T::BeamLoad), &T::HighestBeamLoad,
                        &T::SetBeamLoad, &T::DeleteBeamLoad, &T::SetBeamLoadItem));
  CZelData model;
  model.SetBeamLoad(1, R());
  EXPECT_TRUE(model.BeamLoadExist(1));
  EXPECT_EQ(model.HighestBeamLoad(), 1);
  EXPECT_EQ(&model.BeamLoad()[0], &model.BeamLoad(1));
  model.SetBeamLoadItem(1, kElements);
  EXPECT_EQ(model.BeamLoad(1).LoadedEntities().String(), L"1 2");
  model.DeleteBeamLoad(1, 1);
  EXPECT_FALSE(model.BeamLoadExist(1));
}

TEST(LoadTablesLink, AxialLoadOperations) {
  using R = Data::CAxialLoad;
  EXPECT_TRUE(AreLinked(&T::AxialLoadExist, Member<R const&(int) const>(&T::AxialLoad),
                        Member<std::vector<R> const&() const>(&T::AxialLoad), &T::HighestAxialLoad,
                        &T::SetAxialLoad, &T::DeleteAxialLoad, &T::SetAxialLoadItem));
  CZelData model;
  model.SetAxialLoad(1, R());
  EXPECT_TRUE(model.AxialLoadExist(1));
  EXPECT_EQ(model.HighestAxialLoad(), 1);
  EXPECT_EQ(&model.AxialLoad()[0], &model.AxialLoad(1));
  model.SetAxialLoadItem(1, kElements);
  EXPECT_EQ(model.AxialLoad(1).LoadedEntities().String(), L"1 2");
  model.DeleteAxialLoad(1, 1);
  EXPECT_FALSE(model.AxialLoadExist(1));
}

TEST(LoadTablesLink, BeamDistOperations) {
  using R = Data::CBeamDist;
  EXPECT_TRUE(AreLinked(&T::BeamDistExist, Member<R const&(int) const>(&T::BeamDist),
                        Member<std::vector<R> const&() const>(&T::BeamDist), &T::HighestBeamDist,
                        &T::SetBeamDist, &T::DeleteBeamDist, &T::SetBeamDistItem));
  CZelData model;
  model.SetBeamDist(1, R());
  EXPECT_TRUE(model.BeamDistExist(1));
  EXPECT_EQ(model.HighestBeamDist(), 1);
  EXPECT_EQ(&model.BeamDist()[0], &model.BeamDist(1));
  model.SetBeamDistItem(1, kElements);
  EXPECT_EQ(model.BeamDist(1).LoadedEntities().String(), L"1 2");
  model.DeleteBeamDist(1, 1);
  EXPECT_FALSE(model.BeamDistExist(1));
}

TEST(LoadTablesLink, BeamThermalLoadOperations) {
  using R = Data::CBeamThermalLoad;
  EXPECT_TRUE(AreLinked(&T::BeamThermalLoadExist, Member<R const&(int) const>(&T::BeamThermalLoad),
                        Member<std::vector<R> const&() const>(&T::BeamThermalLoad),
                        &T::HighestBeamThermalLoad, &T::SetBeamThermalLoad,
                        &T::DeleteBeamThermalLoad, &T::SetBeamThermalLoadItem));
  CZelData model;
  model.SetBeamThermalLoad(1, R());
  EXPECT_TRUE(model.BeamThermalLoadExist(1));
  EXPECT_EQ(model.HighestBeamThermalLoad(), 1);
  EXPECT_EQ(&model.BeamThermalLoad()[0], &model.BeamThermalLoad(1));
  model.SetBeamThermalLoadItem(1, kElements);
  EXPECT_EQ(model.BeamThermalLoad(1).LoadedEntities().String(), L"1 2");
  model.DeleteBeamThermalLoad(1, 1);
  EXPECT_FALSE(model.BeamThermalLoadExist(1));
}

TEST(LoadTablesLink, FaceLoadOperations) {
  using R = Data::CFaceLoad;
  EXPECT_TRUE(AreLinked(&T::FaceLoadExist, Member<R const&(int) const>(&T::FaceLoad),
                        Member<std::vector<R> const&() const>(&T::FaceLoad), &T::HighestFaceLoad,
                        Member<void(int, R const&, SidMode)>(&T::SetFaceLoad),
                        Member<void(int, R const&, bool, SidMode)>(&T::SetFaceLoad),
                        &T::DeleteFaceLoad, &T::SetFaceLoadItem));
  CZelData model;
  model.SetFaceLoad(1, R());
  EXPECT_TRUE(model.FaceLoadExist(1));
  EXPECT_EQ(model.HighestFaceLoad(), 1);
  EXPECT_EQ(&model.FaceLoad()[0], &model.FaceLoad(1));
  model.SetFaceLoadItem(1, kElements);
  EXPECT_EQ(model.FaceLoad(1).LoadedEntities().String(), L"1 2");
  model.DeleteFaceLoad(1, 1);
  EXPECT_FALSE(model.FaceLoadExist(1));
}

TEST(LoadTablesLink, EdgeLoadOperations) {
  using R = Data::CEdgeLoad;
  EXPECT_TRUE(AreLinked(&T::EdgeLoadExist, Member<R const&(int) const>(&T::EdgeLoad),
                        Member<std::vector<R> const&() const>(&T::EdgeLoad), &T::HighestEdgeLoad,
                        &T::SetEdgeLoad, &T::DeleteEdgeLoad, &T::SetEdgeLoadItem));
  CZelData model;
  model.SetEdgeLoad(1, R());
  EXPECT_TRUE(model.EdgeLoadExist(1));
  EXPECT_EQ(model.HighestEdgeLoad(), 1);
  EXPECT_EQ(&model.EdgeLoad()[0], &model.EdgeLoad(1));
  model.SetEdgeLoadItem(1, kElements);
  EXPECT_EQ(model.EdgeLoad(1).LoadedEntities().String(), L"1 2");
  model.DeleteEdgeLoad(1, 1);
  EXPECT_FALSE(model.EdgeLoadExist(1));
}

TEST(LoadTablesLink, InPlaneLoadOperations) {
  using R = Data::CInPlaneLoad;
  EXPECT_TRUE(AreLinked(&T::InPlaneLoadExist, Member<R const&(int) const>(&T::InPlaneLoad),
                        Member<std::vector<R> const&() const>(&T::InPlaneLoad),
                        &T::HighestInPlaneLoad, &T::SetInPlaneLoad, &T::DeleteInPlaneLoad,
                        &T::SetInPlaneLoadItem));
  CZelData model;
  model.SetInPlaneLoad(1, R());
  EXPECT_TRUE(model.InPlaneLoadExist(1));
  EXPECT_EQ(model.HighestInPlaneLoad(), 1);
  EXPECT_EQ(&model.InPlaneLoad()[0], &model.InPlaneLoad(1));
  model.SetInPlaneLoadItem(1, kElements);
  EXPECT_EQ(model.InPlaneLoad(1).LoadedEntities().String(), L"1 2");
  model.DeleteInPlaneLoad(1, 1);
  EXPECT_FALSE(model.InPlaneLoadExist(1));
}

TEST(LoadTablesLink, FaceThermalLoadOperations) {
  using R = Data::CFaceThermalLoad;
  EXPECT_TRUE(AreLinked(&T::FaceThermalLoadExist, Member<R const&(int) const>(&T::FaceThermalLoad),
                        Member<std::vector<R> const&() const>(&T::FaceThermalLoad),
                        &T::HighestFaceThermalLoad, &T::SetFaceThermalLoad,
                        &T::DeleteFaceThermalLoad, &T::SetFaceThermalLoadItem));
  CZelData model;
  model.SetFaceThermalLoad(1, R());
  EXPECT_TRUE(model.FaceThermalLoadExist(1));
  EXPECT_EQ(model.HighestFaceThermalLoad(), 1);
  EXPECT_EQ(&model.FaceThermalLoad()[0], &model.FaceThermalLoad(1));
  model.SetFaceThermalLoadItem(1, kElements);
  EXPECT_EQ(model.FaceThermalLoad(1).LoadedEntities().String(), L"1 2");
  model.DeleteFaceThermalLoad(1, 1);
  EXPECT_FALSE(model.FaceThermalLoadExist(1));
}

TEST(LoadTablesLink, BodyFaceLoadOperations) {
  using R = Data::CBodyFaceLoad;
  EXPECT_TRUE(AreLinked(&T::BodyFaceLoadExist, Member<R const&(int) const>(&T::BodyFaceLoad),
                        Member<std::vector<R> const&() const>(&T::BodyFaceLoad),
                        &T::HighestBodyFaceLoad, &T::SetBodyFaceLoad, &T::DeleteBodyFaceLoad));
  CZelData model;
  model.SetBodyFaceLoad(1, R());
  EXPECT_TRUE(model.BodyFaceLoadExist(1));
  EXPECT_EQ(model.HighestBodyFaceLoad(), 1);
  EXPECT_EQ(&model.BodyFaceLoad()[0], &model.BodyFaceLoad(1));
  model.DeleteBodyFaceLoad(1, 1);
  EXPECT_FALSE(model.BodyFaceLoadExist(1));
}

TEST(LoadTablesLink, BodyThermalLoadOperations) {
  using R = Data::CBodyThermalLoad;
  EXPECT_TRUE(AreLinked(&T::BodyThermalLoadExist, Member<R const&(int) const>(&T::BodyThermalLoad),
                        Member<std::vector<R> const&() const>(&T::BodyThermalLoad),
                        &T::HighestBodyThermalLoad, &T::SetBodyThermalLoad,
                        &T::DeleteBodyThermalLoad));
  CZelData model;
  model.SetBodyThermalLoad(1, R());
  EXPECT_TRUE(model.BodyThermalLoadExist(1));
  EXPECT_EQ(model.HighestBodyThermalLoad(), 1);
  EXPECT_EQ(&model.BodyThermalLoad()[0], &model.BodyThermalLoad(1));
  model.DeleteBodyThermalLoad(1, 1);
  EXPECT_FALSE(model.BodyThermalLoadExist(1));
}

TEST(LoadTablesLink, GravityLoadOperations) {
  using R = Data::CGravityLoad;
  EXPECT_TRUE(AreLinked(&T::GravityLoadExist, Member<R const&(int) const>(&T::GravityLoad),
                        Member<std::vector<R> const&() const>(&T::GravityLoad),
                        &T::HighestGravityLoad, &T::SetGravityLoad, &T::DeleteGravityLoad,
                        &T::SetGravityLoadEntities, &T::SetGravityLoadNodes));
  CZelData model;
  model.SetGravityLoad(1, R());
  EXPECT_TRUE(model.GravityLoadExist(1));
  EXPECT_EQ(model.HighestGravityLoad(), 1);
  EXPECT_EQ(&model.GravityLoad()[0], &model.GravityLoad(1));
  model.SetGravityLoadEntities(1, kElements);
  EXPECT_EQ(model.GravityLoad(1).LoadedEntities().String(), L"1 2");
  model.SetGravityLoadNodes(1, kNodes);
  EXPECT_EQ(model.GravityLoad(1).LoadedNodes().String(), L"1 2");
  model.DeleteGravityLoad(1, 1);
  EXPECT_FALSE(model.GravityLoadExist(1));
}

}  // namespace
}  // namespace Tarvex::LoadTablesLinkTest
