// Normals of 2D entities turned towards the Z direction of an axis.
#include "store/model/zel_data.h"
#include "store/record/axis.h"
#include "tarvex/orientation.h"

namespace Tarvex {

CAlignElem2DZ::CAlignElem2DZ(CZelData& model) : AlignTool(model) {}
CAlignElem2DZ::CAlignElem2DZ(CAlignElem2DZ const&) = default;
CAlignElem2DZ::CAlignElem2DZ(CAlignElem2DZ&&) noexcept = default;
CAlignElem2DZ::~CAlignElem2DZ() = default;

bool CAlignElem2DZ::Do() {
  if (m_axis < 0 || !HasAxis() || m_set.TypeOf() != SelElement) return false;
  auto const up = m_model.Axis(m_axis).ZAxis();
  bool turned = false;
  for (int const n : m_set) {
    SEntRef const ref(SelElement, n);
    if (!m_model.EntIs2D(ref)) continue;
    auto const z = m_model.ElemDC(n, EntAt::Ends, -1).AxisVec(Direction::Z, true);
    if (Dot(z, up) < 0.0 && FlipEntity(m_model, ref)) turned = true;
  }
  return turned;
}

}  // namespace Tarvex
