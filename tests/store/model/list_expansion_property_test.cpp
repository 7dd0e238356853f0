// Expansions against the plain evaluator through random changes of the model and of the lists.
#include <gtest/gtest.h>

#include <cmath>

#include "store/model/list_expansion.h"
#include "store/model/undo_step.h"
#include "store/model/zel_data.h"
#include "store/record/node.h"
#include "tests/support/builders.h"
#include "tests/support/plain_list.h"

namespace Tarvex::ListExpansionPropertyTest {
namespace {

using Data::CEntList;
using Testing::PlainModel;
using Testing::Random;
using Set = std::set<int>;

/// Plain answers to what lists ask of a model.
class Plain {
 public:
  Plain(CZelData const& model, SelType kind, bool panels = true)
      : m_model(model), m_kind(kind), m_panels(panels) {}

  Set Expand(CEntList const& list) const {
    PlainModel plain;
    plain.kind = m_kind;
    plain.existing = Existing(true);
    plain.word = [this](std::wstring const& word, int n) { return Word(word, n); };
    plain.named = [this](std::wstring const& name) { return Saved(Named(name)); };
    auto set = Testing::PlainExpansion(list.String().Str(), plain);
    if (!m_panels)
      std::erase_if(set, [&](int n) { return m_kind == SelElement && m_model.LoadPanelExist(n); });
    return set;
  }

 private:
  Set Existing(bool panels) const {
    Set set;
    for (int n = 1; n <= m_model.HighestEnt(m_kind); ++n)
      if (m_model.EntExist({m_kind, n}, panels)) set.insert(n);
    return set;
  }

  template <class Test>
  Set Where(Test&& test) const {
    Set set;
    for (int const n : Existing(true))
      if (test(n)) set.insert(n);
    return set;
  }

  Set Word(std::wstring const& word, int number) const {
    if (word == L"#") return Saved(number);
    if (word == L"G")
      return Where([&](int n) {
        return m_kind == SelElement && m_model.VariantElement(n)->Group() == number;
      });
    if (word == L"P" || word == L"PB" || word == L"PA")
      return Where([&](int n) { return HasProperty(word, number, n); });
    if (word == L"X" || word == L"YZ") return Where([&](int n) { return IsAt(word, number, n); });
    return {};
  }

  bool HasProperty(std::wstring const& word, int number, int n) const {
    if (m_kind == SelNode) {
      auto const& node = m_model.Node(n);
      return word == L"P" && (node.SpringProperty() == number || node.MassProperty() == number ||
                              node.DamperProperty() == number);
    }
    auto const entity = *m_model.VariantElement(n);
    if (entity.Property() != number) return false;
    if (entity.IsLoadPanel()) return word != L"PB";
    auto const table = m_model.Elem(n).Shape().property;
    if (word == L"PB") return table == CModule::Section;
    return word == L"P" ? table != CModule::None : table == CModule::Prop2D;
  }

  bool IsAt(std::wstring const& word, int node, int n) const {
    if (!m_model.NodeExist(node)) return false;
    auto const p = m_model.NodeCoor(node);
    int const count = m_model.EntNumTopo({m_kind, n});
    for (int i = 0; i < count; ++i) {
      int const at = m_model.EntTopo({m_kind, n}, i);
      if (!m_model.NodeExist(at)) return false;
      auto const q = m_model.NodeCoor(at);
      double const tolerance = m_model.Spec().GenTol();
      bool const x = std::abs(p.x - q.x) <= tolerance;
      bool const yz = std::abs(p.y - q.y) <= tolerance && std::abs(p.z - q.z) <= tolerance;
      if (word == L"X" ? !x : !yz) return false;
    }
    return count > 0;
  }

  int Named(std::wstring const& name) const {
    for (int n = 1; n <= m_model.HighestList(); ++n)
      if (IsSaved(n) && m_model.List(n).Name() == CString(name)) return n;
    return 0;
  }
  bool IsSaved(int n) const { return m_model.ListExist(n) && m_model.List(n).TypeOf() == m_kind; }

  /// The saved lists that one refers to.
  Set Referred(int n) const {
    Set set;
    auto const& list = m_model.List(n);
    int name = 0;
    for (int i = 0; i < list.NumWord(); ++i) {
      int to = 0;
      if (list.Word(i) == -11) to = Named(list.StringRef(name++).Str());
      if (list.Word(i) == -12 && i + 1 < list.NumWord()) to = list.Word(i + 1);
      if (IsSaved(to)) set.insert(to);
    }
    return set;
  }
  bool Reaches(int from, int to, Set& seen) const {
    for (int const next : Referred(from))
      if (next == to || (seen.insert(next).second && Reaches(next, to, seen))) return true;
    return false;
  }
  Set Saved(int n) const {
    Set seen;
    if (!IsSaved(n) || Reaches(n, n, seen)) return {};
    return Plain(m_model, m_kind).Expand(m_model.List(n));
  }

  CZelData const& m_model;
  SelType m_kind;
  bool m_panels;
};

Testing::ListForm const kForm{
    30, {L"#", L"#", L"P", L"PB", L"PA", L"G", L"X", L"YZ", L"N", L"E"}, {L"roof", L"wall"}};

CEntList RandomList(Random& random, SelType kind) {
  return {random.Of<CString>({L"roof", L"wall", L""}), kind,
          CString(Testing::RandomListText(random, kForm, random.Int(0, 6)))};
}

/// One random change of a model.
void Change(CZelData& model, Random& random) {
  int const n = random.Int(1, 30);
  int const draw = random.Int(1, 14);
  bool const exists = model.VariantElementExist(n);
  std::vector<int> const nodes{random.Int(1, 12), random.Int(1, 12), random.Int(1, 12)};
  if (draw == 1) model.SetElem(n, Testing::Element(ElementType::Tri3, nodes));
  if (draw == 2) model.SetElem(n, Testing::Element(ElementType::Beam, {nodes[0], nodes[1]}));
  if (draw == 3) model.SetLoadPanel(n, Testing::Panel(nodes));
  if (draw == 4) model.BlankVariantElement(n, random.Int(0, 2));
  if (draw == 5 && exists) model.SetElemProperty(n, random.Int(0, 3));
  if (draw == 6 && exists) model.SetElemGroup(n, random.Int(0, 3));
  if (draw == 7 && exists) model.SetElemTopo(n, 0, random.Int(1, 12));
  if (draw == 8) {
    Data::CNode node({random.Int(0, 2) * 1.0, random.Int(0, 1) * 1.0, 0}, 0, Vbool6());
    node.SetSpringProperty(random.Int(0, 3));
    model.SetNode(n, node);
  }
  if (draw == 9) model.BlankNode(n, 1);
  if (draw == 10 && model.NodeExist(n)) model.SetNodeCoor(n, {random.Int(0, 2) * 1.0, 0, 0});
  if (draw == 11)
    model.SetList(random.Int(1, 6), RandomList(random, random.Of<SelType>({SelNode, SelElement})));
  if (draw == 12) model.BlankList(random.Int(1, 6), 1);
  if (draw == 13) {
    auto spec = model.Spec();
    spec.SetGenTol(TolType::Coincidence, random.Of<double>({0.001, 1.5}));
    model.SetSpec(spec);
  }
  if (draw == 14) model.rebuildHold = !model.rebuildHold;
}

/// What stands beside a model for the time of a test: lists, some of them copies of others.
class Lists {
 public:
  explicit Lists(Random& random) : m_random(random) {
    for (int i = 0; i < 4; ++i) m_lists.push_back(RandomList(random, AnyKind()));
  }

  void Step() {
    auto& list = AnyList();
    int const draw = m_random.Int(1, 12);
    if (draw == 1) list = RandomList(m_random, AnyKind());
    if (draw == 2) list.AddTo(m_random.Int(1, 30));
    if (draw == 3) list.FlagRebuild();
    if (draw == 4) list.SetType(AnyKind());
    if (draw <= 6) return;
    AnyList() = CEntList(AnyList());
  }

  void Check(CZelData const& model) const {
    for (auto const& list : m_lists) {
      SCOPED_TRACE(list.String().ToUtf8());
      for (bool const panels : {true, false}) {
        auto const expected = Plain(model, list.TypeOf(), panels).Expand(list);
        auto const& item = Util::Item(list, model, -1, panels);
        ASSERT_EQ(Set(item.begin(), item.end()), expected);
        ASSERT_EQ(Util::NumItem(list, model, -1, panels), static_cast<int>(expected.size()));
        for (int i = 0; i < item.NumItem(); ++i) ASSERT_EQ(list.Item(i), item.Item(i));
        for (int n = 1; n <= 30; ++n)
          if (model.EntExist({list.TypeOf(), n}, true)) {
            ASSERT_EQ(Util::IsItemIncluded(list, {list.TypeOf(), n}, model, -1, panels),
                      expected.contains(n));
          }
      }
    }
  }

 private:
  SelType AnyKind() { return m_random.Of<SelType>({SelNode, SelElement, SelElement}); }
  CEntList& AnyList() {
    return m_lists[static_cast<std::size_t>(m_random.Int(0, static_cast<int>(m_lists.size()) - 1))];
  }

  Random& m_random;
  std::vector<CEntList> m_lists;
};

CZelData Start(Random& random) {
  CZelData model;
  for (int i = 0; i < 60; ++i) Change(model, random);
  return model;
}

TEST(ListExpansionProperty, StaysRightThroughChangesOfModelAndLists) {
  Random random(71);
  for (int i = 0; i < 60; ++i) {
    auto model = Start(random);
    Lists lists(random);
    for (int step = 0; step < 25; ++step) {
      if (random.Percent(70)) Change(model, random);
      if (random.Percent(60)) lists.Step();
      lists.Check(model);
      if (HasFailure()) return;
    }
  }
}

TEST(ListExpansionProperty, StaysRightInCopiesAndThroughUndo) {
  Random random(72);
  for (int i = 0; i < 40; ++i) {
    auto model = Start(random);
    Lists lists(random);
    auto const snapshot = model.Snapshot();
    lists.Check(*snapshot);
    for (int step = 0; step < 8; ++step) {
      CUndoStep undo(model);
      for (int k = 0; k < 3; ++k) {
        Change(model, random);
        lists.Check(model);
      }
      if (random.Percent(50)) undo.Accept();
    }
    lists.Check(model);
    while (model.Undo()) lists.Check(model);
    lists.Check(*snapshot);
    if (HasFailure()) return;
  }
}

TEST(ListExpansionProperty, OfSavedListsIsThatOfTheirText) {
  Testing::ForEachRandomModel(60, [](CZelData& model, Random&) {
    for (auto const& [n, list] : model.List()) {
      if (list.TypeOf() == SelNone || list.TypeOf() == SelCase) continue;
      CEntList byNumber(list.TypeOf(), L"");
      byNumber.SetTokens({Data::kSavedList, static_cast<int>(n)});
      EXPECT_EQ(Util::Item(byNumber, model, -1, true), Util::Item(list, model, -1, true));
      auto const copy = list;
      EXPECT_EQ(Util::Item(copy, model, -1, true), Util::Item(list, model, -1, true));
    }
  });
}

TEST(ListExpansionProperty, OfACompactTextIsTheSetItWasMadeOf) {
  Testing::ForEachRandomModel(60, [](CZelData& model, Random& random) {
    for (auto const kind : {SelNode, SelElement}) {
      auto const set = Util::MakeSet(RandomList(random, kind), model, true);
      CEntList list(kind, L"all");
      list.AssignFromSet(set);
      EXPECT_EQ(Util::MakeSet(list, model, true), set) << list.String().ToUtf8();
    }
  });
}

}  // namespace
}  // namespace Tarvex::ListExpansionPropertyTest
