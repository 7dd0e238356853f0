// 1D entities made to run towards the positive sense of an axis.
#include <array>

#include "store/model/zel_data.h"
#include "store/record/axis.h"
#include "tarvex/orientation.h"

namespace Tarvex {
namespace {

/// The component of largest size of a direction in an axis; the first of equal ones.
double DominantComponent(Vec3<double> const& direction, Data::CAxis const& axis) {
  double dominant = 0;
  for (auto const& v : std::array{axis.XAxis(), axis.YAxis(), axis.ZAxis()}) {
    double const component = Dot(direction, v);
    if (std::abs(component) > std::abs(dominant)) dominant = component;
  }
  return dominant;
}

}  // namespace

CAlignElem1D::CAlignElem1D(CZelData& model) : AlignTool(model) {}
CAlignElem1D::CAlignElem1D(CAlignElem1D const&) = default;
CAlignElem1D::CAlignElem1D(CAlignElem1D&&) noexcept = default;
CAlignElem1D::~CAlignElem1D() = default;

bool CAlignElem1D::Do() {
  auto const kind = m_set.TypeOf();
  if (m_axis < 0 || !HasAxis() || (kind != SelElement && kind != SelMember)) return false;
  auto const& axis = m_model.Axis(m_axis);
  bool turned = false;
  for (int const n : m_set) {
    SEntRef const ref(kind, n);
    if (!m_model.EntIs1D(ref)) continue;
    int const first = m_model.EntTopo(ref, 0);
    int const last = m_model.EntTopo(ref, m_model.EntNumTopo(ref) - 1);
    if (!m_model.NodeExist(first) || !m_model.NodeExist(last)) break;
    auto const direction = Unit(m_model.NodeCoor(last) - m_model.NodeCoor(first));
    if (DominantComponent(direction, axis) < 0 && FlipEntity(m_model, ref)) turned = true;
  }
  return turned;
}

}  // namespace Tarvex
