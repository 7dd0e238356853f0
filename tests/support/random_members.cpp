#include "tests/support/random_members.h"

#include "store/record/member.h"
#include "store/record/node.h"

namespace Tarvex::Testing {
namespace {

using Data::CMember;

constexpr int kMemberFieldShare = 30;  // per cent of members that have a given field changed

class MemberMaker {
 public:
  MemberMaker(CZelData& model, Random& random) : m_model(model), m_random(random) {
    for (auto const& [n, node] : model.Node()) m_nodes.push_back(static_cast<int>(n));
    for (auto const& [n, element] : model.Elem()) m_elements.push_back(static_cast<int>(n));
    m_random.Shuffle(m_nodes);
  }

  void Make() {
    auto const numbers = m_random.Numbers(m_random.Int(5, 12));
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      CMember member(m_random.Int(1, 9), m_random.Int(1, 9));
      Shape(member, static_cast<int>(i % 6));
      Fill(member);
      m_model.SetMember(numbers[i], member);
    }
  }

 private:
  bool Changes() { return m_random.Percent(kMemberFieldShare); }

  /// Some nodes with one blank behind each, in the order of a shuffle, so that none repeats.
  CString Nodes(int count) {
    CString text;
    for (; count > 0; --count) {
      CString one;
      one.Format(L"%i ", m_nodes[m_next++ % m_nodes.size()]);
      text += one;
    }
    return text;
  }

  void Shape(CMember& member, int shape) {
    if (shape == 0) member.SetTopo(Nodes(2));
    if (shape == 1) member.SetTopo(Nodes(1) + L"arc " + Nodes(2));
    if (shape == 2) {
      member.SetTopo(Nodes(1) + L"about " + Nodes(1));
      member.SetOrientationNode(m_random.Of(m_nodes));
    }
    if (shape == 3)
      member.SetTopo(Nodes(m_random.Int(3, 6)) + L"hole(" + Nodes(3) + L") line(" + Nodes(2) +
                     L") points(" + Nodes(1) + L")");
    if (shape == 4) Tetrahedron(member);
    if (shape == 5) {
      member.SetType(static_cast<MembType>(m_random.Int(1, 3)));
      member.SetTopo(Nodes(m_random.Int(3, 5)));
    }
  }

  void Tetrahedron(CMember& member) {
    auto const strip = Nodes(4);
    auto const first = strip.Left(strip.Find(L" ", strip.Find(L" ") + 1));
    member.SetType(MembType::Solid);
    member.SetTopo(strip + first);
  }

  void Fill(CMember& member) {
    if (Changes()) member.SetName(L"Träger 7");
    if (Changes()) member.SetSid(L"m-7");
    if (Changes()) member.SetColour(0x102030);
    if (member.Is1D() && Changes() && member.OrientationNode() == 0)
      member.SetOrientationNode(m_random.Of(m_nodes));
    if (Changes()) member.SetOrientationAngle(m_random.Real(-180, 180));
    if (Changes()) member.SetOffset(AnyOffset());
    for (int end = 0; end < 2; ++end) {
      CElemConnect release(m_random.Flags());
      release.SetStiffness(Direction::YY, m_random.Real(1, 1000));
      if (Changes()) member.SetEndRelease(end, release);
      if (Changes()) member.SetEndRestraint(end, m_random.Flags());
    }
    if (Changes()) member.SetAnalysisType1D(ElementType::Bar);
    if (Changes()) member.SetAnalysisOrder(static_cast<Member::AnalysisOrder>(m_random.Int(1, 3)));
    if (Changes()) member.SetIsDummy(true);
    if (Changes()) member.SetReleaseEdges(true);
    for (int i = m_random.Int(0, 4); i > 0 && m_nextElement < m_elements.size(); --i)
      member.AddChildElement(m_elements[m_nextElement++], m_random.Int(0, 2));
  }

  Data::COffset AnyOffset() {
    Data::COffset offset{m_random.Real(-0.1, 0.3), m_random.Real(-0.1, 0.3),
                         m_random.Real(-0.5, 0.5), m_random.Real(-0.5, 0.5)};
    for (int end = 0; end < 2; ++end) {
      if (Changes()) offset.SetAuto(end, AutoOffset::On);
      if (Changes()) offset.SetType(end, OffsetType::Derived);
    }
    return offset;
  }

  CZelData& m_model;
  Random& m_random;
  std::vector<int> m_nodes;
  std::vector<int> m_elements;
  std::size_t m_next = 0;
  std::size_t m_nextElement = 0;
};

}  // namespace

void AddRandomMembers(CZelData& model, Random& random) { MemberMaker(model, random).Make(); }

}  // namespace Tarvex::Testing
