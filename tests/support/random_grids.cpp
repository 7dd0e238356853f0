#include "tests/support/random_grids.h"

#include "store/record/alignment.h"
#include "store/record/assembly.h"
#include "store/record/axis.h"
#include "store/record/block.h"
#include "store/record/grid_line.h"
#include "store/record/grid_plane.h"
#include "store/record/grid_surface.h"
#include "store/record/node.h"
#include "store/record/polyline.h"
#include "store/record/views.h"
#include "tests/support/plain_list.h"

namespace Tarvex::Testing {
namespace {

using Data::CEntList;

constexpr int kFieldShare = 30;  // per cent of records that have a given field changed

/// Adds to one model. Where several numbers are drawn for one call they stand in braces or in
/// statements of their own, which fix their order.
class GridMaker {
 public:
  GridMaker(CZelData& model, Random& random) : m_model(model), m_random(random) {}

  void AddAll() {
    ForNumbers(4, [&](int n) { m_model.SetGridPlane(n, Plane()); });
    ForNumbers(3, [&](int n) { m_model.SetGridSurface(n, Surface(), m_random.Percent(50)); });
    ForNumbers(3, [&](int n) { m_model.SetGridLine(n, Line()); });
    ForNumbers(2, [&](int n) { m_model.SetPolyline(n, Polyline()); });
    ForNumbers(2, [&](int n) { m_model.SetAlignment(n, Alignment()); });
    ForNumbers(2, [&](int n) { m_model.SetBlock(n, Block()); });
    ForNumbers(2, [&](int n) { m_model.SetAssembly(n, Assembly()); });
    ForNumbers(2, [&](int n) { m_model.SetGrView(n, GraphicView()); });
    ForNumbers(2, [&](int n) { m_model.SetOpView(n, OutputView()); });
    auto spec = m_model.Spec();
    if (Changed()) spec.SetConsGridRef(Existing(m_model.GridPlane()));
    m_model.SetSpec(spec);
  }

 private:
  /// Calls store(n) for one up to so many numbers, in no order and with holes.
  template <class Store>
  void ForNumbers(int most, Store&& store) {
    for (int const n : m_random.Numbers(m_random.Int(1, most))) store(n);
  }
  bool Changed() { return Changes(m_random); }
  template <class Table>
  int Existing(Table const& table) {
    std::vector<int> numbers;
    for (auto const& [n, record] : table) numbers.push_back(static_cast<int>(n));
    return m_random.Of(numbers);
  }
  template <class Table>
  int ExistingOrNone(Table const& table) {
    return Changed() ? Existing(table) : 0;
  }
  Vec2<double> PlanPoint() { return {m_random.Real(-20, 20), m_random.Real(-20, 20)}; }

  CEntList List(SelType kind) {
    ListForm form;
    form.words = {L"G", L"X", L"#", L"PB"};
    form.names = {L"roof"};
    auto const text = RandomListText(m_random, form, m_random.Int(1, 5));
    return {kind, CString(text)};
  }

  Data::CGridPlane Plane() {
    std::vector<double> const levels{0, 3.5, 7, -2.25};  // so that elevations are equal
    Data::CGridPlane plane(L"", ExistingOrNone(m_model.Axis()), m_random.Of(levels),
                           m_random.Percent(60));
    FillNamed(plane, m_random);
    return plane;
  }

  Data::CGridSurface Surface() {
    Data::CGridSurface surface;
    FillNamed(surface, m_random);
    surface.SetPlane(Existing(m_model.GridPlane()));
    if (Changed()) surface.SetElements(List(SelElement));
    if (Changed()) surface.SetElementType(GridElementType::Plates);
    return surface;
  }

  Data::CGridLine Line() {
    auto const start = PlanPoint();
    double const length = m_random.Real(1, 50);
    double const angle = m_random.Real(-180, 180);
    Data::CGridLine line(L"", start, length, angle, Changed() ? m_random.Real(-90, 90) : 0);
    FillNamed(line, m_random);
    return line;
  }

  Data::CPolyline Polyline() {
    Data::CPolyline polyline;
    FillNamed(polyline, m_random);
    polyline.SetPlane(ExistingOrNone(m_model.GridPlane()));
    std::vector<Vec2<double>> points;
    for (int i = m_random.Int(0, 5); i > 0; --i) points.push_back(PlanPoint());
    polyline.SetPoints(points);
    return polyline;
  }

  Data::CAlignment Alignment() {
    std::vector<Data::AlignmentItem> items;
    double chainage = m_random.Real(-10, 10);
    for (int i = m_random.Int(0, 4); i > 0; --i) {
      items.push_back({chainage, Changed() ? 0 : m_random.Real(-0.1, 0.1)});
      chainage += m_random.Real(1, 30);
    }
    Data::CAlignment alignment(L"", ExistingOrNone(m_model.GridSurface()), items);
    FillNamed(alignment, m_random);
    return alignment;
  }

  Data::CBlock Block() {
    std::vector<int> members;
    for (int i = m_random.Int(0, 3); i > 0; --i) members.push_back(m_random.Int(1, 20));
    std::vector<Data::ReplicaStep> steps;
    for (int i = m_random.Int(0, 3); i > 0; --i) {
      int const count = m_random.Int(0, 3);
      auto const plan = PlanPoint();
      steps.push_back({count, {plan.x, plan.y, m_random.Real(-5, 5)}});
    }
    Data::CBlock block(L"", members, Data::CReplica(steps));
    FillNamed(block, m_random);
    return block;
  }

  Data::CAssembly Assembly() {
    Data::CAssembly assembly;
    FillNamed(assembly, m_random);
    assembly.SetEntities(List(static_cast<SelType>(m_random.Int(SelNode, SelMember))));
    for (int i = 0; i < 3; ++i)
      if (!Changed()) assembly.SetTopo(i, Existing(m_model.Node()));
    if (Changed()) assembly.SetIntTopo(List(SelNode));
    if (Changed()) assembly.SetStorey(CEntList(SelNone, CString(L"1 2")));
    if (Changed()) assembly.definition = Data::CAssembly::kByStoreys;
    if (Changed()) assembly.SetSpacing(m_random.Real(0.1, 2));
    if (Changed()) assembly.cutSpacing = m_random.Real(0.1, 2);
    return assembly;
  }

  template <class View>
  void FillView(View& view) {
    FillNamed(view, m_random);
    if (Changed()) view.SetNodes(List(SelNode));
    if (Changed()) view.SetElements(List(SelElement));
    if (Changed()) view.SetMembers(List(SelMember));
  }

  Data::CGrView GraphicView() {
    Data::CGrView view;
    FillView(view);
    if (Changed()) view.SetHiLiteElements(List(SelElement));
    if (Changed()) view.SetHiLiteMembers(List(SelMember));
    Data::CGrData data;
    for (int i = m_random.Int(0, 2); i > 0; --i) {
      data.SetAxis(ExistingOrNone(m_model.Axis()));
      view.SetGrData(view.NumGrData(), data);
    }
    return view;
  }

  Data::COpView OutputView() {
    Data::COpView view;
    FillView(view);
    view.SetAxis(ExistingOrNone(m_model.Axis()));
    Data::COpData data;
    for (int i = m_random.Int(0, 2); i > 0; --i) {
      data.SetAxis(ExistingOrNone(m_model.Axis()));
      view.SetOpData(view.NumOpData(), data);
    }
    return view;
  }

  CZelData& m_model;
  Random& m_random;
};

}  // namespace

CString RandomText(Random& random) {
  std::vector<CString> const texts{L"Stütze Süd",   L"梁 4", L"\U0001D6FC-Träger",
                                   L"beam \"B\"\\", L"x",    L"Ebene +3,50"};
  CString number;
  number.Format(L" %i", random.Int(1, 99));
  return random.Of(texts) + number;
}

bool Changes(Random& random) { return random.Percent(kFieldShare); }

void FillNamed(NamedEntity& record, Random& random) {
  if (Changes(random)) record.SetName(RandomText(random));
  if (Changes(random)) record.SetSid(RandomText(random));
  if (Changes(random)) record.SetColour(static_cast<unsigned long>(random.Int(1, 0xFFFFFF)));
}

void AddRandomGrids(CZelData& model, Random& random) { GridMaker(model, random).AddAll(); }

}  // namespace Tarvex::Testing
