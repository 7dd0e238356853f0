// Small models in few words.
//
// What is added to a model takes the next free number and has group 1 and no property. Builders
// that add one thing return its number.
#pragma once

#include <vector>

#include "store/model/zel_data.h"
#include "store/record/member_type.h"

namespace Tarvex::Testing {

using Points = std::vector<Vec3<double>>;

/// A record, in no model yet, of the given type and topology.
Data::CElement Element(ElementType type, std::vector<int> const& nodes);
/// A load panel, in no model yet, of the given topology.
Data::LoadPanel Panel(std::vector<int> const& nodes);

/// Adds a node at a point.
int NodeAt(CZelData& model, double x, double y, double z);
/// Adds new nodes at the points and an element on them.
int ElementAt(CZelData& model, ElementType type, Points const& points);
/// Adds new nodes at two points and a beam between them.
int BeamAt(CZelData& model, Vec3<double> const& a, Vec3<double> const& b);
/// Adds new nodes at four points and a 4-noded quadrilateral on them.
int QuadAt(CZelData& model, Vec3<double> const& a, Vec3<double> const& b, Vec3<double> const& c,
           Vec3<double> const& d);
/// Adds new nodes at the points and a load panel on them.
int PanelAt(CZelData& model, Points const& points);

/// Adds a member of a topology text and returns its number.
int MemberAt(CZelData& model, MembType type, wchar_t const* topology);

/// A plate of 4-noded quadrilaterals in the plane z = 0: columns by rows squares of unit size.
/// Nodes and elements are numbered from 1 along x, then y; normals point upward.
void Grid(CZelData& model, int columns, int rows);

/// A plane frame of beams in the plane y = 0: bays of 6 along x, storeys of 3 along z. Nodes are
/// numbered from 1 along x, then z; columns, from below, come before beams in the numbers.
void Frame(CZelData& model, int bays, int storeys);

/// Adds an 8-noded brick on new nodes: the box from the origin to (x, y, z), near face below.
int Brick(CZelData& model, double x, double y, double z);

}  // namespace Tarvex::Testing
