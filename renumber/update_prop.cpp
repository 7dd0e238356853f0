// Unused materials and properties removed, and holes in their numbers closed.
#include <algorithm>
#include <array>

#include "renumber/record_numbers.h"
#include "store/model/registry.h"
#include "tarvex/tidy.h"

namespace Tarvex {
namespace {

using Id = CModule::ModuleId;

// In the order in which records go.
constexpr std::array kTidiedTables{CModule::MatAnal,    CModule::MatSteel,     CModule::MatConcrete,
                                   CModule::MatFrp,     CModule::MatAluminium, CModule::MatGlass,
                                   CModule::MatTimber,  CModule::MatFabric,    CModule::MatRebar,
                                   CModule::Section,    CModule::Prop2D,       CModule::SpringProp,
                                   CModule::DamperProp, CModule::MassProp,     CModule::LinkProp,
                                   CModule::CableProp,  CModule::SpacerProp,   CModule::Prop3D};

/// The type that all 2D properties have in a kind of structure, nothing where it asks for none.
struct StructureRow {
  StrType structure;
  Data::PropertyType2d type;
};
constexpr std::array kStructureTypes{
    StructureRow{StrType::PlaneStress, Data::PropertyType2d::PlaneStress},
    StructureRow{StrType::PlaneStrain, Data::PropertyType2d::PlaneStrain},
    StructureRow{StrType::AxiSymmetric, Data::PropertyType2d::Axisymmetric}};

StructureRow const* FindStructure(StrType structure) {
  auto const* const row =
      std::find_if(kStructureTypes.begin(), kStructureTypes.end(),
                   [&](StructureRow const& r) { return r.structure == structure; });
  return row == kStructureTypes.end() ? nullptr : row;
}

/// Whether a type is for space alone: no plane strain and no axisymmetry.
bool IsOfSpace(Data::PropertyType2d type) {
  return type < Data::PropertyType2d::PlaneStrain || type >= Data::PropertyType2d::Fabric;
}

/// Calls use(row) for the table of a module.
template <class Use>
void ForTable(Id module, Use&& use) {
  Registry::kSparseTables.ForEach([&](auto const& row) {
    if (row.module == module) use(row);
  });
}

/// Gives what is made of materials their new numbers.
template <class NewNumber>
class MaterialTidier {
 public:
  explicit MaterialTidier(NewNumber const& newNumber) : m_newNumber(newNumber) {}

  void Tidy(Data::CSection& section) const {
    for (int i = 0; i < section.NumComponent(); ++i) {
      auto component = section.Component(i);
      TidyMade(component);
      section.SetComponent(i, component);
    }
  }
  void Tidy(Data::CProp2D& plate) const { TidyMade(plate); }
  void Tidy(Data::CProp3D& solid) const { TidyMade(solid); }
  template <class Other>
  void Tidy(Other&) const {}

 private:
  void TidyMade(Data::HasMaterial& made) const {
    if (made.MaterialAnalysis() > 0)
      made.SetMaterialAnalysis(m_newNumber(CModule::MatAnal, made.MaterialAnalysis()));
    auto const type = made.MaterialType();
    bool const known = type >= MatType::None && type <= MatType::Fabric;
    auto const grades = known ? MatModule(type) : CModule::None;
    if (grades != CModule::None && made.MaterialGrade() > 0)
      made.SetMaterialGrade(m_newNumber(grades, made.MaterialGrade()));
  }

  NewNumber const& m_newNumber;
};

}  // namespace

CUpdateProp::CUpdateProp(CZelData& model) : CIndexProp(model), m_live(model) {}
CUpdateProp::CUpdateProp(CUpdateProp const&) = default;
CUpdateProp::~CUpdateProp() = default;

bool CUpdateProp::Update(Opt option) {
  if (option == kBlankUnused) return BlankUnused();
  return option == kDeleteBlank && DeleteBlank();
}

bool CUpdateProp::BlankUnused() {
  if (!IndexUsed()) return false;
  for (auto const module : kTidiedTables) {
    if (module == CModule::Section && !m_noSection) continue;
    auto const& used = m_maps[module];
    auto numbers = RecordNumbers(m_live, module);
    std::erase_if(numbers, [&](int n) { return used.contains(n); });
    ForTable(module, [&](auto const& row) {
      for (int const n : numbers) (m_live.*row.remove)(n, 1);
    });
  }
  return true;
}

bool CUpdateProp::DeleteBlank() {
  if (!IndexDefined()) return false;
  auto const newNumber = [&](Id module, int n) { return UpdateRef(n, m_maps[module]); };
  MaterialTidier const materials(newNumber);
  for (auto const module : kTidiedTables)
    ForTable(module, [&](auto const& row) {
      int next = 0;
      for (auto& [n, number] : m_maps[module]) {
        auto copy = (m_live.*row.get)(n);
        materials.Tidy(copy);
        number = ++next;
        if (number != n || !(copy == (m_live.*row.get)(n)))
          (m_live.*row.set)(number, copy, SidMode::Keep);
      }
      (m_live.*row.remove)(next + 1, (m_live.*row.highest)() - next);
    });
  TidyRef();
  return true;
}

int CUpdateProp::UpdateRef(int n, NumberMap const& map) {
  auto const found = map.find(n);
  return found == map.end() ? 0 : found->second;
}

bool CUpdateProp::IsValidProperty(Data::PropertyType2d type, StrType structure) {
  if (auto const* const row = FindStructure(structure)) return type == row->type;
  if (structure == StrType::Space) return IsOfSpace(type);
  return structure == StrType::PlaneXZ || structure == StrType::GridXY;
}

bool CUpdateProp::Check2dProperties(CZelData const& model, StrType structure) {
  auto const& plates = model.Prop2D();
  return std::all_of(plates.begin(), plates.end(), [&](auto const& entry) {
    return IsValidProperty(entry.second.Type(), structure);
  });
}

void CUpdateProp::Update2dElementProperties(CZelData& model) {
  auto const structure = model.StructType();
  auto const* const row = FindStructure(structure);
  if (row == nullptr && structure != StrType::Space) return;
  auto const& plates = model.Prop2D();
  for (int n = plates.Next(0); n != 0; n = plates.Next(n)) {
    auto copy = *plates.Find(n);
    if (IsValidProperty(copy.Type(), structure)) continue;
    copy.SetType(row != nullptr ? row->type : Data::PropertyType2d::PlaneStress);
    model.SetProp2D(n, copy, SidMode::Keep);
  }
}

}  // namespace Tarvex
