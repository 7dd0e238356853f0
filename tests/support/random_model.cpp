#include "tests/support/random_model.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "store/record/axis.h"
#include "store/record/ent_list.h"
#include "store/record/node.h"
#include "tests/support/plain_list.h"
#include "tests/support/random_cases.h"
#include "tests/support/random_grids.h"
#include "tests/support/random_loads.h"
#include "tests/support/random_members.h"
#include "tests/support/random_properties.h"

namespace Tarvex::Testing {
namespace {

using Data::CElement;

std::vector<ElementType> const kLines{ElementType::Bar,    ElementType::Beam,   ElementType::Spring,
                                      ElementType::Link,   ElementType::Cable,  ElementType::Spacer,
                                      ElementType::Line20, ElementType::Line21, ElementType::Line23,
                                      ElementType::Damper};
std::vector<int> const kShapeless{4, 11, 13, 15, 17, 18, 22, 25};

/// Corners of the solids in a unit cell; the first of a shape decide how many there are.
std::vector<std::pair<ElementType, std::vector<Vec3<double>>>> const kSolids{
    {ElementType::Brick8,
     {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 1, 1}}},
    {ElementType::Wedge6, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 0, 1}, {0, 1, 1}}},
    {ElementType::Tetra4, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {ElementType::Pyramid5, {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {0.5, 0.5, 1}}}};

/// How the cells of a patch become entities.
enum class Cells { Quads, Triangles, Panels, Mixed };

/// Makes one model. Nodes and entities are gathered in lists first and numbered at the end. Where
/// several numbers are drawn for one call they stand in braces, which fix their order.
class Maker {
 public:
  explicit Maker(std::uint32_t seed) : m_random(seed) {}

  CZelData Make() {
    for (int i = m_random.Int(1, 3); i > 0; --i) AddPatch();
    for (int i = m_random.Int(3, 12); i > 0; --i) AddLine();
    for (auto const& [type, corners] : kSolids) AddSolid(type, corners);
    for (int i = m_random.Int(0, 3); i > 0; --i) AddShapeless();
    AddPolygonPanel();
    StoreAxes();
    StoreNodes();
    StoreEntities();
    AddRandomMembers(m_model, m_random);
    StoreLists();
    StoreOneOffs();
    AddRandomGrids(m_model, m_random);
    AddRandomLoads(m_model, m_random);
    AddRandomProperties(m_model, m_random);
    AddRandomCases(m_model, m_random);
    return m_model;
  }

 private:
  // Geometry. A node is a place in m_points here.

  int AddPoint(Vec3<double> const& p) {
    m_points.push_back(p);
    return static_cast<int>(m_points.size()) - 1;
  }
  int AnyPoint() { return m_random.Int(0, static_cast<int>(m_points.size()) - 1); }
  Vec3<double> const& PointAt(int i) const { return m_points[static_cast<std::size_t>(i)]; }
  Vec3<double> AnyVector(double size) {
    return {m_random.Real(-size, size), m_random.Real(-size, size), m_random.Real(-size, size)};
  }

  void AddElement(ElementType type, std::vector<int> const& nodes) {
    CElement element(1, type, 1);
    element.SetTopo(nodes);
    m_elements.push_back(std::move(element));
  }
  void AddPanel(std::vector<int> const& nodes) {
    Data::LoadPanel panel;
    panel.SetTopology(nodes);
    m_panels.push_back(std::move(panel));
  }

  Util::CDirCos PatchFrame() {
    std::vector<Util::CDirCos> const frames{
        {}, {{1, 0, 0}, {0, 0, 1}}, {{0, 1, 0}, {0, 0, 1}}, {AnyVector(1), AnyVector(1)}};
    return m_random.Of(frames);
  }

  void AddPatch() {
    int const columns = m_random.Int(1, 4);
    int const rows = m_random.Int(1, 4);
    auto const frame = PatchFrame();
    auto const origin = AnyVector(20);
    double const warp = m_random.Percent(33) ? 0.05 : 0;
    std::vector<int> corner;
    for (int j = 0; j <= rows; ++j)
      for (int i = 0; i <= columns; ++i) {
        Vec3<double> const local{i * 1.0, j * 1.25, m_random.Real(-warp, warp)};
        corner.push_back(AddPoint(origin + frame.LtoG(local)));
      }
    m_quadratic = m_random.Percent(33);
    m_cells = static_cast<Cells>(m_random.Int(0, 3));
    for (int j = 0; j < rows; ++j)
      for (int i = 0; i < columns; ++i) {
        auto const at = static_cast<std::size_t>(j * (columns + 1) + i);
        auto const above = at + static_cast<std::size_t>(columns) + 1;
        AddCell({corner[at], corner[at + 1], corner[above + 1], corner[above]});
      }
  }

  void AddCell(std::vector<int> const& quad) {
    auto const cells = m_cells == Cells::Mixed ? static_cast<Cells>(m_random.Int(0, 2)) : m_cells;
    if (cells == Cells::Quads) {
      AddPlate(quad);
    } else if (cells == Cells::Triangles) {
      AddPlate({quad[0], quad[1], quad[2]});
      AddPlate({quad[0], quad[2], quad[3]});
    } else {
      AddPanel(Turned(quad));
    }
  }

  /// The corners from another one on, perhaps the other way about.
  std::vector<int> Turned(std::vector<int> corners) {
    auto const first = m_random.Int(0, static_cast<int>(corners.size()) - 1);
    std::rotate(corners.begin(), corners.begin() + first, corners.end());
    if (m_random.Percent(50)) std::reverse(corners.begin(), corners.end());
    return corners;
  }

  void AddPlate(std::vector<int> corners) {
    corners = Turned(corners);
    if (corners.size() == 4 && m_random.Percent(2)) corners[3] = corners[2];
    bool const quad = corners.size() == 4;
    if (!m_quadratic) return AddElement(quad ? ElementType::Quad4 : ElementType::Tri3, corners);
    auto nodes = corners;
    for (std::size_t i = 0; i < corners.size(); ++i)
      nodes.push_back(MidSide(corners[i], corners[(i + 1) % corners.size()]));
    AddElement(quad ? ElementType::Quad8 : ElementType::Tri6, nodes);
  }

  int MidSide(int a, int b) {
    auto const [at, isNew] = m_midSides.try_emplace(std::minmax(a, b), 0);
    if (isNew) at->second = AddPoint((PointAt(a) + PointAt(b)) * 0.5);
    return at->second;
  }

  void AddLine() {
    int const start = AnyPoint();
    int end = AnyPoint();
    if (m_random.Percent(25) || start == end)
      end = AddPoint(PointAt(start) + Vec3<double>{0, 0, m_random.Real(2, 5)});
    AddElement(m_random.Of(kLines), {start, end});
  }

  void AddSolid(ElementType type, std::vector<Vec3<double>> const& corners) {
    auto const origin = AnyVector(20);
    auto const frame = PatchFrame();
    std::vector<int> nodes;
    for (auto const& corner : corners) nodes.push_back(AddPoint(origin + frame.LtoG(corner)));
    AddElement(type, nodes);
  }

  void AddShapeless() {
    std::vector<int> nodes;
    for (int i = m_random.Int(1, 9); i > 0; --i) nodes.push_back(AnyPoint());
    AddElement(static_cast<ElementType>(m_random.Of(kShapeless)), nodes);
  }

  /// A panel that stands free, with five to seven corners on a circle.
  void AddPolygonPanel() {
    auto const origin = AnyVector(20);
    int const count = m_random.Int(5, 7);
    std::vector<int> nodes;
    for (int i = 0; i < count; ++i) {
      double const angle = 2 * kPi * i / count;
      nodes.push_back(AddPoint(origin + Vec3<double>{std::cos(angle), std::sin(angle), 0}));
    }
    AddPanel(Turned(nodes));
  }

  // Fields.

  bool Changes() { return Testing::Changes(m_random); }
  CString AnyText() { return RandomText(m_random); }
  void FillNamed(NamedEntity& record) { Testing::FillNamed(record, m_random); }

  /// What elements and panels have in common; nodes get their numbers.
  template <class Entity>
  void FillCommon(Entity& entity) {
    FillNamed(entity);
    auto nodes = entity.Topology();
    for (int& node : nodes) node = NodeNumber(node);
    entity.SetTopology(nodes);
    if (Changes()) entity.SetGroup(m_random.Int(2, 9));
    if (Changes()) entity.SetProperty(m_random.Int(2, 9));
    if (Changes()) entity.SetIsDummy(true);
    if (Changes()) entity.SetOrientationAngle(m_random.Real(-180, 180));
    if (Changes()) entity.SetParentMember({m_random.Int(1, 20), m_random.Int(0, 3)});
  }

  void FillElement(CElement& element) {
    FillCommon(element);
    if (element.Is1D() && Changes()) element.SetOrientationNode(NodeNumber(AnyPoint()));
    if (Changes()) element.SetOffset(AnyOffset(element.Is1D()));
    for (int i = 0; i < element.NumTopo(); ++i)
      if (m_random.Percent(15)) element.SetConnect(i, AnyConnect());
    if (!element.Is1D() || !Changes()) return;
    double const start = m_random.Real(0, 0.9);
    element.SetLongPosition(true, start);
    element.SetLongPosition(false, m_random.Real(start, 1));
  }

  Data::COffset AnyOffset(bool isLine) {
    if (!isLine) return {0, 0, 0, m_random.Real(-0.5, 0.5)};
    Data::COffset offset{m_random.Real(-0.1, 0.3), m_random.Real(-0.1, 0.3),
                         m_random.Real(-0.5, 0.5), m_random.Real(-0.5, 0.5)};
    for (int end = 0; end < 2; ++end) {
      if (Changes()) offset.SetAuto(end, AutoOffset::On);
      if (Changes()) offset.SetType(end, OffsetType::Derived);
    }
    return offset;
  }

  CElemConnect AnyConnect() {
    CElemConnect connect(m_random.Flags());
    for (auto d = Direction::X; d - Direction::X < 6; ++d)
      if (connect.Release().Get(d) && Changes()) connect.SetStiffness(d, m_random.Real(1, 1000));
    return connect;
  }

  // Numbers and tables.

  int NodeNumber(int point) const { return m_nodeNumbers[static_cast<std::size_t>(point)]; }

  void StoreAxes() {
    m_axisNumbers = m_random.Numbers(m_random.Int(1, 3));
    for (int const n : m_axisNumbers) {
      Data::CAxis axis{AnyText(), static_cast<AxisType>(m_random.Int(1, 3)), AnyVector(10),
                       AnyVector(1), AnyVector(1)};
      FillNamed(axis);
      m_model.SetAxis(n, axis);
    }
  }

  void StoreNodes() {
    m_nodeNumbers = m_random.Numbers(static_cast<int>(m_points.size()));
    for (std::size_t i = 0; i < m_points.size(); ++i) {
      Data::CNode node{m_points[i], Changes() ? m_random.Of(m_axisNumbers) : 0,
                       Changes() ? m_random.Flags() : Vbool6()};
      FillNamed(node);
      if (Changes()) node.SetSpringProperty(m_random.Int(1, 5));
      if (Changes()) node.SetMassProperty(m_random.Int(1, 5));
      if (Changes()) node.SetDamperProperty(m_random.Int(1, 5));
      if (Changes()) node.SetMeshSize(m_random.Real(0.1, 2));
      m_model.SetNode(m_nodeNumbers[i], node);
    }
  }

  void StoreEntities() {
    // The first of the panels stand above all elements.
    auto const above =
        std::min<std::size_t>(m_panels.size(), static_cast<std::size_t>(m_random.Int(1, 3)));
    int const between = static_cast<int>(m_elements.size() + m_panels.size() - above);
    auto numbers = m_random.Numbers(between);
    for (std::size_t i = 0; i < above; ++i) numbers.push_back(2 * between + 1 + m_random.Int(0, 2));
    for (auto& element : m_elements) {
      FillElement(element);
      m_model.SetElem(Taken(numbers, false), element);
    }
    for (auto& panel : m_panels) {
      FillCommon(panel);
      m_model.SetLoadPanel(Taken(numbers, true), panel);
    }
  }

  /// Takes a number from the front or the end; those at the end stand above all others.
  int Taken(std::vector<int>& numbers, bool fromEnd) {
    auto const at = fromEnd ? numbers.end() - 1 : numbers.begin();
    int n = *at;
    numbers.erase(at);
    while (m_model.VariantElementExist(n)) ++n;
    return n;
  }

  void StoreLists() {
    ListForm form;
    form.words = {L"#", L"#", L"#", L"N", L"E", L"P", L"PB", L"PA", L"PV", L"G", L"M", L"X", L"ZX"};
    form.names = {L"roof", L"Stütze Süd 7"};
    for (int const n : m_random.Numbers(m_random.Int(2, 5))) {
      auto const kind = static_cast<SelType>(m_random.Int(SelNone, SelCase));
      form.highest = m_random.Of<int>({10, 40, 100000000});
      CString const text = RandomListText(m_random, form, m_random.Int(0, 8));
      Data::CEntList list(AnyText(), kind, kind == SelCase ? L"L1 to L5 A2 or C3 T4" : text);
      FillNamed(list);
      if (m_random.Percent(50)) list.SetName(CString(m_random.Of(form.names)));
      m_model.SetList(n, list);
    }
  }

  void StoreOneOffs() {
    Data::CSpec spec;
    for (auto const type :
         {TolType::PointInElement, TolType::Vertical, TolType::AxisAngle, TolType::Coincidence})
      if (Changes()) spec.SetGenTol(type, m_random.Real(1e-4, 1e-2));
    Data::CUnit unit;
    if (Changes()) unit.SetConversion(Data::CUnit::kLength, m_random.Real(0.001, 1000));
    if (Changes()) unit.SetConversion(Data::CUnit::kAngle, 180 / kPi);
    spec.SetUnit(unit);
    m_model.SetSpec(spec);
    Data::CDefaults defaults;
    if (Changes()) defaults.SetAnalysisTaskName(AnyText());
    if (Changes()) defaults.SetAnalysisCaseName(AnyText());
    if (Changes()) defaults.SetCombinationCaseName(AnyText());
    m_model.SetDefaults(defaults);
  }

  Random m_random;
  CZelData m_model;
  std::vector<Vec3<double>> m_points;
  std::map<std::pair<int, int>, int> m_midSides;
  std::vector<CElement> m_elements;
  std::vector<Data::LoadPanel> m_panels;
  std::vector<int> m_nodeNumbers;
  std::vector<int> m_axisNumbers;
  bool m_quadratic = false;
  Cells m_cells = Cells::Quads;
};

}  // namespace

std::vector<int> Random::Numbers(int count) {
  std::vector<int> numbers;
  for (int n = 1; n <= 2 * count; ++n) numbers.push_back(n);
  Shuffle(numbers);
  numbers.resize(static_cast<std::size_t>(count));
  return numbers;
}

CZelData RandomModel(std::uint32_t seed) { return Maker(seed).Make(); }

}  // namespace Tarvex::Testing
