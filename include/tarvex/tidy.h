// Tidying of materials and properties: which of them a model uses, unused ones removed, the holes
// in their numbers closed.
//
//   Tarvex::CUpdateProp tidy(model);
//   tidy.Update(Tarvex::CUpdateProp::kDeleteBlank);  // close the holes, with all references
#pragma once

#include <map>

#include "store/record/prop_2d.h"
#include "store/record/struct_type.h"
#include "store/select/module_id.h"
#include "tarvex/export.h"

namespace Tarvex {

class CZelData;
namespace Data {
class CEntList;
}  // namespace Data

/// Tells which materials and properties are in use. An index is made by one of the three calls and
/// holds what the model was then.
class TARVEX_EXPORT CIndexProp {
 public:
  explicit CIndexProp(CZelData const& model);
  CIndexProp(CIndexProp const& other);
  virtual ~CIndexProp();

  /// Indexes what the model uses in itself or in any of its stages. A material of a property that
  /// is not used is not used either. Throws std::runtime_error "bad material type" for a property
  /// of a material of no known type. @return true
  bool IndexUsed();
  /// Indexes all that is defined. @return true
  bool IndexDefined();
  /// Indexes what one stage uses; 0 is the model without stages. @return false, with nothing in the
  /// index, for a stage that does not exist.
  bool IndexStage(int stage);

  bool IsMatAnalUsed(int n) const { return IsUsed(CModule::MatAnal, n); }
  bool IsMatSteelUsed(int n) const { return IsUsed(CModule::MatSteel, n); }
  bool IsMatConcreteUsed(int n) const { return IsUsed(CModule::MatConcrete, n); }
  bool IsMatAluminiumUsed(int n) const { return IsUsed(CModule::MatAluminium, n); }
  bool IsMatGlassUsed(int n) const { return IsUsed(CModule::MatGlass, n); }
  bool IsMatFrpUsed(int n) const { return IsUsed(CModule::MatFrp, n); }
  bool IsMatTimberUsed(int n) const { return IsUsed(CModule::MatTimber, n); }
  bool IsMatFabricUsed(int n) const { return IsUsed(CModule::MatFabric, n); }
  /// There are no generic materials: false.
  bool IsMatGenericUsed(int n) const;
  bool IsMatRebarUsed(int n) const { return IsUsed(CModule::MatRebar, n); }
  bool IsSectionUsed(int n) const { return IsUsed(CModule::Section, n); }
  bool IsProp2DUsed(int n) const { return IsUsed(CModule::Prop2D, n); }
  bool IsSpringUsed(int n) const { return IsUsed(CModule::SpringProp, n); }
  bool IsDamperUsed(int n) const { return IsUsed(CModule::DamperProp, n); }
  bool IsMassUsed(int n) const { return IsUsed(CModule::MassProp, n); }
  bool IsLinkUsed(int n) const { return IsUsed(CModule::LinkProp, n); }
  bool IsCableUsed(int n) const { return IsUsed(CModule::CableProp, n); }
  bool IsSpacerUsed(int n) const { return IsUsed(CModule::SpacerProp, n); }
  bool IsProp3DUsed(int n) const { return IsUsed(CModule::Prop3D, n); }

 protected:
  /// Number of a record in use to the number that it would have without holes.
  using NumberMap = std::map<int, int>;
  using Maps = std::map<CModule::ModuleId, NumberMap>;

  /// Empties the index.
  void _Init();  // NOLINT: its name
  /// Marks what a stage uses. @return false for a stage that does not exist.
  bool _Index(int stage);  // NOLINT: its name
  /// Gives each marked record its number without holes.
  void _Post();  // NOLINT: its name

  bool IsUsed(CModule::ModuleId module, int n) const;

  CZelData const& m_model;
  Maps m_maps;  ///< by table
};

/// Removes what is not used, or closes the holes.
class TARVEX_EXPORT CUpdateProp : public CIndexProp {
 public:
  enum Opt : int {
    kBlankUnused = 0,  ///< remove the records that nothing uses
    kDeleteBlank = 1,  ///< close the holes and rewrite what names the records
  };

  explicit CUpdateProp(CZelData& model);
  CUpdateProp(CUpdateProp const& other);
  ~CUpdateProp() override;

  /// Whether sections that nothing uses go too; they stay at first.
  void SetNoSection(bool noSection) { m_noSection = noSection; }
  /// @return false, with no change, for an option that there is not.
  bool Update(Opt option);

  /// Whether all 2D properties are of a type that a kind of structure has.
  static bool Check2dProperties(CZelData const& model, StrType structure);
  static bool IsValidProperty(Data::PropertyType2d type, StrType structure);
  /// Gives 2D properties the type that the model's kind of structure asks for.
  static void Update2dElementProperties(CZelData& model);

 protected:
  bool BlankUnused();
  bool DeleteBlank();
  /// Rewrites what names materials and properties, but for the springs, masses and dampers of
  /// nodes: they keep their numbers.
  void TidyRef();
  /// Rewrites the numbers behind words for materials and properties. @return whether any changed.
  bool UpdateList(Data::CEntList& list) const;
  /// The new number, 0 for one that the map lacks.
  static int UpdateRef(int n, NumberMap const& map);

 private:
  CZelData& m_live;
  bool m_noSection = false;
};

}  // namespace Tarvex
