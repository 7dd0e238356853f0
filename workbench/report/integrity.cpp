#include "workbench/report/integrity.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <ranges>

#include "store/model/case_resolution.h"
#include "store/model/list_expansion.h"
#include "store/model/registry.h"
#include "store/model/saved_lists.h"
#include "store/record/constraint_eqn.h"
#include "store/record/joint.h"
#include "store/record/rigid.h"
#include "workbench/file/references.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

using Findings = std::vector<Finding>;

void AddDanglingReferences(CZelData const& model, Findings& findings) {
  for (auto& found : FindDanglingReferences(model))
    findings.push_back({"dangling-reference", std::move(found.table), found.number,
                        std::move(found.field), found.index, found.value, std::move(found.target)});
}

/// The nodes of a topology other than 0 that stood in it before, and how many are left.
int AddRepeatedNodes(std::string_view table, int number, Data::TopoVector const& nodes,
                     Findings& findings) {
  int count = 0;
  for (auto node = nodes.begin(); node != nodes.end(); ++node) {
    if (*node == 0) continue;
    ++count;
    if (std::find(nodes.begin(), node, *node) != node)
      findings.push_back({"repeated-node", std::string(table), number, "topology",
                          static_cast<int>(node - nodes.begin()), *node, ""});
  }
  return count;
}

/// @param wanted how many nodes there should be, in words; empty where there are as many
void CheckTopology(std::string_view table, int number, Data::TopoVector const& nodes,
                   std::string const& wanted, Findings& findings) {
  int const count = AddRepeatedNodes(table, number, nodes, findings);
  auto const places = nodes.size();
  bool const full = count == static_cast<int>(places);
  if (wanted.empty() && full) return;
  auto reason = full ? Counted(places, "node")
                     : std::to_string(count) + " of " + Counted(places, "place") + " with a node";
  if (!wanted.empty()) reason += ", " + wanted;
  findings.push_back(
      {"wrong-topology-count", std::string(table), number, "topology", -1, count, "", reason});
}

void CheckTopologies(CZelData const& model, Findings& findings) {
  for (auto const& [n, element] : model.Elem()) {
    auto const& shape = element.Shape();
    bool const right = shape.dimension == 0 || element.NumTopo() == shape.nodes;
    auto const wanted = right ? std::string()
                              : "type " + std::to_string(static_cast<int>(element.Type())) +
                                    " has " + std::to_string(shape.nodes);
    CheckTopology("Elem", static_cast<int>(n), element.Topology(), wanted, findings);
  }
  constexpr int kLeastCorners = 3;
  for (auto const& [n, panel] : model.LoadPanels())
    CheckTopology("LoadPanel", static_cast<int>(n), panel.Topology(),
                  panel.NumTopo() >= kLeastCorners ? "" : "a panel has 3 at least", findings);
}

/// Calls visit(path, index) for each number of a value that is not finite.
template <class T, class Visit>
void ForEachNotFinite(T const& value, std::string const& path, int index, Visit&& visit) {
  if constexpr (std::is_floating_point_v<T>) {
    if (!std::isfinite(value)) visit(path, index);
  } else if constexpr (std::is_same_v<T, Vec2<double>>) {
    ForEachNotFinite(std::array{value.x, value.y}, path, index, visit);
  } else if constexpr (std::is_same_v<T, Vec3<double>>) {
    ForEachNotFinite(std::array{value.x, value.y, value.z}, path, index, visit);
  } else if constexpr (Described<T>) {
    ForEachField<T>([&](auto const& row) {
      ForEachNotFinite(value.*row.member, path + "." + std::string(row.name), index, visit);
    });
  } else if constexpr (std::is_same_v<T, Data::ConnectList>) {
    for (int i = 0; i < value.Size(); ++i) ForEachNotFinite(value.At(i), path, i, visit);
  } else if constexpr (std::ranges::range<T> && !std::is_same_v<T, CString>) {
    for (int i = 0; auto const& item : value) ForEachNotFinite(item, path, i++, visit);
  }
}

template <class Record>
void CheckNumbers(std::string_view table, int number, Record const& record, Findings& findings) {
  ForEachField<Record>([&](auto const& row) {
    ForEachNotFinite(
        record.*row.member, std::string(row.name), -1, [&](std::string const& path, int index) {
          findings.push_back(
              {"dimension-not-finite", std::string(table), number, path, index, std::nullopt, ""});
        });
  });
}

void CheckAllNumbers(CZelData const& model, Findings& findings) {
  ForEachOneOff([&](auto const& row) { CheckNumbers(row.stem, 0, (model.*row.get)(), findings); });
  ForEachTable([&](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    ForEachRecord((model.*row.all)(), [&](int n, Record const& record) {
      RecordClasses<Record>::Take(
          record, [&](auto const& object) { CheckNumbers(row.stem, n, object, findings); });
    });
  });
}

/// Joints, equations and rigid constraints that hold a node by nothing but itself.
void CheckConstraints(CZelData const& model, Findings& findings) {
  auto const add = [&](char const* table, int n, char const* field, int index, int node) {
    findings.push_back({"self-constraint", table, n, field, index, node, ""});
  };
  for (int n = 1; n <= model.HighestJoint(); ++n) {
    auto const& joint = model.Joint(n);
    if (int const node = joint.PrimaryNode(); node != 0 && node == joint.ConstrainedNode())
      add("Joint", n, "constrainedNode", -1, node);
  }
  for (int n = 1; n <= model.HighestConstraintEqn(); ++n) {
    auto const& equation = model.ConstraintEqn(n);
    int const node = equation.ConstrainedNode();
    for (int i = 0; i < equation.NumTerm(); ++i)
      if (node != 0 && node == equation.PrimaryNode(i) && equation.Dir() == equation.Dir(i))
        add("ConstraintEqn", n, "terms", i, node);
  }
  for (int n = 1; n <= model.HighestRigid(); ++n) {
    int const node = model.Rigid(n).PrimaryNode();
    auto const held = Util::MakeSet(model.Rigid(n).ConstrainedNodes(), model);
    if (held.NumItem() == 1 && held.IsItemIncluded(node))
      add("Rigid", n, "constrainedNodes", -1, node);
  }
}

void CheckLists(CZelData const& model, Findings& findings) {
  for (int const n : ListsThatReachThemselves(model))
    findings.push_back({"list-reaches-itself", "List", n, "text", -1, std::nullopt, ""});
}

/// "character 5: expected a case".
template <class Fault>
std::string PlaceAndReason(Fault const& fault) {
  return "character " + std::to_string(fault.position + 1) + ": " + fault.reason.ToUtf8();
}

void CheckDescription(std::string_view table, int number, std::string_view field,
                      Data::CaseText const& description, Findings& findings) {
  Data::CaseFault fault;
  if (!Data::ReadCases(description.Text(), &fault))
    findings.push_back({"description-not-readable", std::string(table), number, std::string(field),
                        -1, fault.position, "", PlaceAndReason(fault)});
  int index = 0;
  for (int at = description.Text().Find(Data::kDeletedCase); at >= 0;
       at = description.Text().Find(Data::kDeletedCase, at + 1))
    findings.push_back({"deleted-case", std::string(table), number, std::string(field), index++,
                        std::nullopt, ""});
}

void CheckSections(CZelData const& model, Findings& findings) {
  for (auto const& [n, section] : model.Section())
    for (int i = 0; i < section.NumComponent(); ++i) {
      Data::SectionFault fault;
      if (Data::ReadSection(section.Component(i).Description(), &fault)) continue;
      findings.push_back({"description-not-readable", "Section", static_cast<int>(n),
                          "components.description", i, fault.position, "", PlaceAndReason(fault)});
    }
}

void CheckDescriptions(CZelData const& model, Findings& findings) {
  ForEachTable([&](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    ForEachRecord((model.*row.all)(), [&](int n, Record const& record) {
      RecordClasses<Record>::Take(record, [&]<class Class>(Class const& object) {
        ForEachField<Class>([&](auto const& field) {
          using Value = typename std::remove_cvref_t<decltype(field)>::Value;
          if constexpr (std::derived_from<Value, Data::CaseText>)
            CheckDescription(row.stem, n, field.name, object.*field.member, findings);
        });
      });
    });
  });
  for (int const n : Data::CombinationsThatReachThemselves(model))
    findings.push_back(
        {"combination-reaches-itself", "CombinationCase", n, "description", -1, std::nullopt, ""});
}

/// What a code says in words, where that is the same for each finding.
std::string_view WordsOfCode(std::string_view code) {
  struct Row {
    std::string_view code;
    std::string_view words;
  };
  constexpr std::array kRows{
      Row{"dimension-not-finite", "it is not finite"},
      Row{"list-reaches-itself", "it leads back to itself, and selects nothing"},
      Row{"deleted-case", "it names a case that was deleted"},
      Row{"combination-reaches-itself", "it leads back to itself, and has no factors"}};
  auto const found =
      std::find_if(kRows.begin(), kRows.end(), [&](Row const& row) { return row.code == code; });
  return found == kRows.end() ? std::string_view() : found->words;
}

std::string FindingWords(Finding const& finding) {
  auto const value = std::to_string(finding.value.value_or(0));
  if (!finding.target.empty()) return " names " + finding.target + " " + value;
  if (finding.code == "repeated-node") return ": node " + value + " a second time";
  if (finding.code == "self-constraint") return ": node " + value + " is held by itself";
  if (!finding.reason.empty()) return ": " + finding.reason;
  return ": " + std::string(WordsOfCode(finding.code));
}

}  // namespace

std::string FindingText(Finding const& finding) {
  auto text = finding.code + ": " + finding.table;
  if (finding.number != 0) text += " " + std::to_string(finding.number);
  text += " " + finding.field;
  if (finding.index >= 0) text += "/" + std::to_string(finding.index);
  return text + FindingWords(finding);
}

std::vector<Finding> FindFaults(CZelData const& model) {
  Findings findings;
  AddDanglingReferences(model, findings);
  CheckConstraints(model, findings);
  CheckLists(model, findings);
  CheckDescriptions(model, findings);
  CheckSections(model, findings);
  CheckTopologies(model, findings);
  CheckAllNumbers(model, findings);
  std::stable_sort(findings.begin(), findings.end(),
                   [](auto const& a, auto const& b) { return a.code < b.code; });
  return findings;
}

}  // namespace Tarvex::Workbench
