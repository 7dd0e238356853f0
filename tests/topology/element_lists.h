// Tables with a list of elements that are no loads, by hand.
#pragma once

#include "tests/topology/topology_support.h"

namespace Tarvex::Testing {

inline ListTable SurfaceRow() {
  return {"GridSurface",
          [](CZelData& model, Data::CEntList const& list) {
            model.SetGridSurface(model.HighestGridSurface() + 1,
                                 {L"deck", 4, list, GridElementType::Plates});
          },
          [](CZelData const& model, int n) {
            EXPECT_EQ(model.GridSurface(n).Plane(), 4);
            return Data::CEntList(model.GridSurface(n).Elements());
          },
          [](CZelData const& model) { return model.HighestGridSurface(); }};
}
inline ListTable StageRow() {
  return {"AnalStage",
          [](CZelData& model, Data::CEntList const& list) {
            model.SetAnalStage(model.HighestAnalStage() + 1, {L"frame", list});
          },
          [](CZelData const& model, int n) {
            EXPECT_EQ(model.AnalStage(n).Name().Str(), L"frame");
            return Data::CEntList(model.AnalStage(n).StageElem());
          },
          [](CZelData const& model) { return model.HighestAnalStage(); }};
}
inline ListTable AssemblyRow() {
  return {"Assembly",
          [](CZelData& model, Data::CEntList const& list) {
            Data::CAssembly assembly(L"wall");
            assembly.SetEntities(list);
            model.SetAssembly(model.HighestAssembly() + 1, assembly);
          },
          [](CZelData const& model, int n) {
            EXPECT_EQ(model.Assembly(n).Name().Str(), L"wall");
            return Data::CEntList(model.Assembly(n).Entities());
          },
          [](CZelData const& model) { return model.HighestAssembly(); }};
}
/// One side of a tied interface; the other side is "1".
inline ListTable TiedRow(bool primary) {
  return {primary ? "TiedInterface, primary" : "TiedInterface, constrained",
          [=](CZelData& model, Data::CEntList const& list) {
            Data::CTiedInterface tied;
            tied.SetPrimaryElements(primary ? list : Elements(L"1"));
            tied.SetConstrainedEntities(primary ? Elements(L"1") : list);
            model.SetTiedInterface(model.HighestTiedInterface() + 1, tied);
          },
          [=](CZelData const& model, int n) {
            auto const& tied = model.TiedInterface(n);
            return Data::CEntList(primary ? tied.PrimaryElements() : tied.ConstrainedEntities());
          },
          [](CZelData const& model) { return model.HighestTiedInterface(); }};
}

}  // namespace Tarvex::Testing
