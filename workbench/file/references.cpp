#include "workbench/file/references.h"

#include <algorithm>
#include <array>
#include <ranges>

#include "store/model/registry.h"
#include "store/model/saved_lists.h"
#include "store/record/case_refs.h"
#include "store/select/case_tokens.h"
#include "store/select/list_grammar.h"
#include "store/select/list_scan.h"

namespace Tarvex::Workbench {
namespace {

using Visit = std::function<void(ReferenceSite const&)>;

/// The tables that a reference of a module may be met by; load panels count as elements. Storeys
/// count as a table too.
struct Target {
  std::string_view stem;  ///< of the first of them, empty when there is none
  std::function<bool(int)> exists = [](int) { return false; };
};

/// Looks targets up by module for one model.
class Targets {
 public:
  explicit Targets(CZelData const& model)
      : m_model(model),
        m_storeys{"Storey", [&model](int n) { return model.GridPlaneStorey(n) != 0; }},
        m_soilProfiles{"SoilProfile", [&model](int n) { return model.SoilProfileExist(n); }},
        m_spectra{"ResSpectrum", [&model](int n) { return model.ResSpectrumExist(n); }} {
    for (auto const& row : Modules()) {
      auto& target = m_targets[static_cast<std::size_t>(row.module)];
      target.stem = row.stem;
      target.exists = [&model, &row](int n) { return row.exist(model, n); };
    }
    m_targets[CModule::Elem].exists = [&model](int n) { return model.VariantElementExist(n); };
  }

  Target const& Of(CModule::ModuleId module) const {
    if (module == CModule::Storey) return m_storeys;
    if (module == CModule::SoilProfile) return m_soilProfiles;
    if (module == CModule::ResSpectrum) return m_spectra;
    auto const i = static_cast<std::size_t>(module);
    return i < m_targets.size() ? m_targets[i] : m_none;
  }
  /// The saved lists that lists of a kind may name.
  Target Lists(SelType kind) const {
    return {"List", [&table = m_model.List(), kind](int n) {
              return SavedLists(table, kind).Find(n) != nullptr;
            }};
  }

 private:
  static constexpr std::size_t kModules = 512;  // above every number of a table

  CZelData const& m_model;
  std::array<Target, kModules> m_targets;
  Target m_storeys;
  Target m_soilProfiles;
  Target m_spectra;
  Target m_none;
};

/// Whether a word of lists takes a node whose co-ordinates it compares: X to YZ.
constexpr bool IsCoordinateWord(int token) {
  constexpr int kX = -34;
  constexpr int kYZ = -39;
  return token <= kX && token >= kYZ;
}

/// Completes a site, whose table, record and place in a list are known, and passes it on.
struct Emitter {
  Targets const& targets;
  Visit const& visit;
  ReferenceSite site;

  void Emit(int value, CModule::ModuleId module) { Emit(value, targets.Of(module)); }
  void Emit(int value, Target const& target) {
    site.value = value;
    site.target = target.stem;
    site.exists = value > 0 && target.exists(value);
    visit(site);
  }

  /// Emits the cases that a description names; the index counts them.
  void Emit(CString const& description) {
    site.inText = true;
    site.index = 0;
    for (auto const& ref : Data::CasesIn(description)) {
      Emit(ref.Case(), CaseModule(ref.CaseType()));
      ++site.index;
    }
    site.index = -1;
    site.inText = false;
  }

  /// Emits what the words of a list name. @param own the table of its numbers.
  void Emit(Data::CEntList const& list, CModule::ModuleId own) {
    Data::ListScanner scanner(Data::ListAccess::Text(list).Tokens());
    Data::ListElement element;
    site.inText = true;
    while (scanner.Next(element)) {
      site.index = static_cast<int>(element.begin);
      EmitElement(element, list.TypeOf(), own);
    }
    site.index = -1;
    site.inText = false;
  }

 private:
  void EmitElement(Data::ListElement const& element, SelType kind, CModule::ModuleId own) {
    using Item = Data::ListElement::Item;
    if (element.part != Data::ListElement::Part::Item) return;
    bool const number = element.item == Item::Numbers && !element.IsRange();
    if (number && element.first != Data::kHighest) EmitNumber(element.first, kind, own);
    if (element.item != Item::Word) return;
    if (Data::IsOwnNumberWord(element.token, kind)) Emit(element.first, own);
    if (IsCoordinateWord(element.token)) Emit(element.first, CModule::Node);
    if (element.token == Data::kSavedList) Emit(element.first, targets.Lists(kind));
  }

  void EmitNumber(int number, SelType kind, CModule::ModuleId own) {
    if (kind != SelCase) return Emit(number, own);
    auto const ref = Data::CaseOfToken(number);
    Emit(ref.Case(), CaseModule(ref.CaseType()));
  }
};

/// A reference field of a record, or of a field of it.
template <class Record>
struct ReferenceField {
  std::string name;
  std::function<void(Record const&, Emitter&)> visit;
};

/// Whether an item of a list names no record, but says how the list is meant.
template <class List, class Item>
bool IsWordOf(Item const& item) {
  if constexpr (std::is_same_v<List, Data::CTopoList>)
    return Data::CTopoList::IsWord(item);
  else
    return false;
}

/// Calls visit(item) for each item of a list, and meanwhile keeps its place in the site.
template <class List, class VisitItem>
void ForEachItem(List const& list, Emitter& emitter, VisitItem&& visit) {
  for (emitter.site.index = 0; auto const& item : list) {
    if (!IsWordOf<List>(item)) visit(item);
    ++emitter.site.index;
  }
  emitter.site.index = -1;
}

template <class Value, class Item>
concept RangeOf =
    std::ranges::range<Value> && std::same_as<std::ranges::range_value_t<Value>, Item>;

template <class Value>
concept RangeOfDescribed =
    std::ranges::range<Value> && Described<std::ranges::range_value_t<Value>>;

template <class Record>
std::vector<ReferenceField<Record>> const& ReferenceFields();

template <class Record, class Row>
void AddReferenceFields(std::vector<ReferenceField<Record>>& fields, Row const& row) {
  using Value = typename Row::Value;
  auto const add = [&](std::string const& name, auto const& visit) {
    fields.push_back({name, [row, visit](Record const& record, Emitter& emitter) {
                        visit(record.*row.member, record, emitter);
                      }});
  };
  std::string const name(row.name);
  if constexpr (std::is_same_v<Value, Data::CCaseDesc> ||
                std::is_same_v<Value, Data::CCombCaseDesc>) {
    add(name, [](Value const& description, Record const&, Emitter& emitter) {
      emitter.Emit(description.Text());
    });
  } else if constexpr (std::derived_from<Value, Data::CEntList>) {
    add(name, [row](Value const& list, Record const& record, Emitter& emitter) {
      emitter.Emit(list, row.target == nullptr ? EntModId(list.TypeOf()) : row.target(record));
    });
  } else if constexpr (std::is_same_v<Value, int>) {
    if (row.target == nullptr) return;
    add(name, [row](int value, Record const& record, Emitter& emitter) {
      emitter.Emit(value, row.target(record));
    });
  } else if constexpr (RangeOf<Value, int>) {
    if (row.target == nullptr) return;
    add(name, [row](Value const& list, Record const& record, Emitter& emitter) {
      ForEachItem(list, emitter, [&](int value) { emitter.Emit(value, row.target(record)); });
    });
  } else if constexpr (std::is_same_v<Value, Data::ChildLists>) {
    add(name, [row](Value const& lists, Record const& record, Emitter& emitter) {
      emitter.site.index = 0;
      for (auto const& children : lists)
        for (int const number : children.elements) {
          emitter.Emit(number, row.target(record));
          ++emitter.site.index;
        }
      emitter.site.index = -1;
    });
  } else if constexpr (RangeOfDescribed<Value>) {
    for (auto const& inner : ReferenceFields<std::ranges::range_value_t<Value>>())
      add(name + "." + inner.name, [&inner](Value const& list, Record const&, Emitter& emitter) {
        ForEachItem(list, emitter, [&](auto const& item) { inner.visit(item, emitter); });
      });
  } else if constexpr (Described<Value>) {
    for (auto const& inner : ReferenceFields<Value>())
      add(name + "." + inner.name, [&inner](Value const& value, Record const&, Emitter& emitter) {
        inner.visit(value, emitter);
      });
  }
}

/// The reference fields of a type, those of its fields included.
template <class Record>
std::vector<ReferenceField<Record>> const& ReferenceFields() {
  static auto const kFields = [] {
    std::vector<ReferenceField<Record>> fields;
    ForEachField<Record>([&](auto const& row) { AddReferenceFields(fields, row); });
    return fields;
  }();
  return kFields;
}

/// A saved list is a record that names others itself.
void VisitRecord(Data::CEntList const& list, int number, Emitter& emitter) {
  emitter.site.number = number;
  emitter.site.field = "text";
  emitter.Emit(list, EntModId(list.TypeOf()));
}

template <class Record>
void VisitRecord(Record const& record, int number, Emitter& emitter) {
  emitter.site.number = number;
  for (auto const& field : ReferenceFields<Record>()) {
    emitter.site.field = field.name;
    field.visit(record, emitter);
  }
}

}  // namespace

void ForEachReference(CZelData const& model, Visit const& visit) {
  Targets const targets(model);
  Emitter emitter{targets, visit, {}};
  ForEachOneOff([&](auto const& row) {
    emitter.site.table = row.stem;
    VisitRecord((model.*row.get)(), 0, emitter);
  });
  ForEachTable([&](auto const& row) {
    emitter.site.table = row.stem;
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    ForEachRecord((model.*row.all)(), [&](int number, Record const& record) {
      RecordClasses<Record>::Take(
          record, [&](auto const& object) { VisitRecord(object, number, emitter); });
    });
  });
}

std::vector<DanglingReference> FindDanglingReferences(CZelData const& model) {
  std::vector<DanglingReference> found;
  ForEachReference(model, [&](ReferenceSite const& site) {
    if (site.value == 0 || site.exists || site.target.empty()) return;
    found.push_back({std::string(site.table), site.number, std::string(site.field), site.index,
                     site.value, std::string(site.target)});
  });
  return found;
}

}  // namespace Tarvex::Workbench
