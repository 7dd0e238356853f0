// Turns one beam with the installed library; exits 0 when it runs the other way.
#include <tarvex/tarvex.h>

#include <store/model/zel_data.h>
#include <store/numeric/vbool6.h>

int main() {
  Tarvex::CZelData model;
  model.CreateNode(1, {0, 0, 0}, 0, Tarvex::Vbool6());
  model.CreateNode(2, {-3, 0, 0}, 0, Tarvex::Vbool6());
  model.CreateElem(1, Tarvex::ElementType::Beam, 1, 1);
  model.SetElemTopo(1, 0, 1);
  model.SetElemTopo(1, 1, 2);
  Tarvex::Util::CSet beams(Tarvex::SelElement);
  beams.AddTo(1);
  Tarvex::CAlignElem1D tool(model);
  tool.SetSet(beams);
  return tool.Do() && model.Elem(1).Topo(0) == 2 ? 0 : 1;
}
