// What there is to draw of a model, in space, before anyone looks at it.
#pragma once

#include <vector>

#include "store/model/zel_data.h"
#include "store/select/set.h"

namespace Tarvex::Workbench {

/// What a thing is, in the order in which things at one place cover each other: the last is on top.
enum class ThingKind {
  SolidFace,
  Plate,
  Panel,
  MemberOutline,
  MemberBody,  ///< of a 1D member, but for its last part
  Member,
  Line,
  Support,
  Fixed,
};

/// Whether things of a kind are closed areas with two sides.
inline bool IsFace(ThingKind kind) { return kind <= ThingKind::Panel; }
/// Whether things of a kind are single points.
inline bool IsSpot(ThingKind kind) { return kind >= ThingKind::Support; }

/// One thing to draw: a face, a line from its first to its last point, or a spot.
struct Thing {
  ThingKind kind = ThingKind::Line;
  std::vector<Vec3<double>> points;  ///< of a face the outline, without the first point again
  std::vector<int> nodes;            ///< those that it shares with its neighbours
};

/// A number to write beside a point.
struct NumberMark {
  int number = 0;
  Vec3<double> at;
  std::vector<int> nodes;  ///< of what it numbers
};

/// What a picture shows numbers of.
enum class NumbersOf { None, Nodes, Elements, Members };

/// What of a model a picture shows.
struct SceneRequest {
  Util::CSet elements{SelElement};
  Util::CSet members{SelMember};
  /// Whether nodes that nothing shown uses belong to it, too.
  bool allNodes = false;
  NumbersOf numbers = NumbersOf::None;
};

/// How many of each are shown.
struct SceneCounts {
  std::size_t lines = 0;
  std::size_t plates = 0;
  std::size_t solids = 0;
  std::size_t panels = 0;
  std::size_t members = 0;
  std::size_t supports = 0;
  std::size_t left = 0;  ///< elements and members without a shape, or without one of their nodes

  std::size_t Elements() const { return lines + plates + solids + panels; }
  bool IsEmpty() const { return Elements() + members + supports == 0; }
};

struct Scene {
  std::vector<Thing> things;
  std::vector<NumberMark> numbers;
  SceneCounts counts;
};

/// Gathers what a request shows; straight lines of members are parted at the nodes of elements.
/// Entities stand at their nodes: offsets are left aside. Of solids
/// the faces that two of them share are left out. A quadratic plate has its mid-side nodes in its
/// outline.
Scene MakeScene(CZelData const& model, SceneRequest const& request);

}  // namespace Tarvex::Workbench
