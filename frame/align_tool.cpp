// What the align tools have in common.
#include "store/model/zel_data.h"
#include "tarvex/orientation.h"

namespace Tarvex {

AlignTool::AlignTool(CZelData& model) : m_model(model), m_set(SelNone) {}
AlignTool::AlignTool(AlignTool const&) = default;
AlignTool::AlignTool(AlignTool&&) noexcept = default;
AlignTool::~AlignTool() = default;

bool AlignTool::HasAxis() const { return m_axis == 0 || m_model.AxisExist(m_axis); }

}  // namespace Tarvex
