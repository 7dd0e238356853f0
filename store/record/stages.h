// Stages of construction: which elements stand, and what their properties and materials are then.
#pragma once

#include "store/record/held_list.h"
#include "store/record/property_type.h"

namespace Tarvex::Data {

/// A stage: the elements that act in it.
class CAnalStage : public NamedEntity {
 public:
  CAnalStage() = default;
  CAnalStage(CString const& name, CEntList const& elements) : NamedEntity(0, name) {
    SetStageElem(elements);
  }

  /// The elements and load panels of the stage.
  Storage<CEntList> const& StageElem() const { return m_elements; }
  /// Throws std::invalid_argument for a list of another kind than elements that names something.
  void SetStageElem(CEntList const& elements) { m_elements.Put(elements); }

  friend bool operator==(CAnalStage const& a, CAnalStage const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CAnalStage>(),
                    MakeRows(Plain<CAnalStage>("stageElem", &CAnalStage::m_elements)));
  }

 private:
  ListOf<SelElement> m_elements;
};

/// What stands in the place of one property in one stage.
class CAnalStageProp : public BaseEntity {
 public:
  CAnalStageProp() = default;
  CAnalStageProp(int stage, PropertyType type, int elemProp, int propRec)
      : m_stage(stage), m_type(type), m_elemProp(elemProp), m_propRec(propRec) {}

  int Stage() const { return m_stage; }
  void SetStage(int stage) { m_stage = stage; }
  /// The family of both properties.
  PropertyType PropType() const { return m_type; }
  void SetPropType(PropertyType type) { m_type = type; }
  /// Number of the property that elements have.
  int ElemProp() const { return m_elemProp; }
  void SetElemProp(int property) { m_elemProp = property; }
  /// Number of the property that applies in the stage.
  int PropRec() const { return m_propRec; }
  void SetPropRec(int property) { m_propRec = property; }

  friend bool operator==(CAnalStageProp const& a, CAnalStageProp const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    using R = CAnalStageProp;
    return MakeRows(SidField<R>(), Reference<R, CModule::AnalStage>("stage", &R::m_stage),
                    Plain<R>("propType", &R::m_type),
                    Field<R, int>{"elemProp", &R::m_elemProp, false, &Table},
                    Field<R, int>{"propRec", &R::m_propRec, false, &Table});
  }

 private:
  static CModule::ModuleId Table(CAnalStageProp const& record) {
    return PropertyModule(record.m_type);
  }

  int m_stage = 0;
  PropertyType m_type = PropertyType::Section;
  int m_elemProp = 0;
  int m_propRec = 0;
};

/// What stands in the place of one analysis material in one stage.
class CAnalStageMat : public BaseEntity {
 public:
  CAnalStageMat() = default;
  CAnalStageMat(int stage, int original, int staged)
      : m_stage(stage), m_original(original), m_staged(staged) {}

  int Stage() const { return m_stage; }
  void SetStage(int stage) { m_stage = stage; }
  /// Number of the analysis material of the elements' properties.
  int ElemOriginalMat() const { return m_original; }
  void SetElemOriginalMat(int material) { m_original = material; }
  /// Number of the analysis material that applies in the stage.
  int ElemStageMat() const { return m_staged; }
  void SetElemStageMat(int material) { m_staged = material; }

  friend bool operator==(CAnalStageMat const& a, CAnalStageMat const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    using R = CAnalStageMat;
    return MakeRows(SidField<R>(), Reference<R, CModule::AnalStage>("stage", &R::m_stage),
                    Reference<R, CModule::MatAnal>("elemOriginalMat", &R::m_original),
                    Reference<R, CModule::MatAnal>("elemStageMat", &R::m_staged));
  }

 private:
  int m_stage = 0;
  int m_original = 0;
  int m_staged = 0;
};

}  // namespace Tarvex::Data
