#include "tarvex/conversion.h"

namespace Tarvex {

ConversionTool::ConversionTool(CZelData& model) : m_model(model) {}
ConversionTool::ConversionTool(ConversionTool const&) = default;
ConversionTool::ConversionTool(ConversionTool&&) noexcept = default;
ConversionTool::~ConversionTool() = default;

OrderTool::OrderTool(CZelData& model) : ConversionTool(model) {}
OrderTool::OrderTool(OrderTool const&) = default;
OrderTool::OrderTool(OrderTool&&) noexcept = default;
OrderTool::~OrderTool() = default;

}  // namespace Tarvex
