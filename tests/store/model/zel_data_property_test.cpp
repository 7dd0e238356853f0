// Copies, snapshots, equality and differences of random models under random changes.
#include <gtest/gtest.h>

#include "store/model/registry.h"
#include "store/record/axis.h"
#include "store/record/node.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::ZelDataPropertyTest {
namespace {

using Testing::ForEachRandomModel;
using Testing::IsUnchanged;
using Testing::Random;

/// A model with the same records, stored one by one in descending number.
CZelData Rebuilt(CZelData const& model) {
  CZelData copy;
  ForEachTable([&](auto const& row) {
    // Downwards where there may be holes; a positional table only grows at its end.
    auto const& table = (model.*row.all)();
    bool const down = row.shape == TableShape::Sparse;
    std::vector<int> numbers;
    ForEachRecord(table, [&](int n, auto const&) { numbers.push_back(n); });
    if (down) std::reverse(numbers.begin(), numbers.end());
    for (int const n : numbers) (copy.*row.set)(n, *FindRecord(table, n), SidMode::Keep);
  });
  ForEachOneOff([&](auto const& row) { (copy.*row.set)((model.*row.get)()); });
  return copy;
}

/// Makes one random change; most change something.
void Change(CZelData& model, Random& random) {
  int const node = random.Int(1, model.HighestNode() + 3);
  int const entity = random.Int(1, model.HighestElem() + 3);
  switch (random.Int(0, 6)) {
    case 0:
      return model.SetNode(node, Data::CNode({random.Real(-9, 9), 0, 0}, 0, Vbool6()));
    case 1:
      return model.BlankNode(node, random.Int(1, 3));
    case 2:
      return model.SetElem(entity, Testing::Element(ElementType::Beam, {node, node + 1}));
    case 3:
      return model.SetLoadPanel(entity, Testing::Panel({node, node + 1, node + 2}));
    case 4:
      return model.BlankVariantElement(entity, random.Int(1, 3));
    case 5:
      return model.SetAxis(random.Int(1, 9), Data::CAxis());
    default:
      if (model.VariantElementExist(entity)) model.SetElemGroup(entity, random.Int(1, 4));
  }
}

/// "Stem number" of all records that differ, by walking both models in full.
std::vector<std::string> PlainDifference(CZelData const& model, CZelData const& before) {
  std::vector<std::string> lines;
  ForEachTable([&](auto const& row) {
    auto const& was = (before.*row.all)();
    auto const& is = (model.*row.all)();
    for (int n = 1; n <= std::max(HighestOf(was), HighestOf(is)); ++n) {
      auto const* a = FindRecord(was, n);
      auto const* b = FindRecord(is, n);
      bool const same = (a == nullptr) == (b == nullptr) && (a == nullptr || *a == *b);
      if (!same) lines.push_back(std::string(row.stem) + " " + std::to_string(n));
    }
  });
  return lines;
}

TEST(ModelProperty, EqualsAModelOfTheSameRecordsThatSharesNothing) {
  ForEachRandomModel(100, [](CZelData& model, Random&) {
    auto const rebuilt = Rebuilt(model);
    EXPECT_TRUE(IsUnchanged(rebuilt, model));
    EXPECT_TRUE(rebuilt == model);
    EXPECT_TRUE(Testing::AttachmentsFollowTopology(rebuilt));
    EXPECT_EQ(rebuilt.Extents().Min(), model.Extents().Min());
    EXPECT_EQ(rebuilt.Extents().Max(), model.Extents().Max());
  });
}

TEST(ModelProperty, DiffersFromItsSnapshotByWhatChanged) {
  ForEachRandomModel(100, [](CZelData& model, Random& random) {
    auto const full = Rebuilt(model);
    auto const snapshot = model.Snapshot();
    for (int i = random.Int(1, 20); i > 0; --i) Change(model, random);
    EXPECT_TRUE(IsUnchanged(*snapshot, full));
    auto lines = Testing::Differences(model, *snapshot);
    for (auto& line : lines) line.resize(line.find(':'));
    EXPECT_EQ(lines, PlainDifference(model, full));
    EXPECT_EQ(model == *snapshot, lines.empty());
    model = *snapshot;
    EXPECT_TRUE(model == full);
    EXPECT_TRUE(Testing::AttachmentsFollowTopology(model));
  });
}

TEST(ModelProperty, HasExtentsOfAllItsNodes) {
  ForEachRandomModel(50, [](CZelData& model, Random& random) {
    for (int i = 0; i < 10; ++i) {
      Change(model, random);
      if (i == 5) model.rebuildHold = true;
      Util::CBox3D box;
      for (auto const& [n, node] : model.Node()) box.AddPoint(node.Position());
      EXPECT_EQ(model.Extents().Min(), box.Min());
      EXPECT_EQ(model.Extents().Max(), box.Max());
    }
  });
}

TEST(ModelProperty, HasOrthonormalFramesAndNormalsAlongTheirZ) {
  ForEachRandomModel(100, [](CZelData& model, Random&) {
    for (int n = 1; n <= model.HighestElem(); ++n) {
      auto const frame = model.ElemDC(n);
      auto const x = frame.AxisVec(Direction::X);
      auto const y = frame.AxisVec(Direction::Y);
      auto const z = frame.AxisVec(Direction::Z);
      EXPECT_NEAR(Length(x), 1, 1e-12);
      EXPECT_NEAR(Dot(x, y), 0, 1e-12);
      EXPECT_TRUE(Testing::IsNear(z, Cross(x, y)));
      auto const normal = model.Normal(n);
      EXPECT_TRUE(normal == Vec3<double>() || Testing::IsNear(normal, z)) << n;
    }
  });
}

TEST(ModelProperty, HasEndsAsFarApartAsTheLengthOfTheLine) {
  ForEachRandomModel(100, [](CZelData& model, Random&) {
    for (auto const& [n, element] : model.Elem()) {
      if (!element.Is1D()) continue;
      int const e = static_cast<int>(n);
      for (auto const at : {EntAt::Ends, EntAt::Nodes})
        EXPECT_NEAR(Length(model.Coor(e, 1, at) - model.Coor(e, 0, at)), model.ElemLen(e, at),
                    1e-9);
    }
  });
}

}  // namespace
}  // namespace Tarvex::ZelDataPropertyTest
