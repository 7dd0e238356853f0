#include "store/record/member_mesh.h"

#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/member.h"

namespace Tarvex::MemberMeshTest {
namespace {

ZEL::ReplicatedMesh OneLine() {
  auto mesh = std::make_shared<MemberMesh>();
  mesh->nodes = {{1, 5, 0}, {4, 2, -3}};
  mesh->elements1D = {{{0, 1}, 7}};
  return {{{0U, mesh}}, true};
}

TEST(MemberMesh, TellsTheBoxAroundItsNodes) {
  auto const mesh = OneLine();
  EXPECT_EQ(mesh.Replicas().at(0)->MinExtent(), (Mesh::Vector3D{1, 2, -3}));
  EXPECT_EQ(mesh.Replicas().at(0)->MaxExtent(), (Mesh::Vector3D{4, 5, 0}));
  EXPECT_EQ(MemberMesh().MinExtent(), Mesh::Vector3D());
}

TEST(MemberMesh, HoldsElementsByDimensionAndNumberOfNodes) {
  MemberMesh mesh;
  std::get<0>(mesh.elements2D).push_back({{0, 1, 2}, 0});
  std::get<1>(mesh.elements2D).push_back({{0, 1, 2, 3}, 0});
  std::get<3>(mesh.elements3D).push_back({{0, 1, 2, 3, 4, 5, 6, 7}, 0});
  mesh.loadPanels = {{0, 1, 2}};
  mesh.rigidConstraints = {{{1, 2}, 0}};
  EXPECT_EQ(std::get<0>(mesh.Elements2D()).size(), 1U);
  EXPECT_EQ(std::get<1>(mesh.Elements2D())[0].vertices[3], 3U);
  EXPECT_EQ(std::get<3>(mesh.Elements3D())[0].vertices[7], 7U);
  EXPECT_TRUE(std::get<0>(mesh.Elements3D()).empty());
  EXPECT_EQ(mesh.LoadPanels()[0].size(), 3U);
  EXPECT_EQ(mesh.RigidConstraints()[0].constrained.size(), 2U);
}

TEST(AnalysisMesh, IsEmptyForAMemberThatWasNeverMeshed) {
  EXPECT_TRUE(Data::CMember().AnalysisMesh(false, false).Replicas().empty());
  EXPECT_FALSE(Data::CMember().AnalysisMesh(false, false).IsFlipped());
}

TEST(AnalysisMesh, GoesWithTheMemberUnderItsNumberAndNotWithACopyUnderAnother) {
  CZelData model;
  Data::CMember member(1, 2);
  member.SetAnalysisMesh(OneLine());
  model.SetMember(3, member);
  EXPECT_EQ(model.Member(3).AnalysisMesh(false, false).Replicas().size(), 1U);
  EXPECT_TRUE(model.Member(3).AnalysisMesh(false, false).IsFlipped());
  auto changed = model.Member(3);
  changed.SetGroup(5);
  model.SetMember(3, changed);
  EXPECT_EQ(model.Member(3).AnalysisMesh().Replicas().size(), 1U);
  model.SetMember(4, changed);
  EXPECT_TRUE(model.Member(4).AnalysisMesh().Replicas().empty());
}

TEST(AnalysisMesh, IsNoPartOfEquality) {
  Data::CMember meshed;
  meshed.SetAnalysisMesh(OneLine());
  EXPECT_EQ(meshed, Data::CMember());
  meshed.ClearAnalysisMesh();
  EXPECT_TRUE(meshed.AnalysisMesh().Replicas().empty());
}

}  // namespace
}  // namespace Tarvex::MemberMeshTest
