#include "renumber/stage_property.h"

#include "renumber/property_tables.h"
#include "store/record/load_panel.h"
#include "store/record/stages.h"

namespace Tarvex {
namespace {

/// The record that stands for another in a stage; that one itself where none does.
[[maybe_unused]] int InStage(CZelData const& model, PropertyType type, int property, int stage) {
  if (property == 0) return 0;
  for (auto const& [n, record] : model.AnalStageProp())
    if (record.Stage() == stage && record.PropType() == type && record.ElemProp() == property)
      return record.PropRec();
  return property;
}

}  // namespace

// The model's own queries of the same names are taken as soon as it has them.

template <class Model>
int FamilyProperty(Model const& model, PropertyType type, int property, int stage) {
  if constexpr (requires { model.StageProperty(type, property, stage); })
    return model.StageProperty(type, property, stage);
  else
    return InStage(model, type, property, stage);
}

int StagePropertyOf(CZelData const& model, PropertyType type, int property, int stage) {
  return FamilyProperty(model, type, property, stage);
}

int StagePropertyOf(CZelData const& model, int element, int stage) {
  auto const view = model.VariantElement(element);
  if (!view) return 0;
  auto const table = view->IsLoadPanel() ? CModule::Prop2D : TidiedTable(*view->Type());
  auto const family = FamilyOf(table);
  return family == PropertyType::None ? view->Property()
                                      : StagePropertyOf(model, family, view->Property(), stage);
}

}  // namespace Tarvex
